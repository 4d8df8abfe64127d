#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QWheelEvent>

#include "documents/TextOptions.h"
#include "shared/FormsTest.h"

struct EditorEventsTest : FormsTest {
  ~EditorEventsTest() override { mPublic::TagHighlight = {}; }

  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(text, Qt::Key(key), modifiers);
  }
  void CaretTo(int line, int column = 0) { text->SetSelStart(text->LineIndex(line) + column); }
  void Press(int option, int times) {
    for (int i = 0; i < times; ++i) TextOptions::Press(*main->picHtmlTextOptions, option);
  }

  // The caret has come from that line.
  void Leave(int line) {
    editor->lineOfLastPass = line;
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, {});
    QCoreApplication::sendEvent(text, &release);
  }

  // What is seen in colours: line, column, length and colour of each piece.
  QString Seen() {
    QString seen;
    for (QTextBlock line = text->document()->begin(); line.isValid(); line = line.next()) {
      for (const auto &range : line.layout()->formats()) {
        seen += QString("%1:%2+%3").arg(line.blockNumber()).arg(range.start).arg(range.length) +
                range.format.foreground().color().name() + ' ';
      }
    }
    return seen;
  }

  // In front of each visible line stands its number, exactly at the line's height.
  void ExpectNumbersInStep(const char *when) {
    const auto top = [](const RichTextBox &box, const QTextBlock &block) {
      return box.viewport()->mapTo(box.window(), box.cursorRect(QTextCursor(block)).topLeft()).y();
    };
    QTextBlock line = text->document()->findBlockByNumber(text->FirstVisibleLine());
    QTextBlock number = numbers->document()->begin();
    for (int row = 0; row < 8; ++row, line = line.next(), number = number.next()) {
      EXPECT_EQ(number.text(), line.text() + ':') << when;
      EXPECT_EQ(top(*numbers, number), top(*text, line)) << when << ", row " << row;
    }
  }

  QPointer<frmHTMLChild> editor = Open("page.html", "");
  RichTextBox *text = editor->txthtml, *numbers = editor->rtfLineNumber;
};

const char *const page =
    "<html>\n<head><TITLE>t</TITLE>\n<meta>\n</head>\n<BODY>\n<b>x</b> a > b < c\n"
    "x <a <b> <i\n<u>\n</body><p>\n</html>";
const char *const bare = "<a>\n<b>\n<c>\n<d>\n<e>";

TEST_F(EditorEventsTest, TheLineLeftIsColouredByItsPlaceAndTheSwitches) {
  // The caret's line, the one left, switches of borders, header and body.
  const std::tuple<const char *, int, int, const char *, const char *> cases[] = {
      {page, 8, 5, "100", ""},
      {page, 8, 5, "010", "5:1+2#808080 5:5+3#808080 "},
      {page, 8, 3, "010", "3:1+6#008000 "},
      {page, 8, 4, "111", "4:1+5#000080 "},
      {page, 8, 9, "110", "9:1+6#800000 "},
      {page, 9, 8, "001", "8:1+6#000080 8:8+2#000080 "},
      {page, 8, 6, "001", "6:3+5#000080 "},
      {page, 0, 5, "110", "0:1+5#800000 "},  // the first two lines are the caret's own
      {page, 1, 5, "010", "1:1+5#008000 1:7+6#008000 1:15+7#008000 "},
      {bare, 2, 3, "110", "3:1+2#008000 "},  // without a head the first four lines count for it
      {bare, 2, 4, "110", "4:1+2#800000 "},
      {bare, 0, 0, "110", "0:1+2#808080 "},
  };
  for (const auto &[all, caret, left, switches, seen] : cases) {
    text->SetText(all);
    for (int i = 1; i <= 3; ++i) mPublic::TagHighlight[i] = quint8(switches[i - 1] - '0');
    CaretTo(caret);
    Leave(left);
    EXPECT_EQ(Seen(), seen) << caret << ' ' << left << ' ' << switches;
  }
}

TEST_F(EditorEventsTest, SomeKeysLeaveALine) {
  mPublic::TagHighlight = {0, 1, 1, 1};
  QString leaving;
  for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Enter, Qt::Key_End,
                        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Right, Qt::Key_Home, Qt::Key_A}) {
    text->SetText(page);
    CaretTo(5, 9);
    editor->lineOfLastPass = 5;
    Key(key);
    if (!Seen().isEmpty()) leaving += QKeySequence(key).toString() + ' ';
  }
  EXPECT_EQ(leaving, "Down Up Return Enter End PgUp PgDown ");
}

TEST_F(EditorEventsTest, APassLeavesCaretViewAndHistoryAlone) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  text->SetText(page + QString("\n<p>").repeated(200));
  Type(editor, "q");
  text->undo();
  CaretTo(150);
  text->verticalScrollBar()->setValue(140);
  Leave(6);
  EXPECT_EQ(Seen(), "6:3+5#000080 ");
  EXPECT_TRUE(text->CaretLine() == 150 && text->FirstVisibleLine() == 140);
  EXPECT_TRUE(text->document()->isRedoAvailable() && editor->updatesEnabled());
}

TEST_F(EditorEventsTest, ColoursMoveWithTheTextAndWhatIsTypedIsBlack) {
  text->SetText("<em></em>");
  text->SetColour(0, 9, 0x80);
  text->SetSelStart(2);
  Type(editor, "q");
  text->SetSelStart(7);
  Key(Qt::Key_Return);
  EXPECT_EQ(Seen(), "0:0+2#000080 0:3+4#000080 1:0+3#000080 ");
  text->SetSelStart(4);
  text->SetSelLength(6);
  Key(Qt::Key_Shift);
  EXPECT_EQ(Seen(), "0:0+2#000080 0:3+1#000080 1:1+2#000080 ") << "a key blackens what is selected";
}

TEST_F(EditorEventsTest, ASelectionMadeWithShiftHoldsPaintingUntilSomethingChanges) {
  mPublic::TagHighlight = {0, 0, 1, 0};
  text->SetText(page);
  for (const bool byMouse : {true, false}) {
    CaretTo(0);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(!editor->updatesEnabled() && text->SelText() == "<html>\r\n" && Seen().isEmpty());
    byMouse ? QTest::mousePress(main->picLeft, Qt::RightButton) : text->SetSelStart(0);
    EXPECT_TRUE(editor->updatesEnabled());
  }
}

TEST_F(EditorEventsTest, TabInsertsBlanksAndDeleteLetGoRemovesTheSelection) {
  mPublic::recPreferences.TabulatorCount = 250;
  ASSERT_TRUE(mPublic::WritePreferences());
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(text->Text() == QString(100, ' ') && text->hasFocus());
  QTest::keyPress(text, Qt::Key_Delete);
  text->selectAll();
  QTest::keyRelease(text, Qt::Key_Delete);
  EXPECT_EQ(text->Text(), "");
}

// What the user does while a pass runs, at its first pump.
TEST_F(EditorEventsTest, APassBearsWhateverTheUserDoesMeanwhile) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  dialogs.answers = {Dialogs::Answer::No};
  const std::pair<std::function<void()>, const char *> cases[] = {
      {[this] { text->SetText({}); }, ""},
      {[this] { Type(editor, "xy"); }, "3:1+2#000080 "},  // the other positions hold no longer
      {[this] { Unload(*editor); }, ""}};
  for (const auto &[meanwhile, seen] : cases) {
    text->SetText("\n\n<body>\n<a><b><c>\n\n</body>");
    CaretTo(4);
    QTimer::singleShot(0, text, meanwhile);
    Leave(3);
    EXPECT_EQ(Seen(), seen);
  }
  EXPECT_FALSE(mPublic::AnyEditorOpen());
}

TEST_F(EditorEventsTest, NumbersStandOnTheirLinesToThePixelAtEverySize) {
  QStringList lines;
  for (int line = 1; line <= 400; ++line) lines << QString::number(line);
  text->SetText(lines.join('\n'));
  for (const int size : {5, 5, 6, 6, 6}) {  // larger twice, smaller three times
    Press(size, 1);
    ExpectNumbersInStep("after a change of size");
    text->verticalScrollBar()->setValue(text->FirstVisibleLine() + 23);
    for (const int x : {40, 50}) {
      QTest::mouseMove(text->viewport(), QPoint(x, 50));
      DoEvents();
    }
    ExpectNumbersInStep("after the mouse has moved over the scrolled text");
  }
  editor->resize(editor->width() + 30, editor->height() + 30);
  ExpectNumbersInStep("after a resize");
  Key(Qt::Key_PageUp);
  ExpectNumbersInStep("after a page up");
  QWheelEvent wheel({}, {}, {}, QPoint(0, -120), {}, {}, {}, false);
  const int before = text->FirstVisibleLine();
  QCoreApplication::sendEvent(numbers->viewport(), &wheel);
  EXPECT_TRUE(text->FirstVisibleLine() > before && numbers->verticalScrollBar()->value() == 0);
}

TEST_F(EditorEventsTest, TextOptionsSwitchAndStopAtTheirLimits) {
  Press(2, 3);
  EXPECT_EQ(main->picHtmlTextOptions->Square(2), QColor(0, 80, 0));
  Press(7, 13);
  EXPECT_EQ(mPublic::aFormatColor[3], 248);
  Press(8, 30);
  EXPECT_EQ(mPublic::aFormatColor[3], 38);
  Press(6, 20);
  EXPECT_EQ(text->font().pointSizeF(), 1.25) << "no font is smaller than nothing";
}
