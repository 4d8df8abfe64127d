#include <QMdiArea>
#include <QMenu>
#include <QTimer>

#include "shared/FormsTest.h"
#include "shared/Limits.h"

namespace {

using Answer = Dialogs::Answer;
using ClosingTest = FormsTest;

const QByteArray page = "<p>one</p>\r\n";

TEST_F(ClosingTest, AnUnchangedDocumentGoesWithoutAQuestion) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
  ASSERT_TRUE(editor);
  EXPECT_TRUE(editor->close());
  EXPECT_FALSE(mPublic::AnyEditorOpen());
  EXPECT_EQ(mPublic::iActualEditor, 0);
  EXPECT_EQ(main->trwOpenFiles->Node(1)->text(0), QStringLiteral("Editor Windows ( 0 open)"));
}

TEST_F(ClosingTest, AChangedDocumentIsSavedDroppedOrKept) {
  struct Case {
    Answer answer;
    bool stays;
    QByteArray file;
  };
  for (const Case &c : {Case{Answer::Cancel, true, page}, Case{Answer::No, false, page},
                        Case{Answer::Yes, false, "x" + page}}) {
    frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
    const int slot = editor->Slot();
    Type(editor, QStringLiteral("x"));
    dialogs.answers = {c.answer};
    EXPECT_EQ(editor->close(), !c.stays);
    EXPECT_EQ(dialogs.messages.takeLast(),
              QStringLiteral("Question|Do you want to save this file?|2"));
    EXPECT_EQ(mPublic::aEditorState[slot].open, c.stays);
    EXPECT_EQ(mPublic::aEditorState[slot].changed, c.stays);
    EXPECT_EQ(Read(QStringLiteral("a.html")), c.file);
    if (c.stays) {
      EXPECT_TRUE(editor->isVisible());
      EXPECT_EQ(editor->txthtml->Text(), QStringLiteral("x<p>one</p>\r\n"));
      dialogs.answers = {Answer::No};
      editor->close();
      dialogs.messages.clear();
    }
  }
}

TEST_F(ClosingTest, AnUnsavedDocumentIsDroppedSilentlyAndItsSlotStaysChanged) {
  frmHTMLChild *editor = mEditors::OpenWindow();
  editor->SetCaption(QStringLiteral("<unsaved>"));
  Type(editor, QStringLiteral("lost"));
  EXPECT_TRUE(editor->close());
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_TRUE(mPublic::aEditorState[1].changed);

  // So the slot's next document is asked about although nobody has typed in it.
  editor = Open(QStringLiteral("a.html"), page);
  EXPECT_EQ(editor->Slot(), 1);
  EXPECT_EQ(editor->txthtml->Text(), QString::fromLatin1(page));
  dialogs.answers = {Answer::No};
  EXPECT_TRUE(editor->close());
  EXPECT_EQ(dialogs.messages.size(), 1);
}

TEST_F(ClosingTest, ClosingOneOfThreeMakesTheLowestOpenSlotActive) {
  for (const char *name : {"a.html", "b.html", "c.html"}) Open(QLatin1String(name), page);
  frmHTMLChild *second = mEditors::aEditorWindow[2];
  main->mdiArea->setActiveSubWindow(second);
  EXPECT_EQ(mPublic::iActualEditor, 2) << "the active slot follows the window in use";
  main->mdiArea->setActiveSubWindow(mEditors::aEditorWindow[3]);
  EXPECT_EQ(mPublic::iActualEditor, 3);
  EXPECT_TRUE(mEditors::aEditorWindow[3]->close());
  DoEvents();
  EXPECT_EQ(mPublic::iActualEditor, 1);
  EXPECT_EQ(main->mdiArea->currentSubWindow(), second) << "which is not the one on top";
  Type(second, QStringLiteral("x"));
  EXPECT_EQ(mPublic::iActualEditor, 2) << "until the user works in that one";
}

TEST_F(ClosingTest, AFailedSaveKeepsTheWindowAndTheOldFile) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
  Type(editor, QStringLiteral("x"));
  editor->txthtml->SetSelText(QString(70'000, u'y'));
  dialogs.answers = {Answer::Yes};
  {
    const FullDisk full(32'768);
    EXPECT_FALSE(editor->close());
  }
  EXPECT_TRUE(editor->isVisible());
  EXPECT_TRUE(mPublic::aEditorState[1].open);
  EXPECT_TRUE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(Read(QStringLiteral("a.html")), page);
}

TEST_F(ClosingTest, AWindowAskedAboutCannotBeClosedASecondTime) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
  Type(editor, QStringLiteral("x"));
  dialogs.answers = {Answer::No};
  dialogs.whileOpen = [editor] { EXPECT_FALSE(Unload(*editor)); };
  EXPECT_TRUE(editor->close());
  EXPECT_EQ(dialogs.messages.size(), 1);
}

TEST_F(ClosingTest, AWindowWithoutASlotUnloadsAtItsFirstResize) {
  QPointer<frmHTMLChild> stray = new frmHTMLChild;
  main->mdiArea->addSubWindow(stray);
  stray->show();
  DoEvents();
  EXPECT_TRUE(!stray || stray->IsUnloaded());
  EXPECT_TRUE(main->mdiArea->subWindowList().isEmpty());
}

// The area loses count of a window that comes or goes while it sizes another.
TEST_F(ClosingTest, NoEventRunsWhileAWindowIsSized) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
  QPointer<frmHTMLChild> other = Open(QStringLiteral("b.html"), page);
  QTimer::singleShot(0, other, [other] { other->close(); });
  for (const QSize &size : {QSize(500, 300), QSize(600, 400)}) editor->resize(size);
  editor->showMaximized();
  EXPECT_FALSE(other->IsUnloaded());
  DoEvents();
  EXPECT_TRUE(!other || other->IsUnloaded());
}

// On some desktops the toolkit's window menu has the key as well, and then neither takes it.
TEST_F(ClosingTest, OneAloneHasTheKeyThatCloses) {
  const QPointer<frmHTMLChild> editor = Open(QStringLiteral("a.html"), page);
  const QKeySequence key(Qt::CTRL | Qt::Key_F4);
  for (const QAction *entry : editor->systemMenu()->actions()) {
    EXPECT_FALSE(entry->shortcuts().contains(key)) << qPrintable(entry->text());
  }
  dialogs.answers = {Answer::No};  // a key counts as a change
  QTest::keyClick(editor->txthtml, Qt::Key_F4, Qt::ControlModifier);
  EXPECT_TRUE(!editor || editor->IsUnloaded());
}

}  // namespace
