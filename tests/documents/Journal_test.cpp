#include "documents/Journal.h"

#include <QRandomGenerator>

#include "documents/JournalFile.h"
#include "shared/FormsTest.h"
#include "shared/Limits.h"
#include "shared/ScriptedPrograms.h"

using enum Dialogs::Answer;

struct JournalTest : FormsTest {
  // Typing rests, and what is due is written.
  void Rest() {
    ASSERT_TRUE(QMetaObject::invokeMethod(journal->timRest, "timeout"));
    while (journal->IsBusy()) DoEvents();
  }

  // The documents that are in the journal now, line ends as "/".
  QString Kept() const {
    QStringList kept;
    for (const QString &path : JournalFile::In(state)) {
      QFile file(path);
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      const auto document = JournalRecords::Read(file);
      EXPECT_TRUE(document && document->whole);
      if (!document) continue;
      kept << QFileInfo(document->caption).fileName() + ": " + document->text;
    }
    return kept.join('|').replace('\n', '/');
  }

  // The process ends without asking, and the next one starts.
  void StartAgain(const QString &folder, int takenSlots = 0) {
    journal.reset();
    mForms::DestroyAll();
    mPublic::aEditorState = {};
    mPublic::bAppClosing = false;
    for (int slot = 1; slot <= takenSlots; ++slot) mPublic::aEditorState[slot].open = true;
    journal.emplace(state = folder);
    main = Default<mdiMain>();
    main->show();
  }

  QString state = Path("state/tagwright/0123");
  std::optional<Journal> journal{state};
};

TEST_F(JournalTest, OnlyTheUsersWordOrASaveRemovesAText) {
  ScriptedPrograms::Install().toFile = Programs::Application{"viewer"};
  frmHTMLChild *editor = nullptr;
  QMap<QString, std::function<void()>> steps{
      {"type", [&] { Type(editor, "y"); }},
      {"undo", [&] { editor->txthtml->undo(); }},
      {"rest", [&] { Rest(); }},
      {"unsaved", [&] { editor->SetCaption("<unsaved>"); }},
      {"rename", [&] { editor->SetCaption(Path("gone/b.html")); }},
      {"gone", [&] { dialogs.files = {Path("gone/b.html")}; }},
      {"save", &FileCommands::Save},
      {"saveAs", &FileCommands::SaveAs},
      {"preview", [&] { main->picLeft->ButtonUp(10); }},
      {"close", [&] { editor->close(); }},
      {"quit", [&] { main->mnuFileQuit->trigger(); }},
      {"end", [&] { journal->End(); }},
  };
  const std::tuple<const char *, std::deque<Dialogs::Answer>, const char *> cases[] = {
      {"rest undo", {}, ""},
      {"rest save", {Yes}, ""},
      {"save type", {Yes}, "a.html: xyold"},
      {"saveAs", {}, ""},
      {"preview", {Yes}, ""},
      {"unsaved close", {}, ""},
      {"rename close", {Yes}, "b.html: xold"},
      {"rename close close", {Yes, No}, ""},
      // A save that fails clears the mark, so the window closes without a question.
      {"rename save close", {Yes}, "b.html: xold"},
      {"gone saveAs close", {}, "b.html: xold"},
      {"rename preview close", {Yes}, "b.html: xold"},
      {"rename save type close", {Yes, No}, ""},
      {"quit", {Yes, Cancel}, "a.html: xold"},
      {"rename quit", {Yes, Yes}, "b.html: xold"},
      {"end type close", {No}, "a.html: xold"},
  };
  for (const auto &[done, answers, kept] : cases) {
    StartAgain(Path(done));
    editor = Open("a.html", "old");
    Type(editor, "x");
    dialogs.files = {Path("c.html")};
    dialogs.answers = answers;
    for (const QString &step : QString(done).split(' ')) steps[step]();
    EXPECT_TRUE(dialogs.answers.empty()) << done;
    journal->End();
    EXPECT_EQ(Kept(), kept) << done;
  }
  Programs::Set(nullptr);
}

TEST_F(JournalTest, WhatIsEditedWhileTheTextIsCopiedIsKeptToTheLetter) {
  QRandomGenerator random(5);
  const auto below = [&random](int bound) { return int(random.bounded(bound)); };
  frmHTMLChild *editor = Open("a.html", QByteArray("some line\r\n").repeated(12'000));
  RichTextBox &box = *editor->txthtml;
  Type(editor, "x");
  EXPECT_TRUE(journal->timRest->isActive() && journal->timLimit->isActive());
  editor->journal->WriteNext();
  for (QTimer *timer : {journal->timRest, journal->timLimit}) timer->stop();
  while (journal->IsBusy()) DoEvents();
  EXPECT_EQ(Kept(), "") << "put in place only when all of it is written";
  int wholes = 0;
  for (int i = 0; i < 100; ++i) {
    const int what = below(40), end = box.document()->characterCount() - 1;
    const int removed = what == 0 ? end : what < 20 ? below(9) : 0;
    QTextCursor cursor(box.document());
    cursor.setPosition(what % 3 > 0 ? box.textCursor().position() : below(end + 1));
    cursor.setPosition(std::min(cursor.position() + removed, end), QTextCursor::KeepAnchor);
    cursor.insertText(QString("new\n\u20AC").repeated(what == 1 ? 16'000 : below(2)));
    if (what == 2) box.undo();
    for (int pieces = below(5); pieces > 0; --pieces) editor->journal->WriteNext();
    if (editor->journal->IsDue()) continue;
    Rest();
    ++wholes;
    ASSERT_EQ(Kept(), "a.html: " + box.Text().replace("\r\n", "/")) << i;
  }
  EXPECT_GT(wholes, 15);
}

TEST_F(JournalTest, ManyEditsMakeTheLogAnewNotEverLonger) {
  frmHTMLChild *editor = Open("a.html", QByteArray(1000, 'o'));
  for (int i = 0; i <= 2200; ++i) {
    editor->txthtml->SetSelStart(i % 2 * 500);
    editor->txthtml->SetSelText("x");
    if (i % 100 == 0) Rest();
  }
  EXPECT_LT(QFileInfo(JournalFile::In(state).value(0)).size(), 50'000);
  EXPECT_EQ(Kept().count('x'), 2201);
}

TEST_F(JournalTest, LostDocumentsOpenAsChangedOnesAndStayUntilTheyAreWrittenAnew) {
  for (const char *name : {"a", "b", "c"}) Type(Open(name, "\r\n"), name);
  Open("not touched", "d");
  SetCommandLine(Write("named", "e"));
  StartAgain(state, mPublic::LastSlot - 3);  // so that one document finds no slot
  EXPECT_EQ(mEditors::Active()->Caption(), Path("named")) << "stands in front";
  EXPECT_EQ(JournalFile::In(state).size(), 3) << "a second kill finds them again";
  dialogs.answers = {No, No};
  for (const auto &[back, name] : {std::pair{1, "b"}, {2, "a"}}) {
    frmHTMLChild *editor = mEditors::aEditorWindow[mPublic::LastSlot - back];
    EXPECT_EQ(editor->Caption() + editor->txthtml->Text(), Path(name) + name + "\r\n");
    editor->close();
  }
  EXPECT_TRUE(dialogs.answers.empty());
  StartAgain(state);
  EXPECT_EQ(mEditors::Active()->Caption(), Path("c"));
  EXPECT_EQ(main->trwOpenFiles->NodeCount(), 5 + 1);
}

TEST_F(JournalTest, OnAFullDiskTheLastTextStaysAndIsTriedAgain) {
  frmHTMLChild *editor = Open("a.html", "old");
  Type(editor, "x");
  Rest();
  {
    const FullDisk full(20'000);
    editor->txthtml->SetSelText(QString(30'000, 'y'));
    for (int attempt = 0; attempt < 2; ++attempt) {
      ASSERT_TRUE(QMetaObject::invokeMethod(journal->timRest, "timeout"));
      while (!journal->timLimit->isActive()) DoEvents();
    }
    EXPECT_EQ(Kept(), "a.html: xold");
  }
  Rest();
  EXPECT_EQ(Kept().count('y'), 30'000);
}
