#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "shared/FormsTest.h"

using Answer = Dialogs::Answer;
using FileCommandsTest = FormsTest;

TEST_F(FileCommandsTest, SaveTrimsAndAddsOneLineEndSoTheLengthStays) {
  // Every code page byte comes back; lone line ends become CR LF.
  const std::pair<QByteArray, QByteArray> cases[] = {
      {"  <p>\x80\x81\x9F\xA0</p>  ", "<p>\x80\x81\x9F\xA0</p>\r\n"},
      {"a\nb\rc\r\n", "a\r\nb\r\nc\r\n"},
      {"a\r\n\r\n ", "a\r\n\r\n"},
      {"   ", "\r\n"},
      {"\ta\t \r\n", "\ta\t \r\n"},
      {QByteArray("n\0l", 3), QByteArray("n\0l\r\n", 5)}};
  for (const auto &[before, after] : cases) {
    frmHTMLChild *editor = Open("a.txt", before);
    dialogs.answers = {Answer::Yes, Answer::Yes};
    FileCommands::Save();
    FileCommands::Save();
    EXPECT_EQ(Read("a.txt"), after);
    editor->close();
  }
}

TEST_F(FileCommandsTest, SaveAsksEveryTimeAndNamesAnUnsavedDocument) {
  FileCommands::Save();  // no document, no question
  frmHTMLChild *editor = mEditors::OpenWindow();
  editor->SetCaption("<unsaved>");
  Type(editor, "text");
  dialogs.answers = {Answer::No, Answer::Yes, Answer::Yes};
  dialogs.files = {std::nullopt, Path("new.html")};
  for (const bool changed : {true, true, false}) {
    FileCommands::Save();
    EXPECT_EQ(mPublic::aEditorState[1].changed, changed);
  }
  EXPECT_TRUE(editor->Caption() == Path("new.html") && Read("new.html") == "text\r\n");
}

TEST_F(FileCommandsTest, SaveAsWritesTheTextAsItStands) {
  frmHTMLChild *editor = Open("a.html", "  a\r\nb  ");
  dialogs.files = {Path("b.java")};
  FileCommands::SaveAs();
  EXPECT_TRUE(editor->Caption() == Path("b.java") && Read("b.java") == "  a\r\nb  ");
}

TEST_F(FileCommandsTest, SaveAllGoesThroughEveryDocumentWithADialogEach) {
  for (const char *name : {"a", "b", "c", "d"}) Open(name, name[0] == 'c' ? "   " : name);
  dialogs.answers = {Answer::Yes, Answer::Cancel, Answer::Yes};
  dialogs.files = {std::nullopt, Path("e")};
  FileCommands::SaveAll();
  EXPECT_EQ(dialogs.messages.size(), 3) << "the blank one is passed over";
  EXPECT_TRUE(mEditors::aEditorWindow[4]->Caption() == Path("e") && Read("e") == "d\r\n");
}

TEST_F(FileCommandsTest, WhatCannotBeReadOrFindsNoSlotStaysOut) {
  const QString tooLong = Write("long", QByteArray(4'000'001, 'x'));
  for (const QString &path : {Path("none"), folder.path(), tooLong, QString("/dev/zero")}) {
    FileCommands::LoadFileIntoNewEditor(path);
    EXPECT_TRUE(main->mdiArea->subWindowList().isEmpty()) << qPrintable(path);
  }
  for (int i = 0; i < 101; ++i) Open("a.html", "x");
  EXPECT_EQ(main->mdiArea->subWindowList().size(), 100);
}

TEST_F(FileCommandsTest, OpenAndDropTakeOneFile) {
  dialogs.files = {Write("a.html", "a")};
  FileCommands::Open();
  EXPECT_EQ(mEditors::Active()->txthtml->Text(), "a");
  EXPECT_EQ(dialogs.requests.last().filter,
            "*.html|*.html|*.htm|*.htm|*.html and *.htm|*.html;*.htm|*.java|*.java|"
            "All files *.*|*.*");
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(Write("b.java", "b")), QUrl::fromLocalFile(Path("a.html"))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
  QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
  QCoreApplication::sendEvent(main, &enter);
  QCoreApplication::sendEvent(main, &drop);
  EXPECT_EQ(mPublic::CountOpenEditors(), 2);
  EXPECT_EQ(mEditors::Active()->Caption(), Path("b.java"));
}

// ---- closing

TEST_F(FileCommandsTest, AChangedDocumentIsSavedDroppedOrKept) {
  const std::tuple<Answer, bool, const char *> cases[] = {
      {Answer::Cancel, true, "a"}, {Answer::No, false, "a"}, {Answer::Yes, false, "xa\r\n"}};
  for (const auto &[answer, stays, file] : cases) {
    frmHTMLChild *editor = Open("a.html", "a");
    const mPublic::EditorState &state = mPublic::aEditorState[editor->Slot()];
    Type(editor, "x");
    dialogs.answers = {answer};
    dialogs.whileOpen = [editor] { EXPECT_FALSE(Unload(*editor)) << "a second time"; };
    EXPECT_EQ(editor->close(), !stays);
    EXPECT_TRUE(state.open == stays && state.changed == stays);
    EXPECT_EQ(Read("a.html"), file);
  }
  EXPECT_EQ(dialogs.messages[0], "Question|Do you want to save this file?|2");
}

TEST_F(FileCommandsTest, ClosingOneOfThreeMakesTheLowestOpenSlotActive) {
  for (const char *name : {"a.html", "b.html", "c.html"}) Open(name, "x");
  const auto &windows = mEditors::aEditorWindow;
  main->mdiArea->setActiveSubWindow(windows[2]);
  main->mdiArea->setActiveSubWindow(windows[3]);
  EXPECT_TRUE(windows[3]->close());
  DoEvents();
  EXPECT_EQ(mPublic::iActualEditor, 1);
  EXPECT_EQ(main->mdiArea->currentSubWindow(), windows[2]) << "which is not the one on top";
  Type(windows[2], "x");
  EXPECT_EQ(mPublic::iActualEditor, 2) << "until the user works in that one";
}

// The area loses count of a window that comes or goes while it sizes another.
TEST_F(FileCommandsTest, NoEventRunsWhileAWindowIsSized) {
  frmHTMLChild *editor = Open("a.html", "a");
  QPointer<frmHTMLChild> other = Open("b.html", "b");
  QTimer::singleShot(0, other, [other] { other->close(); });
  editor->resize(500, 300);
  editor->showMaximized();
  EXPECT_FALSE(other->IsUnloaded());
}

// On some desktops the toolkit's window menu has the key as well, and then neither takes it.
TEST_F(FileCommandsTest, OneAloneHasTheKeyThatCloses) {
  const QPointer<frmHTMLChild> editor = Open("a.html", "a");
  for (const QAction *entry : editor->systemMenu()->actions()) {
    EXPECT_FALSE(entry->shortcuts().contains(QKeySequence("Ctrl+F4")));
  }
  dialogs.answers = {Answer::No};  // a key counts as a change
  QTest::keyClick(editor->txthtml, Qt::Key_F4, Qt::ControlModifier);
  EXPECT_TRUE(!editor || editor->IsUnloaded());
}
