#include <sys/stat.h>

#include <QDir>
#include <QMenu>
#include <QRegularExpression>

#include "base/mPlatform.h"
#include "shared/FormsTest.h"
#include "shared/ScriptedPrograms.h"

namespace {

using Answer = Dialogs::Answer;
using Outcome = Programs::Outcome;
using Application = Programs::Application;

const QString noApplication = QStringLiteral(
    "Information|Could not find any preview application!"
    "\r\nDo You want to open the preferences window?|1");
const QString question =
    QStringLiteral("Question|Do you want to save this file before previewing?|2");

class PreviewTest : public FormsTest {
 protected:
  PreviewTest() {
    QDir(temporary).removeRecursively();
    programs.toFile = Application{QStringLiteral("viewer")};
    SetPreferences([](Preferences &) {});
  }
  ~PreviewTest() override {
    SetPreferences([](Preferences &) {});
    QDir(temporary).removeRecursively();
    QFile::remove(temporary);
    Programs::Set(nullptr);
  }

  // The preview looks at the file alone.
  void SetPreferences(const std::function<void(Preferences &)> &change) {
    Preferences record = StandardPreferences();
    change(record);
    ASSERT_TRUE(
        WritePreferencesFile(mFolders::InProgramFolder(QStringLiteral("preferences.dat")), record));
  }

  frmHTMLChild *OpenUnsaved(const QString &text) {
    frmHTMLChild *editor = mEditors::OpenWindow();
    editor->SetCaption(QStringLiteral("<unsaved>"));
    editor->txthtml->SetText(text);
    return editor;
  }

  void Preview(std::deque<Answer> answers = {}) {
    dialogs.answers = std::move(answers);
    main->picLeft->ButtonUp(10);
    EXPECT_TRUE(dialogs.answers.empty()) << "a question was not put";
  }

  // What has been started and opened since the last look.
  QString Shown() {
    QStringList shown = std::exchange(programs.opened, {});
    for (const auto &command : std::exchange(programs.started, {})) {
      shown << (QStringList(command.program) + command.arguments).join(u'|');
    }
    return shown.join(u'\n');
  }

  const QString temporary = mPlatform::Current().temporaryFolder;
  const QString target = temporary + QStringLiteral("/0001.html");
  ScriptedPrograms &programs = ScriptedPrograms::Install();
};

TEST_F(PreviewTest, ASavedDocumentIsShownFromItsFileWithoutAQuestion) {
  Preview();
  EXPECT_EQ(Shown(), QString()) << "no document";
  frmHTMLChild *editor = Open(QStringLiteral("a; $(b).html"), "text");
  editor->txthtml->SetText(QStringLiteral("not typed, so not changed"));
  Preview();
  EXPECT_EQ(Shown(), QStringLiteral("viewer ") + editor->Caption());
  EXPECT_EQ(Read(QStringLiteral("a; $(b).html")), "text");
  EXPECT_FALSE(QFile::exists(temporary));
}

TEST_F(PreviewTest, ChangesAreSavedOnlyAfterYesAndAsTheyStand) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "a  ");
  Type(editor, QStringLiteral(" b"));
  Preview({Answer::Cancel});
  EXPECT_EQ(Shown(), QString());
  Preview({Answer::No});
  EXPECT_EQ(Shown(), QStringLiteral("viewer ") + editor->Caption());
  EXPECT_EQ(Read(QStringLiteral("a.html")), "a  ");
  EXPECT_TRUE(mPublic::aEditorState[1].changed);
  Preview({Answer::Yes});
  EXPECT_EQ(Shown(), QStringLiteral("viewer ") + editor->Caption());
  EXPECT_EQ(Read(QStringLiteral("a.html")), " ba  ");
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(dialogs.messages, QStringList(3, question));

  Type(editor, QStringLiteral("c"));
  dialogs.whileOpen = [editor] { Unload(*editor); };
  dialogs.answers = {Answer::Yes, Answer::No};
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(Shown(), QString()) << "closed under the question";
}

TEST_F(PreviewTest, AnUnsavedDocumentIsNamedFirst) {
  frmHTMLChild *editor = OpenUnsaved({});
  Type(editor, QStringLiteral(" text "));
  dialogs.files = {std::nullopt, QString(), Path(QStringLiteral("new.html"))};
  Preview({Answer::Yes});
  Preview({Answer::Yes});
  EXPECT_EQ(Shown(), QString()) << "no name";
  EXPECT_TRUE(mPublic::aEditorState[1].changed);
  Preview({Answer::Yes});
  EXPECT_EQ(Shown(), QStringLiteral("viewer ") + Path(QStringLiteral("new.html")));
  EXPECT_EQ(editor->Caption(), Path(QStringLiteral("new.html")));
  EXPECT_EQ(Read(QStringLiteral("new.html")), "text\r\n");
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(main->trwOpenFiles->NodeByKey(QStringLiteral("aaaa"))->childCount(), 1);
}

TEST_F(PreviewTest, AnUnsavedDocumentIsShownFromTheTemporaryFolder) {
  frmHTMLChild *editor = OpenUnsaved(QStringLiteral("  one  "));
  Preview({Answer::Cancel});
  EXPECT_EQ(dialogs.messages.takeFirst(),
            QStringLiteral("Temporary data questions|The local folder ") + temporary +
                QStringLiteral(" is necessary for temporary data?\r\n"
                               "Press Ok to generate it, Cancel to quit Preview.|3"));
  EXPECT_FALSE(QFile::exists(temporary));
  Preview({Answer::Ok});
  struct stat entry;
  ASSERT_EQ(stat(QFile::encodeName(temporary).constData(), &entry), 0);
  EXPECT_EQ(entry.st_mode & 07777, 0700u);
  EXPECT_EQ(FileBytes(target), "one\r\n");
  Type(editor, QStringLiteral("two"));
  Preview({Answer::No});
  EXPECT_EQ(FileBytes(target), "two  one\r\n");
  EXPECT_EQ(Shown(), QStringLiteral("viewer %1\nviewer %1").arg(target));
  EXPECT_EQ(editor->Caption(), QStringLiteral("<unsaved>"));

  ASSERT_TRUE(QDir(temporary).removeRecursively());
  ASSERT_TRUE(QFile::link(folder.path(), temporary));
  Preview({Answer::No});
  EXPECT_EQ(Shown(), QString()) << "a link is not followed";
  EXPECT_FALSE(QFile::exists(Path(QStringLiteral("0001.html"))));

  for (const char *end : {"", "/"}) {
    SetPreferences([&](Preferences &record) {
      record.TemporaryPathStandard = false;
      record.OtherTemporaryPath.Set(folder.path() + QLatin1String(end));
    });
    Preview({Answer::No});
    EXPECT_EQ(Shown(), QStringLiteral("viewer ") + Path(QStringLiteral("0001.html")));
    EXPECT_EQ(Read(QStringLiteral("0001.html")), "two  one\r\n");
  }
}

TEST_F(PreviewTest, CommandsGetThePathAsOneArgument) {
  PutFile(Path(QStringLiteral("my viewer")), "");
  QFile::setPermissions(Path(QStringLiteral("my viewer")), QFile::ReadOwner | QFile::ExeOwner);
  for (const char *name : {"a b.php", "-c.php", "'d\".php", "e;`f`$(g)&.php", "\xe9.php"}) {
    frmHTMLChild *editor = Open(QString::fromLatin1(name), "");
    SetPreferences([this](Preferences &record) {
      record.FileBinding = true;
      record.FileExtension.Set(u"PHP");
      record.FileBindingCommand.Set(Path(QStringLiteral("my viewer")) + QStringLiteral(" -x  -y"));
    });
    Preview();
    EXPECT_EQ(Shown(),
              Path(QStringLiteral("my viewer")) + QStringLiteral("|-x|-y|") + editor->Caption());
    SetPreferences([](Preferences &record) {
      record.OtherPreViewer = true;
      record.ApplicationPath.Set(u"show;rm $HOME");
    });
    Preview();
    EXPECT_EQ(Shown(), QStringLiteral("show;rm|$HOME|") + editor->Caption());
  }
  Outcome outcomes[] = {Outcome::NotFound, Outcome::Failed};
  programs.outcomes.assign(std::begin(outcomes), std::end(outcomes));
  Preview();
  EXPECT_TRUE(dialogs.messages.isEmpty()) << "nothing is said of the preview application";
  SetPreferences([](Preferences &record) {
    record.FileBinding = true;
    record.FileExtension.Set(u"php");
  });
  Preview({Answer::Ok});
  EXPECT_EQ(dialogs.messages.takeFirst(),
            QStringLiteral("File Binding Alert|File Binding does not exist or path is wrong!\r\n"
                           "Please try again!|0"));
}

TEST_F(PreviewTest, ThisProgramIsNeverTheBrowser) {
  const Application self{QStringLiteral("self"), true};
  const Application web{QStringLiteral("web"), false};
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "");
  for (const auto &[toFile, toWeb, id] :
       {std::tuple(std::optional(self), std::optional(web), "web"),
        {self, self, ""},
        {self, std::nullopt, ""},
        {std::nullopt, web, ""}}) {
    programs.toFile = toFile;
    programs.toWeb = toWeb;
    const bool found = *id;
    Preview(found ? std::deque<Answer>{} : std::deque{Answer::No});
    EXPECT_EQ(Shown(), found ? QLatin1String(id) + u' ' + editor->Caption() : QString());
    EXPECT_EQ(std::exchange(dialogs.messages, {}), QStringList(!found, noApplication));

    dialogs.answers.assign(!found, Answer::Ok);
    main->picBottom->ButtonUp(2);
    EXPECT_EQ(Shown(), found ? QLatin1String(id) + u' ' +
                                   mFolders::InProgramFolder(QStringLiteral("help/index.htm"))
                             : QString());
    EXPECT_EQ(std::exchange(dialogs.messages, {}),
              QStringList(!found, QStringLiteral("Information|Could not find any preview "
                                                 "application!|0")));
  }
}

TEST_F(PreviewTest, YesOpensThePreferences) {
  programs.toFile.reset();
  Open(QStringLiteral("a.html"), "");
  int opened = 0;
  main->mnuOptionsPreferences->disconnect();
  main->mnuOptionsPreferences->setEnabled(true);
  QObject::connect(main->mnuOptionsPreferences, &QAction::triggered, main, [&] { ++opened; });
  Preview({Answer::No});
  EXPECT_EQ(opened, 0);
  Preview({Answer::Yes});
  EXPECT_EQ(opened, 1);
}

TEST_F(PreviewTest, TheManualTellsEveryMenuEntry) {
  QString manual;
  const QDir help(QStringLiteral(TAGWRIGHT_DATA_DIR "/help"));
  for (const QString &page : help.entryList({QStringLiteral("*.htm")})) {
    manual += QString::fromLatin1(FileBytes(help.filePath(page)));
  }
  int entries = 0;
  for (const QMenu *menu :
       main->mnuMain->findChildren<QMenu *>(QRegularExpression(QStringLiteral("^mnu")))) {
    for (const QAction *entry : menu->actions()) {
      if (entry->isSeparator()) continue;
      ++entries;
      const QString caption = entry->text().remove(u'&').toHtmlEscaped();
      EXPECT_TRUE(manual.contains(u'>' + caption + QStringLiteral("</dt>")) ||
                  manual.contains(u'>' + caption + QStringLiteral(" <span")))
          << qPrintable(caption);
    }
  }
  EXPECT_GT(entries, 40);
}

}  // namespace
