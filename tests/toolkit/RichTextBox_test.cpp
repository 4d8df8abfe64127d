#include "toolkit/RichTextBox.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTemporaryDir>
#include <QTest>

#include "base/TextFile.h"
#include "shared/Files.h"

namespace {

QString Text(const char *latin1) {
  return QString::fromLatin1(latin1);
}

struct RichTextBoxTest : testing::Test {
  RichTextBox box;
};

TEST_F(RichTextBoxTest, PositionsCountBothCharactersOfALineEnd) {
  box.SetText(Text("ab\r\n\ncd\re"));
  EXPECT_EQ(box.Text(), Text("ab\r\n\r\ncd\r\ne"));
  // Every position that stands before a character comes back as it was set; one inside a line end
  // means the end of that line.
  QString seen;
  for (const int position : {0, 2, 3, 4, 5, 6, 8, 10, 11, 99, -5}) {
    box.SetSelStart(position);
    EXPECT_EQ(box.GetLineFromChar(position), box.CaretLine());
    seen += QStringLiteral(" %1:%2").arg(box.CaretLine()).arg(box.SelStart());
  }
  EXPECT_EQ(seen, Text(" 0:0 0:2 0:2 1:4 1:4 2:6 2:8 3:10 3:11 3:11 0:0"));
  EXPECT_EQ(box.LineIndex(2), 6);
  EXPECT_EQ(box.LineIndex(4), -1);
  EXPECT_EQ(box.LineLength(7), 2);
}

TEST_F(RichTextBoxTest, SelectionIsReplacedInOneUndoStepAndEmptyTextTouchesNothing) {
  box.SetText(Text("one\r\ntwo\r\nthree"));
  box.SetSelStart(2);
  box.SetSelLength(5);
  EXPECT_EQ(box.SelText(), Text("e\r\ntw"));
  box.SetSelText(Text("X\r\nY"));
  EXPECT_EQ(box.Text(), Text("onX\r\nYo\r\nthree"));
  EXPECT_EQ(box.SelStart(), 6);
  box.undo();
  EXPECT_EQ(box.Text(), Text("one\r\ntwo\r\nthree"));
  box.SetSelStart(0);
  box.SetSelText({});
  EXPECT_TRUE(box.document()->isRedoAvailable());
}

TEST_F(RichTextBoxTest, WhatTheCodePageLacksArrivesAsAReference) {
  const QString arrow = QString(QChar(0x2192));
  const QString smile = QString::fromUcs4(U"\U0001F600", 1);
  box.SetSelText(arrow + QChar(0x20AC) + QChar(0xA0) + QChar(0x2028) + smile);
  EXPECT_EQ(box.Text(), Text("&#8594;") + QChar(0x20AC) + QChar(0xA0) + Text("\r\n&#128512;"));

  box.SetText({});
  box.SetForeignReplacement(ForeignText::JavaEscape);
  QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, arrow, Qt::NoModifier);
  QGuiApplication::clipboard()->setText(smile);
  box.paste();
  QInputMethodEvent composed;
  composed.setCommitString(arrow + u'\u00FC');
  QCoreApplication::sendEvent(&box, &composed);
  EXPECT_EQ(box.Text(), Text("\\u2192\\ud83d\\ude00\\u2192\xFC"));
}

TEST_F(RichTextBoxTest, ShiftReturnIsALineEndThatTheFileKeeps) {
  QTest::keyClicks(&box, Text("a"));
  QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&box, Text("b"));
  EXPECT_EQ(box.Text(), Text("a\r\nb"));
}

TEST_F(RichTextBoxTest, CopyKeepsNoBreakSpacesAndHasNoCarriageReturns) {
  box.SetText(Text("a\xA0z\r\nc"));
  box.selectAll();
  box.copy();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), Text("a\xA0z\nc"));
}

TEST_F(RichTextBoxTest, EveryByteOfAFileSurvives) {
  QTemporaryDir folder;
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += char(byte);
  }
  bytes += "\r\n" + bytes + "\r\n\r\n";
  const QString path = folder.filePath(Text("all.bin")), copy = path + u'2';
  PutFile(path, bytes);
  ASSERT_TRUE(box.LoadFile(path));
  EXPECT_EQ(box.document()->blockCount(), 4);
  ASSERT_TRUE(box.SaveFile(copy));
  EXPECT_EQ(FileBytes(copy), bytes);
}

TEST_F(RichTextBoxTest, NoEditMakesALineThatIsTooLong) {
  const QString half(TextFile::LongestLine / 2, u'x');
  box.SetText(half + Text("\r\n") + half);
  box.SetSelStart(0);
  box.SetSelText(half + Text("y"));
  box.SetSelText(half);
  EXPECT_EQ(box.LineLength(0), TextFile::LongestLine) << "the limit itself fits";
  QTest::keyClick(&box, 'z');
  EXPECT_EQ(box.LineLength(0), TextFile::LongestLine);
  box.moveCursor(QTextCursor::EndOfBlock);
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(box.document()->blockCount(), 2) << "a deleted line end would join two lines";
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.LineLength(0), TextFile::LongestLine - 1);
}

}  // namespace
