#include "toolkit/RichTextBox.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include "base/TextFile.h"

namespace {

QString Text(const char *latin1) {
  return QString::fromLatin1(latin1);
}

class RichTextBoxTest : public testing::Test {
 protected:
  RichTextBoxTest() { box.show(); }
  RichTextBox box;
};

TEST_F(RichTextBoxTest, PositionsCountBothCharactersOfALineEnd) {
  box.SetText(Text("ab\r\n\ncd\re"));
  EXPECT_EQ(box.Text(), Text("ab\r\n\r\ncd\r\ne"));
  EXPECT_EQ(box.TextLength(), 11);
  // Every position that stands before a character comes back as it was set; one inside a line end
  // means the end of that line.
  for (const auto &[set, got, line] : {std::tuple{0, 0, 0},
                                       {2, 2, 0},
                                       {3, 2, 0},
                                       {4, 4, 1},
                                       {5, 4, 1},
                                       {6, 6, 2},
                                       {8, 8, 2},
                                       {10, 10, 3},
                                       {11, 11, 3},
                                       {99, 11, 3},
                                       {-5, 0, 0}}) {
    box.SetSelStart(set);
    EXPECT_EQ(box.SelStart(), got) << set;
    EXPECT_EQ(box.GetLineFromChar(set), line) << set;
    EXPECT_EQ(box.CaretLine(), line) << set;
  }
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
  EXPECT_EQ(box.SelLength(), 0);
  box.undo();
  EXPECT_EQ(box.Text(), Text("one\r\ntwo\r\nthree"));
  box.SetSelStart(0);
  box.SetSelText({});
  EXPECT_TRUE(box.document()->isRedoAvailable());
  box.SetSelStart(5);
  EXPECT_EQ(box.SelLength(), 0) << "setting the start drops the selection";
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
  EXPECT_EQ(box.LineIndex(1), 3);
  QTest::keyClick(&box, 'q', Qt::AltModifier);
  EXPECT_EQ(box.Text(), Text("a\r\nb")) << "a letter with Alt is a menu's";
}

TEST_F(RichTextBoxTest, CopyKeepsNoBreakSpacesAndHasNoCarriageReturns) {
  box.SetText(Text("a\xA0z\r\nc"));
  box.selectAll();
  box.copy();
  const QMimeData *data = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(data->text(), Text("a\xA0z\nc"));
  EXPECT_FALSE(data->hasHtml());
}

TEST_F(RichTextBoxTest, EveryByteOfAFileSurvives) {
  QTemporaryDir folder;
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += char(byte);
  }
  bytes += "\r\n" + bytes + "\r\n\r\n";
  const QString path = folder.filePath(Text("all.bin"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  ASSERT_TRUE(box.LoadFile(path));
  EXPECT_EQ(box.document()->blockCount(), 4);
  const QString copy = folder.filePath(Text("copy.bin"));
  ASSERT_TRUE(box.SaveFile(copy));
  QFile written(copy);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll(), bytes);
  EXPECT_FALSE(box.LoadFile(folder.path()));
  EXPECT_FALSE(box.LoadFile(Text("/dev/zero")));
  EXPECT_EQ(box.document()->blockCount(), 4) << "a file that can't be loaded leaves the text";
}

TEST_F(RichTextBoxTest, NoEditMakesALineThatIsTooLong) {
  const QString half(TextFile::LongestLine / 2, u'x');
  box.SetText(half + Text("\r\n") + half);
  box.SetSelStart(0);
  box.SetSelText(half + Text("y"));
  EXPECT_EQ(box.LineLength(0), half.size());
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

TEST_F(RichTextBoxTest, SelectionCannotBeDraggedOut) {
  box.SetText(Text("some words"));
  box.selectAll();
  QTest::mousePress(box.viewport(), Qt::LeftButton, {}, box.cursorRect().center());
  EXPECT_FALSE(box.textCursor().hasSelection());
  EXPECT_FALSE(box.acceptDrops() || box.viewport()->acceptDrops());
}

}  // namespace
