// The preview with real programs: bound by desktop entries, named in the preferences, and a
// browser.

#include <unistd.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>

#include "shared/FormsTest.h"
#include "toolkit/Programs.h"

using Qt::StringLiterals::operator""_s;

namespace {

class PreviewByDesktopTest : public FormsTest {
 protected:
  PreviewByDesktopTest() { Programs::Set(nullptr); }

  // A program that writes down how it was called: its name and each argument.
  QString Recorder(const QString &name) {
    const QString program = Write(name,
                                  "#!/bin/sh\n"
                                  "printf '%s|' \"${0##*/}\" \"$@\" > \"${0%/*}/.called\"\n"
                                  "mv \"${0%/*}/.called\" \"${0%/*}/called\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    return program;
  }

  static void SetApplication(const QString &command) {
    mPublic::recPreferences.OtherPreViewer = true;
    mPublic::recPreferences.ApplicationPath.Set(command);
    ASSERT_TRUE(mPublic::WritePreferences());
  }

  QString Called() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Path(u"called"_s)); }, 20'000));
    const QString text = QString::fromUtf8(Read(u"called"_s));
    QFile::remove(Path(u"called"_s));
    return text;
  }
};

const QStringList names{u"-a 'd\".html"_s, u"e;`touch x`$(touch y)&%f é→.html"_s};

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
  for (const QString &made : {u"data/applications"_s, u"config"_s, u"share"_s}) {
    QDir(folder.path()).mkpath(made);
  }
  // Of the machine's own only the kinds of files, none of its applications.
  ASSERT_TRUE(QFile::link(u"/usr/share/mime"_s, Path(u"share/mime"_s)));
  const auto preview = [this, role](const QString &document) {
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(u"env"_s,
                  {u"XDG_DATA_HOME="_s + Path(u"data"_s), u"XDG_CONFIG_HOME="_s + Path(u"config"_s),
                   u"XDG_CONFIG_DIRS="_s + Path(u"none"_s), u"XDG_DATA_DIRS="_s + Path(u"share"_s),
                   QLatin1String(role) + u'=' + document, QCoreApplication::applicationFilePath(),
                   u"--gtest_filter=*.TheBoundApplicationIsCalledWithTheFile"_s});
    EXPECT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().constData();
  };
  const auto bind = [this](const QByteArray &application) {
    Write(u"config/mimeapps.list"_s, "[Default Applications]\ntext/html=" + application +
                                         ".desktop\nx-scheme-handler/https=web.desktop\n");
  };

  preview(Write(names[0], "<html></html>"));
  EXPECT_FALSE(QFile::exists(Path(u"called"_s))) << "nothing bound, so a question";
  for (const QString &name : {u"viewer"_s, u"web"_s, u"tagwright"_s}) {
    Write(u"data/applications/%1.desktop"_s.arg(name),
          QFile::encodeName(
              u"[Desktop Entry]\nType=Application\nName=%1\nExec=%2 --open %f\n"
              "MimeType=text/html;x-scheme-handler/https;\n"_s.arg(name, Recorder(name))));
  }
  bind("viewer");
  for (const QString &name : names) {
    preview(Write(name, "<html></html>"));
    EXPECT_EQ(Called(), u"viewer|--open|%1|"_s.arg(Path(name)));
  }
  bind("tagwright");
  preview(Path(names[0]));
  EXPECT_EQ(Called(), u"web|--open|%1|"_s.arg(Path(names[0])));
  EXPECT_FALSE(QFile::exists(Path(u"x"_s)) || QFile::exists(Path(u"y"_s)));
}

TEST_F(PreviewByDesktopTest, ThePreviewApplicationIsCalledWithTheFile) {
  SetApplication(Recorder(u"my viewer"_s) + u" -x $HOME;"_s);
  for (const QString &name : names) {
    FileCommands::OpenDroppedFile(Write(name, ""));
    main->mnuFileShowPreview->trigger();
    EXPECT_EQ(Called(), u"my viewer|-x|$HOME;|%1|"_s.arg(Path(name)));
  }
}

TEST_F(PreviewByDesktopTest, ABrowserShowsWhatTheEditorHolds) {
  const QString browser = QStandardPaths::findExecutable(u"chromium"_s);
  if (browser.isEmpty()) GTEST_SKIP() << "chromium is not installed";
  const QString picture = Path(u"page.png"_s);
  SetApplication(browser + u" --headless --disable-gpu --window-size=80,60 "_s +
                 (geteuid() == 0 ? u"--no-sandbox "_s : QString()) + u"--user-data-dir="_s +
                 Path(u"u"_s) + u" --screenshot="_s + picture);
  frmHTMLChild *editor = Open(u"my page.html"_s, "<html><body></body></html>");
  editor->txthtml->SetSelStart(11);
  Type(editor, u" bgcolor=#12AB34"_s);
  dialogs.answers = {Dialogs::Answer::Yes};
  main->mnuFileShowPreview->trigger();
  QImage page;
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.load(picture); }, 60'000));
  EXPECT_EQ(page.pixelColor(page.rect().center()).name(), u"#12ab34"_s);
}

}  // namespace
