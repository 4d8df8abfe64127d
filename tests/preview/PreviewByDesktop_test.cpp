// The preview with real programs: bound by desktop entries, named in the preferences, and a
// browser.

#include <unistd.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>

#include "shared/FormsTest.h"
#include "toolkit/Programs.h"

namespace {

class PreviewByDesktopTest : public FormsTest {
 protected:
  PreviewByDesktopTest() { Programs::Set(nullptr); }

  // A program that writes down how it was called: name, number of arguments, the arguments.
  QString Recorder(const QString &name) {
    const QString program = Write(name,
                                  "#!/bin/sh\n{ echo \"${0##*/}\"; echo $#; "
                                  "printf '%s\\n' \"$@\"; } > \"${0%/*}/.called\"\n"
                                  "mv \"${0%/*}/.called\" \"${0%/*}/called\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    return program;
  }

  void Entry(const QString &name) {
    QDir(folder.path()).mkpath(QStringLiteral("data/applications"));
    Write(
        QStringLiteral("data/applications/%1.desktop").arg(name),
        QFile::encodeName(QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2 "
                                         "--open %f\nMimeType=text/html;x-scheme-handler/https;\n")
                              .arg(name, Recorder(name))));
  }

  // Bound to html files and to the web.
  void Bind(const QByteArray &toFile, const QByteArray &toWeb) {
    QDir(folder.path()).mkpath(QStringLiteral("config"));
    Write(QStringLiteral("config/mimeapps.list"), "[Default Applications]\ntext/html=" + toFile +
                                                      ".desktop\nx-scheme-handler/https=" + toWeb +
                                                      ".desktop\n");
  }

  QString Called() {
    const QString called = Path(QStringLiteral("called"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(called); }, 20'000));
    const QString text = QString::fromUtf8(FileBytes(called));
    QFile::remove(called);
    return text;
  }

  void SetApplication(const QString &command) {
    Preferences record = StandardPreferences();
    record.OtherPreViewer = true;
    record.ApplicationPath.Set(command);
    ASSERT_EQ(record.ApplicationPath.Trimmed(), command) << "too long";
    SetPreferences(record);
  }
  static void SetPreferences(const Preferences &record) {
    ASSERT_TRUE(
        WritePreferencesFile(mFolders::InProgramFolder(QStringLiteral("preferences.dat")), record));
  }
  ~PreviewByDesktopTest() override { SetPreferences(StandardPreferences()); }
};

const QStringList names{
    QStringLiteral("a b.html"), QStringLiteral("-c.html"), QStringLiteral("'d\".html"),
    QStringLiteral("e;`touch x`$(touch y)&%f.html"), QStringLiteral("\u00e9\u2192.html")};

// The desktop's folders are read once a process, so each binding has a process of its own: this
// test again, which then does no more than the preview.
TEST_F(PreviewByDesktopTest, TheBoundApplicationIsCalledWithTheFile) {
  const char *const role = "TAGWRIGHT_TEST_PREVIEW_OF";
  if (const QString document = qEnvironmentVariable(role); !document.isEmpty()) {
    FileCommands::OpenDroppedFile(document);
    dialogs.answers = {Dialogs::Answer::No};
    main->mnuFileShowPreview->trigger();
    return;
  }
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_DATA_HOME"), Path(QStringLiteral("data")));
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path(QStringLiteral("config")));
  environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), Path(QStringLiteral("none")));
  // Of the machine's own only the kinds of files, none of its applications.
  environment.insert(QStringLiteral("XDG_DATA_DIRS"), Path(QStringLiteral("share")));
  QDir(folder.path()).mkpath(QStringLiteral("share"));
  ASSERT_TRUE(QFile::link(QStringLiteral("/usr/share/mime"), Path(QStringLiteral("share/mime"))));
  const auto preview = [&](const QString &document) {
    environment.insert(QLatin1String(role), document);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    const auto *test = testing::UnitTest::GetInstance()->current_test_info();
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=%1.%2")
                       .arg(QLatin1String(test->test_suite_name()), QLatin1String(test->name()))});
    EXPECT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().constData();
  };

  const QString first = Write(names[0], "<html></html>");
  preview(first);
  EXPECT_FALSE(QFile::exists(Path(QStringLiteral("called")))) << "nothing bound, so a question";
  Entry(QStringLiteral("viewer"));
  Entry(QStringLiteral("web"));
  Entry(QStringLiteral("tagwright"));
  Bind("viewer", "web");
  for (const QString &name : names) {
    const QString document = Write(name, "<html></html>");
    preview(document);
    EXPECT_EQ(Called(), QStringLiteral("viewer\n2\n--open\n") + document + u'\n');
  }
  Bind("tagwright", "web");
  preview(first);
  EXPECT_EQ(Called(), QStringLiteral("web\n2\n--open\n") + first + u'\n');
  for (const char *made : {"x", "y"}) EXPECT_FALSE(QFile::exists(Path(QLatin1String(made))));
}

TEST_F(PreviewByDesktopTest, ThePreviewApplicationIsCalledWithTheFile) {
  SetApplication(Recorder(QStringLiteral("my viewer")) + QStringLiteral(" -x $HOME;"));
  for (const QString &name : names) {
    const QString document = Write(name, "");
    FileCommands::OpenDroppedFile(document);
    main->mnuFileShowPreview->trigger();
    EXPECT_EQ(Called(), QStringLiteral("my viewer\n3\n-x\n$HOME;\n") + document + u'\n');
  }
}

TEST_F(PreviewByDesktopTest, ABrowserShowsWhatTheEditorHolds) {
  const QString browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
  if (browser.isEmpty()) GTEST_SKIP() << "chromium is not installed";
  const QString picture = Path(QStringLiteral("page.png"));
  SetApplication(browser + QStringLiteral(" --headless --disable-gpu --window-size=80,60 ") +
                 (geteuid() == 0 ? QStringLiteral("--no-sandbox ") : QString()) +
                 QStringLiteral("--user-data-dir=") + Path(QStringLiteral("u")) +
                 QStringLiteral(" --screenshot=") + picture);
  frmHTMLChild *editor = Open(QStringLiteral("my page.html"), "<html><body></body></html>");
  editor->txthtml->SetSelStart(QStringLiteral("<html><body").size());
  Type(editor, QStringLiteral(" bgcolor=#12AB34"));
  dialogs.answers = {Dialogs::Answer::Yes};
  main->mnuFileShowPreview->trigger();
  QImage page;
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.load(picture); }, 60'000));
  ASSERT_FALSE(page.isNull());
  EXPECT_EQ(page.pixelColor(page.rect().center()).name(), QStringLiteral("#12ab34"));
}

}  // namespace
