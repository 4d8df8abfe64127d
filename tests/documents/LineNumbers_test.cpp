#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include "documents/TextOptions.h"
#include "shared/FormsTest.h"

namespace {

class LineNumbersTest : public FormsTest {
 protected:
  LineNumbersTest() {
    QByteArray lines;
    for (int line = 1; line <= 400; ++line) lines += QByteArray::number(line) + "\r\n";
    editor = Open(QStringLiteral("lines.html"), lines);
    text = editor->txthtml;
    numbers = editor->rtfLineNumber;
  }

  // What stands in front of each visible line, as the user sees it: the number whose row is at
  // exactly the line's height.
  void ExpectInStep(const char *when) {
    const auto top = [](const RichTextBox &box, const QTextBlock &block) {
      return box.viewport()->mapTo(box.parentWidget(),
                                   box.cursorRect(QTextCursor(block)).topLeft());
    };
    QTextBlock line = text->document()->findBlockByNumber(text->FirstVisibleLine());
    for (int row = 0; row < 8; ++row, line = line.next()) {
      const QTextBlock number = numbers->document()->findBlockByNumber(row);
      EXPECT_EQ(number.text(), line.text() + u':') << when;
      EXPECT_EQ(top(*numbers, number).y(), top(*text, line).y()) << when << ", row " << row;
    }
  }

  void MoveMouseOverText() {
    for (const int x : {40, 50}) {
      QTest::mouseMove(text->viewport(), QPoint(x, 50));
      DoEvents();
    }
  }

  int Count() { return numbers->document()->blockCount() - 1; }

  frmHTMLChild *editor;
  RichTextBox *text;
  RichTextBox *numbers;
};

TEST_F(LineNumbersTest, StandOnTheirLinesToThePixelAtEverySize) {
  ExpectInStep("at first");
  for (const int size : {5, 5, 6, 6, 6}) {  // larger twice, smaller three times
    TextOptions::Press(*main->picHtmlTextOptions, size);
    ExpectInStep("after a change of size");
    text->verticalScrollBar()->setValue(123);
    MoveMouseOverText();
    ExpectInStep("scrolled");
  }
  EXPECT_EQ(text->font().pointSizeF(), 10 - 1.25);
  editor->resize(editor->width() + 30, editor->height() + 30);
  DoEvents();
  ExpectInStep("after a resize");
}

TEST_F(LineNumbersTest, FollowKeysAndTheMouseButNotTheScrollBar) {
  QTest::keyClick(text, Qt::Key_PageDown);
  ExpectInStep("after a page down");
  EXPECT_EQ(Count(), 70) << "fewer behind a key";
  text->verticalScrollBar()->setValue(200);
  EXPECT_NE(numbers->document()->firstBlock().text(), QStringLiteral("201:"));
  MoveMouseOverText();
  ExpectInStep("after the mouse has moved over the text");
  EXPECT_EQ(Count(), 200);
  EXPECT_EQ(numbers->Text().right(2), QStringLiteral("\r\n"));
}

TEST_F(LineNumbersTest, TheirBoxNeitherScrollsNorTakesTheKeyboard) {
  const QPoint place(20, 50);
  QWheelEvent wheel(place, numbers->mapToGlobal(place), {}, QPoint(0, -120), {}, {}, {}, false);
  QCoreApplication::sendEvent(numbers->viewport(), &wheel);
  EXPECT_GT(text->FirstVisibleLine(), 0);
  EXPECT_EQ(numbers->verticalScrollBar()->value(), 0);
  QTest::mouseClick(numbers->viewport(), Qt::LeftButton, {}, place);
  QTest::keyClick(numbers, 'x');
  EXPECT_FALSE(numbers->hasFocus());
  EXPECT_EQ(numbers->document()->firstBlock().text(), QStringLiteral("1:"));
}

}  // namespace
