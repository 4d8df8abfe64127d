#include "documents/Journal.h"

#include <QDir>
#include <QRandomGenerator>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <optional>

#include "documents/Insertion.h"
#include "documents/JournalFile.h"
#include "shared/FormsTest.h"
#include "shared/Limits.h"
#include "shared/ScriptedPrograms.h"

namespace {

using Answer = Dialogs::Answer;

const QString unsaved = QStringLiteral("<unsaved>");

class JournalTest : public FormsTest {
 protected:
  ~JournalTest() override { Programs::Set(nullptr); }

  frmHTMLChild *OpenUnsaved(const QString &text) {
    frmHTMLChild *editor = mEditors::OpenWindow();
    editor->SetCaption(unsaved);
    editor->txthtml->SetText(text);
    return editor;
  }

  // Typing rests, and what is due is written.
  void Rest() {
    ASSERT_TRUE(QMetaObject::invokeMethod(journal->timRest, "timeout"));
    while (journal->IsBusy()) DoEvents();
  }

  // What has been handed to the journal's thread is done.
  void WaitForThread() {
    std::atomic<bool> done = false;
    journal->Do(journal->NewFile(), [&done](JournalFile &) { done = true; });
    while (!done) QThread::yieldCurrentThread();
  }

  // A copy of the folder as it is now, which is what a kill would leave.
  QString Left() {
    const QString copy = Path(QStringLiteral("left%1").arg(++copies_));
    QDir().mkpath(copy);
    for (const QString &path : JournalFile::In(state)) {
      QFile::copy(path, mFolders::Join(copy, QFileInfo(path).fileName()));
    }
    return copy;
  }

  // "name: text" of each document that is in the journal now, line ends as "/".
  QStringList Kept() {
    QStringList kept;
    for (const QString &path : JournalFile::In(Left())) {
      const auto found = JournalFile::TakeOver(path);
      if (!found) continue;
      const auto &[caption, text, whole] = found->document;
      EXPECT_TRUE(whole);
      kept << QFileInfo(caption).fileName() + QStringLiteral(": ") +
                  QString(text).replace(u'\n', u'/');
    }
    return kept;
  }

  // The process is killed, and the next one starts, with a folder that the last one has left.
  void StartAgain(const QString &left, int slotsToLeave = 0) {
    for (const auto &editor : mEditors::aEditorWindow) delete editor.data();
    mPublic::aEditorState = {};
    journal.reset();
    journal.emplace(left);
    journal->OpenLostDocuments(slotsToLeave);
  }

  static QStringList Open() {
    QStringList documents;
    for (const auto &editor : mEditors::aEditorWindow) {
      if (editor && mPublic::aEditorState[editor->Slot()].open) {
        documents << editor->Caption() + QStringLiteral(": ") + editor->txthtml->Text();
      }
    }
    return documents;
  }
  using FormsTest::Open;

  const QString state = Path(QStringLiteral("state/tagwright/0123"));
  std::optional<Journal> journal{state};

 private:
  int copies_ = 0;
};

TEST_F(JournalTest, UnsavedTextIsKeptHoweverItCameAndNothingElseIs) {
  frmHTMLChild *page = Open(QStringLiteral("a.html"), "one\r\n\xA0two\r\n");
  frmHTMLChild *blank = OpenUnsaved(QStringLiteral("<template>"));
  QTest::keyClick(blank->txthtml, Qt::Key_Right);
  Rest();
  EXPECT_FALSE(QFile::exists(state)) << "a mark without a change of text keeps nothing";

  Type(page, QStringLiteral("x"));
  EXPECT_TRUE(journal->timRest->isActive());
  EXPECT_TRUE(journal->timLimit->isActive());
  EXPECT_TRUE(journal->timLimit->interval() < 10'000);
  blank->GotFocus();
  Insertion::ReplaceSelection(QStringLiteral("\r\n<b>"));
  Rest();
  EXPECT_EQ(Kept(), (QStringList{QStringLiteral("a.html: xone/\u00A0two/"),
                                 QStringLiteral("<unsaved>: </<b>template>")}));
  EXPECT_EQ(Read(QStringLiteral("a.html")), "one\r\n\xA0two\r\n");

  page->txthtml->undo();
  blank->txthtml->SetSelText(QStringLiteral("y"));
  Rest();
  EXPECT_EQ(Kept(), QStringList{QStringLiteral("<unsaved>: </<b>ytemplate>")})
      << "a text that is its file's again is gone";
  page->txthtml->redo();
  Rest();
  EXPECT_EQ(Kept().size(), 2);
  page->GotFocus();
  dialogs.answers = {Answer::Yes};
  FileCommands::Save();
  WaitForThread();
  EXPECT_EQ(Kept().size(), 1) << "a saved text is gone at once";
}

TEST_F(JournalTest, OnlyTheUsersWordOrASaveRemovesAText) {
  const QString gone = Path(QStringLiteral("gone/b.html"));
  const auto rename = [&gone](frmHTMLChild *editor) { editor->SetCaption(gone); };
  const auto save = [this](frmHTMLChild *) {
    dialogs.answers.push_front(Answer::Yes);
    FileCommands::Save();
  };
  const auto saveInto = [this](void (*command)(), const QString &name) {
    return [this, command, name](frmHTMLChild *) {
      dialogs.files = {Path(name)};
      command();
    };
  };
  const auto saveAs = [&](const char *name) {
    return saveInto(&FileCommands::SaveAs, QLatin1String(name));
  };
  const auto saveAll = [&](const char *name) {
    return saveInto(&FileCommands::SaveAll, QLatin1String(name));
  };
  const auto preview = [this](frmHTMLChild *) {
    ScriptedPrograms::Install().toFile = Programs::Application{QStringLiteral("viewer")};
    main->picLeft->ButtonUp(10);
  };
  const auto type = [this](frmHTMLChild *editor) { Type(editor, QStringLiteral("y")); };
  const auto close = [](frmHTMLChild *editor) { editor->close(); };
  const auto closeAll = [this](frmHTMLChild *) { main->mnuWindowCloseAll->trigger(); };
  const auto quit = [this](frmHTMLChild *) { main->mnuFileQuit->trigger(); };
  const auto closeMain = [this](frmHTMLChild *) { main->close(); };

  const QString none, a = QStringLiteral("a.html: xold"), b = QStringLiteral("b.html: xold");
  struct Case {
    const char *what;
    std::vector<std::function<void(frmHTMLChild *)>> steps;
    std::deque<Answer> answers;
    QString kept;
  };
  for (const Case &c : {
           Case{"saved", {save}, {}, none},
           Case{"saved, then typed in", {save, type}, {}, QStringLiteral("a.html: xyold")},
           Case{"not saved", {[](frmHTMLChild *) { FileCommands::Save(); }}, {Answer::No}, a},
           Case{"saved elsewhere", {saveAs("b.html")}, {}, none},
           Case{"saved with all", {saveAll("b.html")}, {Answer::Yes}, none},
           Case{"saved for the preview", {preview}, {Answer::Yes}, none},
           Case{"closed with Cancel", {close}, {Answer::Cancel}, a},
           Case{"closed with No", {close}, {Answer::No}, none},
           Case{"closed, never saved",
                {[](frmHTMLChild *editor) { editor->SetCaption(unsaved); }, close},
                {},
                none},
           Case{"closed with Yes", {close}, {Answer::Yes}, none},
           Case{"all closed with No", {closeAll}, {Answer::No}, none},
           Case{"closed with Yes, unwritable", {rename, close}, {Answer::Yes}, b},
           Case{"then closed with No", {rename, close, close}, {Answer::Yes, Answer::No}, none},
           // A save that fails clears the mark, so the window closes without a question.
           Case{"unwritable", {rename, save}, {}, b},
           Case{"unwritable, closed", {rename, save, close}, {}, b},
           Case{"unwritable elsewhere", {saveAs("gone/b.html"), close}, {}, b},
           Case{"unwritable with all", {saveAll("gone/b.html"), close}, {Answer::Yes}, b},
           Case{"unwritable for the preview", {rename, preview, close}, {Answer::Yes}, b},
           Case{"unwritable, typed in, closed with No",
                {rename, save, type, close},
                {Answer::No},
                none},
           Case{"unwritable, then saved", {rename, save, saveAs("c"), close}, {}, none},
           Case{"quit with Cancel", {quit}, {Answer::Yes, Answer::Cancel}, a},
           Case{"quit with No", {quit}, {Answer::Yes, Answer::No}, none},
           Case{"quit with Yes", {quit}, {Answer::Yes, Answer::Yes}, none},
           Case{"quit with Yes, unwritable", {rename, quit}, {Answer::Yes, Answer::Yes}, b},
           Case{"no quit", {quit}, {Answer::No}, a},
           Case{"main window closed with Cancel", {closeMain}, {Answer::Yes, Answer::Cancel}, a},
           Case{"unwritable, main window closed", {rename, save, closeMain}, {Answer::Yes}, b},
       }) {
    SCOPED_TRACE(c.what);
    StartAgain(Path(QLatin1String(c.what)));
    frmHTMLChild *editor = Open(QStringLiteral("a.html"), "old");
    Type(editor, QStringLiteral("x"));
    dialogs.answers = c.answers;
    for (const auto &step : c.steps) step(editor);
    EXPECT_TRUE(dialogs.answers.empty());
    journal->End();
    StartAgain(Path(QLatin1String(c.what)));
    QStringList names;
    for (const QString &document : Open()) names << document.section(u'/', -1);
    EXPECT_EQ(names.join(u'\n'), c.kept);
    mPublic::bAppClosing = false;
    if (main && !main->IsUnloaded()) continue;
    mForms::DestroyAll();
    main = Default<mdiMain>();
    main->show();
    DoEvents();
  }
}

TEST_F(JournalTest, WhatIsEditedWhileTheTextIsCopiedIsKeptToTheLetter) {
  QByteArray page;
  while (page.size() < 200'000) page += QByteArray::number(page.size()) + " line\r\n";
  QRandomGenerator random(5);
  const auto below = [&random](int bound) { return int(random.bounded(bound)); };
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), page);
  RichTextBox &box = *editor->txthtml;
  int wholes = 0;
  for (int i = 0; i < 150; ++i) {
    const int length = box.document()->characterCount() - 1;
    QTextCursor cursor(box.document());
    cursor.setPosition(below(length + 1));
    const int what = below(40);
    if (what < 20)
      cursor.setPosition(std::min(cursor.position() + below(9), length), QTextCursor::KeepAnchor);
    if (what == 38) cursor.setPosition(below(length + 1), QTextCursor::KeepAnchor);
    if (what == 39) {
      box.undo();
    } else {
      const int size = what == 37 ? 150'000 : below(6);
      cursor.insertText(QStringLiteral("new\n\u20AC").repeated(size / 5 + 1).left(size));
    }
    for (int pieces = below(5); pieces > 0 && editor->journal->IsDue(); --pieces) {
      editor->journal->WriteNext();
    }
    if (editor->journal->IsDue()) continue;
    Rest();
    ++wholes;
    ASSERT_EQ(Kept(), QStringList{QStringLiteral("a.html: ") +
                                  box.document()->toPlainText().replace(u'\n', u'/')})
        << i;
  }
  EXPECT_GT(wholes, 15);
  box.selectAll();
  box.SetSelText({});
  Rest();
  EXPECT_EQ(Kept(), QStringList{QStringLiteral("a.html: ")});
}

TEST_F(JournalTest, ALargeTextIsPutInPlaceOnlyWhenAllOfItIsWritten) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), QByteArray("line\r\n").repeated(50'000));
  const auto writePart = [&] {
    for (int pieces = 0; pieces < 3; ++pieces) editor->journal->WriteNext();
    EXPECT_TRUE(editor->journal->IsDue());
    WaitForThread();
  };
  Type(editor, QStringLiteral("x"));
  writePart();
  EXPECT_TRUE(Kept().isEmpty());
  Rest();
  const QStringList before = Kept();
  EXPECT_EQ(before.value(0).size(), 8 + 1 + 250'000);
  editor->txthtml->SetSelText(QString(150'000, u'y'));
  writePart();
  EXPECT_EQ(Kept(), before);
  Rest();
  EXPECT_EQ(Kept().value(0).size(), before[0].size() + 150'000);
}

TEST_F(JournalTest, ManyEditsMakeTheLogAnewNotEverLonger) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), QByteArray(1000, 'o'));
  for (int i = 0; i < 2200; ++i) {
    editor->txthtml->SetSelStart(i % 2 * 500);
    editor->txthtml->SetSelText(QStringLiteral("x"));
    if (i % 100 == 0) Rest();
  }
  Rest();
  EXPECT_LT(QFileInfo(JournalFile::In(state).value(0)).size(), 50'000);
  EXPECT_EQ(Kept().value(0).count(u'x'), 2200);
}

TEST_F(JournalTest, LostDocumentsOpenAsChangedOnesAndStayUntilTheyAreWrittenAnew) {
  frmHTMLChild *page = Open(QStringLiteral("a.html"), "one\r\n");
  Type(page, QStringLiteral("x"));
  Type(OpenUnsaved({}), QStringLiteral("y"));
  Open(QStringLiteral("b.html"), "not touched");
  Rest();
  const QString left = Left();
  PutFile(mFolders::Join(left, QStringLiteral("foreign.journal")), "foreign");
  const QStringList lost{page->Caption() + QStringLiteral(": xone\r\n"),
                         QStringLiteral("<unsaved>: y")};

  StartAgain(left);
  EXPECT_EQ(Open(), lost);
  EXPECT_TRUE(mPublic::aEditorState[1].changed && mPublic::aEditorState[2].changed);
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_EQ(Read(QStringLiteral("a.html")), "one\r\n");
  EXPECT_EQ(main->trwOpenFiles->NodeCount(), 5 + 2);
  EXPECT_EQ(JournalFile::In(left).size(), 2) << "a second kill finds them again";
  EXPECT_TRUE(QFile::exists(mFolders::Join(left, QStringLiteral("foreign.journal.damaged"))));
  journal->OpenLostDocuments(0);
  EXPECT_EQ(Open().size(), 2) << "only once";

  Type(mEditors::aEditorWindow[1], QStringLiteral("z"));
  dialogs.answers = {Answer::No};
  mEditors::aEditorWindow[2]->close();
  mEditors::aEditorWindow[1]->close();
  journal->WriteNow();
  EXPECT_TRUE(JournalFile::In(left).isEmpty());
}

TEST_F(JournalTest, DocumentsThatFindNoSlotWaitForTheNextStart) {
  for (int i = 0; i < 3; ++i) Type(OpenUnsaved({}), QString::number(i));
  Rest();
  const QString left = Left();
  StartAgain(left, mPublic::LastSlot - 2);
  EXPECT_EQ(Open(), (QStringList{QStringLiteral("<unsaved>: 0"), QStringLiteral("<unsaved>: 1")}));
  for (int slot : {1, 2}) mEditors::aEditorWindow[slot]->close();
  StartAgain(left);
  EXPECT_EQ(Open(), QStringList{QStringLiteral("<unsaved>: 2")});
}

TEST_F(JournalTest, TheFileThatTheStartNamesStandsInFront) {
  Type(OpenUnsaved({}), QStringLiteral("x"));
  Rest();
  const QString left = Left();
  StartAgain(Path(QStringLiteral("empty")));
  mForms::DestroyAll();
  journal.reset();
  journal.emplace(left);
  SetCommandLine(Write(QStringLiteral("b.html"), "b"));
  main = Default<mdiMain>();
  main->show();
  EXPECT_EQ(Open().size(), 2);
  ASSERT_TRUE(mEditors::Active());
  EXPECT_EQ(mEditors::Active()->Caption(), Path(QStringLiteral("b.html")));
}

TEST_F(JournalTest, OnAFullDiskTheLastTextStaysAndIsTriedAgain) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "old");
  Type(editor, QStringLiteral("x"));
  Rest();
  {
    const FullDisk full(20'000);
    editor->txthtml->SetSelText(QString(30'000, u'y'));
    for (QTimer *timer : {journal->timRest, journal->timLimit}) {
      ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
      while (!journal->timLimit->isActive()) DoEvents();
    }
    EXPECT_EQ(Kept(), QStringList{QStringLiteral("a.html: xold")});
  }
  ASSERT_TRUE(QMetaObject::invokeMethod(journal->timLimit, "timeout"));
  while (journal->IsBusy()) DoEvents();
  EXPECT_EQ(Kept().value(0).count(u'y'), 30'000);
}

TEST_F(JournalTest, AfterTheEndNothingChangesTheJournal) {
  frmHTMLChild *editor = OpenUnsaved({});
  Type(editor, QStringLiteral("x"));
  journal->End();
  Type(editor, QStringLiteral("y"));
  editor->close();
  journal.reset();
  EXPECT_EQ(Kept(), QStringList{QStringLiteral("<unsaved>: x")});
}

}  // namespace
