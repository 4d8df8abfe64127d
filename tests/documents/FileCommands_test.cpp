#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "shared/FormsTest.h"

namespace {

using Answer = Dialogs::Answer;
using FileCommandsTest = FormsTest;

TEST_F(FileCommandsTest, SaveTrimsAndAddsOneLineEndSoTheLengthStays) {
  struct Case {
    QByteArray before;
    QByteArray after;
  };
  // Every code page byte comes back; lone line ends become CR LF.
  for (const Case &c :
       {Case{"  <p>\x80\x81\x9F\xA0</p>  ", "<p>\x80\x81\x9F\xA0</p>\r\n"},
        Case{"a\nb\rc\r\n", "a\r\nb\r\nc\r\n"}, Case{"a\r\n\r\n\r\n", "a\r\n\r\n\r\n"},
        Case{"   ", "\r\n"}, Case{"", "\r\n"}, Case{"a\tb \r\n", "a\tb \r\n"},
        Case{QByteArray("n\0l", 3), QByteArray("n\0l\r\n", 5)}}) {
    frmHTMLChild *editor = Open(QStringLiteral("a.txt"), c.before);
    for (int save = 0; save < 2; ++save) {
      dialogs.answers = {Answer::Yes};
      FileCommands::Save();
      EXPECT_EQ(Read(QStringLiteral("a.txt")), c.after);
    }
    editor->close();
  }
}

TEST_F(FileCommandsTest, SaveAsksEveryTimeAndNamesAnUnsavedDocument) {
  FileCommands::Save();
  EXPECT_TRUE(dialogs.messages.isEmpty()) << "no document, no question";
  frmHTMLChild *editor = mEditors::OpenWindow();
  editor->SetCaption(QStringLiteral("<unsaved>"));
  Type(editor, QStringLiteral("text"));
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    dialogs.answers = {answer};
    FileCommands::Save();
  }
  EXPECT_TRUE(dialogs.requests.isEmpty());
  dialogs.answers = {Answer::Yes, Answer::Yes};
  dialogs.files = {std::nullopt, Path(QStringLiteral("new.html"))};
  FileCommands::Save();
  EXPECT_TRUE(mPublic::aEditorState[1].changed) << "cancelled";
  FileCommands::Save();
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(editor->Caption(), Path(QStringLiteral("new.html")));
  EXPECT_EQ(Read(QStringLiteral("new.html")), "text\r\n");
  EXPECT_EQ(main->trwOpenFiles->NodeByKey(QStringLiteral("aaaa"))->childCount(), 1);
}

TEST_F(FileCommandsTest, SaveAsWritesTheTextAsItStands) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "  a\r\nb  ");
  dialogs.files = {Path(QStringLiteral("b.java"))};
  FileCommands::SaveAs();
  EXPECT_EQ(dialogs.requests.takeLast().fileName, Path(QStringLiteral("a.html")));
  EXPECT_EQ(Read(QStringLiteral("b.java")), "  a\r\nb  ");
  EXPECT_EQ(editor->Caption(), Path(QStringLiteral("b.java")));
  editor->SetCaption(QStringLiteral("<unsaved>"));
  dialogs.files = {std::nullopt};
  FileCommands::SaveAs();
  EXPECT_TRUE(dialogs.requests.takeLast().fileName.isEmpty());
  EXPECT_EQ(editor->Caption(), QStringLiteral("<unsaved>"));
}

TEST_F(FileCommandsTest, SaveAllGoesThroughEveryDocumentWithADialogEach) {
  for (const char *name : {"a.html", "b.html", "c.html", "d.html"}) {
    Open(QLatin1String(name), name[0] == 'c' ? QByteArray("   ") : QByteArray(name));
  }
  dialogs.answers = {Answer::Yes, Answer::Cancel, Answer::Yes};
  dialogs.files = {std::nullopt, Path(QStringLiteral("e.html"))};
  FileCommands::SaveAll();
  EXPECT_EQ(dialogs.messages.size(), 3) << "the blank one is passed over";
  EXPECT_EQ(mEditors::aEditorWindow[1]->Caption(), Path(QStringLiteral("a.html")));
  EXPECT_EQ(mEditors::aEditorWindow[4]->Caption(), Path(QStringLiteral("e.html")));
  EXPECT_EQ(Read(QStringLiteral("e.html")), "d.html\r\n");
}

TEST_F(FileCommandsTest, WhatCannotBeReadStaysOut) {
  const auto tooLong = Write(QStringLiteral("long"), QByteArray(4'000'001, 'x'));
  for (const QString &path :
       {Path(QStringLiteral("none.html")), folder.path(), tooLong, QStringLiteral("/dev/zero"),
        QStringLiteral("/dev/null"), QString()}) {
    FileCommands::LoadFileIntoNewEditor(path);
    EXPECT_FALSE(mPublic::AnyEditorOpen()) << qPrintable(path);
    EXPECT_TRUE(main->mdiArea->subWindowList().isEmpty());
  }
}

TEST_F(FileCommandsTest, TheHundredAndFirstDocumentIsRefusedSilently) {
  for (int i = 0; i < mPublic::LastSlot; ++i) Open(QStringLiteral("same.html"), "x");
  EXPECT_EQ(mPublic::CountOpenEditors(), 100);
  dialogs.files = {Path(QStringLiteral("same.html"))};
  FileCommands::Open();
  EXPECT_EQ(mPublic::CountOpenEditors(), 100);
  EXPECT_EQ(main->mdiArea->subWindowList().size(), 100);
}

TEST_F(FileCommandsTest, OpenAndDropTakeOneFile) {
  Write(QStringLiteral("a.html"), "a");
  Write(QStringLiteral("b.java"), "b");
  dialogs.files = {std::nullopt, Path(QStringLiteral("a.html"))};
  FileCommands::Open();
  EXPECT_FALSE(mPublic::AnyEditorOpen()) << "cancelled";
  FileCommands::Open();
  EXPECT_EQ(dialogs.requests.last().filter,
            QStringLiteral("*.html|*.html|*.htm|*.htm|*.html and *.htm|*.html;*.htm|*.java|*.java|"
                           "All files *.*|*.*"));
  EXPECT_EQ(mEditors::Active()->txthtml->Text(), QStringLiteral("a"));

  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(Path(QStringLiteral("b.java"))),
                 QUrl::fromLocalFile(Path(QStringLiteral("a.html")))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(main, &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(main, &drop);
  EXPECT_EQ(mPublic::CountOpenEditors(), 2);
  EXPECT_EQ(mEditors::Active()->Caption(), Path(QStringLiteral("b.java")));
}

TEST_F(FileCommandsTest, AFailedWriteLosesNothingOfTheText) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "a");
  Type(editor, QStringLiteral("x"));
  editor->SetCaption(Path(QStringLiteral("gone/a.html")));
  dialogs.answers = {Answer::Yes};
  FileCommands::Save();
  EXPECT_EQ(editor->txthtml->Text(), QStringLiteral("xa"));
  EXPECT_FALSE(mPublic::aEditorState[1].changed) << "cleared although nothing was written";
}

}  // namespace
