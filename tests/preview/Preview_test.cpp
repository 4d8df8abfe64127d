#include <QDir>

#include "base/mPlatform.h"
#include "shared/FormsTest.h"
#include "shared/ScriptedPrograms.h"

using Qt::StringLiterals::operator""_s;

namespace {

using Answer = Dialogs::Answer;
using Application = Programs::Application;

class PreviewTest : public FormsTest {
 protected:
  PreviewTest() { programs.toFile = Application{u"viewer"_s}; }
  ~PreviewTest() override { Programs::Set(nullptr); }

  frmHTMLChild *OpenUnsaved(const QString &text) {
    frmHTMLChild *editor = mEditors::OpenWindow();
    editor->SetCaption(u"<unsaved>"_s);
    Type(editor, text);
    return editor;
  }

  // Previews with these answers; what has been started and opened.
  QString Preview(std::deque<Answer> answers = {}) {
    dialogs.answers = std::move(answers);
    main->picLeft->ButtonUp(10);
    EXPECT_TRUE(dialogs.answers.empty()) << "a question was not put";
    return Shown();
  }
  QString Shown() {
    QStringList shown = std::exchange(programs.opened, {});
    for (const auto &command : std::exchange(programs.started, {})) {
      shown << command.program << command.arguments;
    }
    return shown.join(u'|');
  }

  const QString temporary = mPlatform::Current().temporaryFolder;
  ScriptedPrograms &programs = ScriptedPrograms::Install();
};

TEST_F(PreviewTest, ChangesAreSavedOnlyAfterYesAndAsTheyStand) {
  EXPECT_EQ(Preview(), QString()) << "no document";
  frmHTMLChild *editor = Open(u"a.html"_s, "a  ");
  const QString shown = u"viewer "_s + editor->Caption();
  EXPECT_EQ(Preview(), shown);
  Type(editor, u" b"_s);
  EXPECT_EQ(Preview({Answer::Cancel}), QString());
  EXPECT_EQ(Preview({Answer::No}), shown);
  EXPECT_EQ(Read(u"a.html"_s), "a  ");
  EXPECT_EQ(Preview({Answer::Yes}), shown);
  EXPECT_EQ(Read(u"a.html"_s), " ba  ");
  EXPECT_EQ(dialogs.messages,
            QStringList(3, u"Question|Do you want to save this file before previewing?|2"_s));
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  Type(editor, u"c"_s);
  dialogs.whileOpen = [editor] { Unload(*editor); };
  EXPECT_EQ(Preview({Answer::Yes, Answer::No}), QString()) << "closed under the question";
}

TEST_F(PreviewTest, AnUnsavedDocumentIsNamedFirst) {
  OpenUnsaved(u" text "_s);
  dialogs.files = {std::nullopt, Path(u"new.html"_s)};
  EXPECT_EQ(Preview({Answer::Yes}), QString()) << "no name";
  EXPECT_EQ(Preview({Answer::Yes}), u"viewer "_s + Path(u"new.html"_s));
  EXPECT_EQ(Read(u"new.html"_s), "text\r\n");
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
}

TEST_F(PreviewTest, AnUnsavedDocumentIsShownFromTheTemporaryFolder) {
  OpenUnsaved(u"  one  "_s);
  EXPECT_EQ(Preview({Answer::No, Answer::Cancel}), QString());
  EXPECT_EQ(dialogs.messages.value(1),
            u"Temporary data questions|The local folder %1 is necessary for temporary data?\r\n"
            "Press Ok to generate it, Cancel to quit Preview.|3"_s.arg(temporary));
  EXPECT_FALSE(QFile::exists(temporary));
  EXPECT_EQ(Preview({Answer::No, Answer::Ok}), u"viewer "_s + temporary + u"/0001.html"_s);
  EXPECT_EQ(FileBytes(temporary + u"/0001.html"_s), "one\r\n");

  ASSERT_TRUE(QDir(temporary).removeRecursively() && QFile::link(folder.path(), temporary));
  EXPECT_EQ(Preview({Answer::No}), QString()) << "a link is not followed";
  EXPECT_FALSE(QFile::exists(Path(u"0001.html"_s)));
  mPublic::recPreferences.TemporaryPathStandard = false;
  mPublic::recPreferences.OtherTemporaryPath.Set(folder.path());
  mPublic::WritePreferences();
  EXPECT_EQ(Preview({Answer::No}), u"viewer "_s + Path(u"0001.html"_s));
  EXPECT_EQ(Read(u"0001.html"_s), "one\r\n");
}

TEST_F(PreviewTest, ABoundCommandGetsThePath) {
  mPublic::recPreferences.FileBinding = true;
  mPublic::recPreferences.FileExtension.Set(u"PHP");
  mPublic::recPreferences.FileBindingCommand.Set(u"viewer  -y");
  mPublic::WritePreferences();
  Open(u"a b.php"_s, "");
  EXPECT_EQ(Preview(), u"viewer|-y|"_s + Path(u"a b.php"_s));
  programs.outcomes = {Programs::Outcome::Failed};
  Preview({Answer::Ok});
  EXPECT_EQ(dialogs.messages.join(u'#'),
            u"File Binding Alert|File Binding does not exist or path is wrong!\r\n"
            "Please try again!|0"_s);
}

TEST_F(PreviewTest, ThisProgramIsNeverTheBrowser) {
  Open(u"a.html"_s, "");
  programs.toFile = programs.toWeb = Application{u"self"_s, true};
  int opened = 0;
  QObject::connect(main->mnuOptionsPreferences, &QAction::triggered, main, [&] { ++opened; });
  EXPECT_EQ(Preview({Answer::No}) + Preview({Answer::Yes}), QString());
  EXPECT_EQ(opened, 1);
  dialogs.answers = {Answer::Ok};
  main->picBottom->ButtonUp(2);
  const QString none = u"Information|Could not find any preview application!"_s;
  EXPECT_EQ(
      dialogs.messages.mid(1),
      (QStringList{none + u"\r\nDo You want to open the preferences window?|1"_s, none + u"|0"_s}));
  programs.toWeb = Application{u"web"_s, false};
  main->picBottom->ButtonUp(2);
  EXPECT_EQ(Shown(), u"web "_s + mFolders::InProgramFolder(u"help/index.htm"_s));
}

}  // namespace
