#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include "documents/TextOptions.h"
#include "shared/FormsTest.h"

namespace {

constexpr quint32 green = 0x008000;
constexpr quint32 blue = 0x000080;

class EditorEventsTest : public FormsTest {
 protected:
  ~EditorEventsTest() override { mPublic::TagHighlight = {}; }

  void Begin(const QByteArray &bytes) {
    editor = Open(QStringLiteral("page.html"), bytes);
    text = editor->txthtml;
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(text, Qt::Key(key), modifiers);
  }
  void CaretTo(int line, int column = 0) { text->SetSelStart(text->LineIndex(line) + column); }

  // The columns of a line that are coloured, "1-3" for each span.
  QString Spans(int line) {
    QStringList shown;
    for (const auto &format : text->document()->findBlockByNumber(line).layout()->formats()) {
      shown << QStringLiteral("%1-%2").arg(format.start).arg(format.start + format.length);
    }
    QStringList kept;
    for (const auto &span : text->ColoursOfLine(line)) {
      kept << QStringLiteral("%1-%2").arg(span.start).arg(span.end);
    }
    EXPECT_EQ(shown, kept) << "what is seen is what is kept";
    return kept.join(u' ');
  }

  QPointer<frmHTMLChild> editor;
  RichTextBox *text = nullptr;
};

const QByteArray page =
    "<html>\r\n<head>\r\n</head>\r\n\r\n\r\n<body>\r\n<b>x</b>\r\n<i>y</i> "
    "z\r\n<u>\r\n</body>\r\n</html>";

TEST_F(EditorEventsTest, TabInsertsBlanksAndNothingElse) {
  Begin("ab");
  for (const auto &[count, key, blanks] : {std::tuple{4, Qt::Key_Tab, 4},
                                           {250, Qt::Key_Tab, 100},
                                           {3, Qt::Key_Backtab, 3},
                                           {-2, Qt::Key_Tab, 0}}) {
    mPublic::recPreferences.TabulatorCount = qint16(count);
    ASSERT_TRUE(mPublic::WritePreferences());
    text->SetText(QStringLiteral("ab"));
    text->SetSelStart(1);
    mPublic::aEditorState[1].changed = false;
    Key(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    EXPECT_EQ(text->Text(), u'a' + QString(blanks, u' ') + u'b');
    EXPECT_TRUE(mPublic::aEditorState[1].changed);
    EXPECT_TRUE(text->hasFocus());
  }
  text->SetText(QStringLiteral("ab"));
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(text->Text(), QStringLiteral("ab"));
}

TEST_F(EditorEventsTest, TheLineThatTheCaretLeavesIsColouredByItsKeysAlone) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_End, Qt::Key_PageUp,
                        Qt::Key_PageDown, Qt::Key_Enter}) {
    Begin(page);
    CaretTo(7, 8);
    editor->lineOfLastPass = 7;
    Key(key);
    const bool top = key == Qt::Key_PageUp;  // where the caret's own line is coloured
    EXPECT_EQ(Spans(7), top ? QString() : QStringLiteral("1-3 5-8")) << key;
    EXPECT_EQ(Spans(0), QString()) << key;
    EXPECT_EQ(editor->lineOfLastPass, text->CaretLine());
    mPublic::aEditorState[1].changed = false;
    Unload(*editor);
  }
  Begin(page);
  CaretTo(7);
  editor->lineOfLastPass = 7;
  for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_A, Qt::Key_Backspace})
    Key(key);
  EXPECT_EQ(Spans(7), QString());
  mPublic::TagHighlight = {};
  Key(Qt::Key_Down);
  EXPECT_EQ(Spans(7), QString()) << "all switches off";
}

TEST_F(EditorEventsTest, APassLeavesCaretViewAndHistoryAlone) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  Begin(page + QByteArray("\r\n<p>").repeated(200));
  CaretTo(6);
  Type(editor, QStringLiteral("q"));
  text->undo();
  CaretTo(150);
  text->verticalScrollBar()->setValue(140);
  editor->lineOfLastPass = 6;
  const int steps = text->document()->availableUndoSteps();
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, {});
  QCoreApplication::sendEvent(text, &release);
  EXPECT_EQ(Spans(6), QStringLiteral("1-3 5-8"));
  EXPECT_EQ(text->CaretLine(), 150);
  EXPECT_EQ(text->FirstVisibleLine(), 140);
  EXPECT_EQ(text->document()->availableUndoSteps(), steps);
  EXPECT_TRUE(text->document()->isRedoAvailable());
  EXPECT_TRUE(text->hasFocus());
  EXPECT_TRUE(editor->updatesEnabled());
}

TEST_F(EditorEventsTest, ColoursMoveWithTheTextAndWhatIsTypedIsBlack) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  Begin("\r\n\r\n<body>\r\n<em>x</em>\r\n</body>");
  editor->lineOfLastPass = 3;
  CaretTo(4);
  Key(Qt::Key_Down);
  ASSERT_EQ(Spans(3), QStringLiteral("1-4 6-10"));
  CaretTo(3, 2);
  Type(editor, QStringLiteral("q"));
  EXPECT_EQ(Spans(3), QStringLiteral("1-2 3-5 7-11"));
  mPublic::TagHighlight = {};
  CaretTo(3, 8);
  Key(Qt::Key_Return);
  EXPECT_EQ(Spans(3), QStringLiteral("1-2 3-5 7-8"));
  EXPECT_EQ(Spans(4), QStringLiteral("0-3"));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Spans(3), QStringLiteral("1-2 3-5 7-8 8-11")) << "joined lines keep their colours";
  text->undo();
  EXPECT_EQ(Spans(4), QStringLiteral("0-3"));
  CaretTo(3, 4);
  text->SetSelLength(5);
  Key(Qt::Key_Shift);
  EXPECT_EQ(Spans(3), QStringLiteral("1-2 3-4")) << "a key blackens what is selected";
  text->SetText(QStringLiteral("\n\n\n<em>x</em>"));
  EXPECT_EQ(Spans(3), QString());
}

TEST_F(EditorEventsTest, ASelectionMadeWithShiftHoldsPaintingUntilSomethingChanges) {
  mPublic::TagHighlight = {0, 0, 1, 0};
  Begin(page);
  const auto select = [this] {
    CaretTo(0);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_FALSE(editor->updatesEnabled());
    EXPECT_EQ(text->SelText(), QStringLiteral("<html>\r\n"));
  };
  select();
  EXPECT_EQ(Spans(0), QString());
  QTest::keyPress(text, Qt::Key_Left);
  EXPECT_TRUE(editor->updatesEnabled());
  QTest::keyRelease(text, Qt::Key_Left);
  select();
  QTest::mousePress(main->picLeft, Qt::RightButton);
  EXPECT_TRUE(editor->updatesEnabled()) << "a press anywhere in the program";
  select();
  text->verticalScrollBar()->setValue(2);
  editor->resize(editor->width() - 9, editor->height());
  EXPECT_TRUE(editor->updatesEnabled());
}

TEST_F(EditorEventsTest, DeleteLetGoWithASelectionRemovesIt) {
  Begin("abc");
  text->SetSelStart(0);
  QTest::keyPress(text, Qt::Key_Delete);
  text->SetSelLength(1);
  QTest::keyRelease(text, Qt::Key_Delete);
  EXPECT_EQ(text->Text(), QStringLiteral("c"));
}

// What the user does while a pass runs, at its first pump.
TEST_F(EditorEventsTest, APassBearsWhateverTheUserDoesMeanwhile) {
  mPublic::TagHighlight = {0, 0, 1, 1};
  const auto leaveLine = [this](const std::function<void()> &meanwhile) {
    Begin("\r\n\r\n<body>\r\n<a><b><c>\r\n\r\n</body>");
    editor->lineOfLastPass = 3;
    CaretTo(4);
    QTimer::singleShot(0, text, meanwhile);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, {});
    QCoreApplication::sendEvent(text, &release);
  };
  leaveLine([this] { Type(editor, QStringLiteral("xy")); });
  EXPECT_EQ(text->Text(), QStringLiteral("\r\n\r\n<body>\r\n<a><b><c>\r\nxy\r\n</body>"));
  EXPECT_EQ(Spans(3), QStringLiteral("1-3")) << "its positions hold no longer";
  leaveLine([this] { Key(Qt::Key_Up); });
  EXPECT_EQ(Spans(3), QStringLiteral("1-3 4-6 7-9"));
  leaveLine([this] { text->SetText({}); });
  EXPECT_EQ(Spans(0), QString());
  leaveLine([this] { Unload(*editor); });
  DoEvents();
  EXPECT_EQ(mPublic::CountOpenEditors(), 3);
}

TEST_F(EditorEventsTest, ALineOfAMegabyteIsColoured) {
  mPublic::TagHighlight = {0, 0, 1, 0};
  Begin("<head>" + QByteArray("<b>").repeated(1 << 16) + QByteArray(1 << 20, 'x'));
  Key(Qt::Key_End);
  EXPECT_EQ(text->ColoursOfLine(0).size(), size_t(1 << 16) + 1);
}

TEST_F(EditorEventsTest, LandmarksFollowEveryWayOfEditing) {
  Begin(page);
  const auto expectTrue = [this](const char *after) {
    const QString whole = text->document()->toRawText();
    EXPECT_EQ(editor->landmarks.Position(Landmarks::BodyStart), whole.indexOf(u"<body")) << after;
    EXPECT_EQ(editor->landmarks.Position(Landmarks::BodyEnd), whole.indexOf(u"</body")) << after;
    EXPECT_EQ(editor->landmarks.Position(Landmarks::HeadEnd), whole.indexOf(u"</head")) << after;
  };
  expectTrue("loading");
  text->SetSelStart(0);
  text->SetSelText(QStringLiteral("<!-- <body> -->\r\n"));
  expectTrue("inserting an earlier one");
  text->undo();
  expectTrue("undo");
  text->SetText(QString::fromLatin1("x\n" + page));
  expectTrue("a new text that is longer");
  text->selectAll();
  Key(Qt::Key_Backspace);
  expectTrue("deleting everything");
  text->undo();
  expectTrue("and taking that back");
}

TEST_F(EditorEventsTest, TextOptionsSwitchAndStopAtTheirLimits) {
  ToolStrip &strip = *main->picHtmlTextOptions;
  TextOptions::Press(strip, 2);
  EXPECT_EQ(mPublic::TagHighlight[2], 1);
  EXPECT_EQ(strip.Square(2), QColor(0, 80, 0));
  TextOptions::Press(strip, 2);
  EXPECT_FALSE(mPublic::AnyTagHighlight() || strip.Square(2).isValid());
  TextOptions::Press(strip, 7);
  EXPECT_EQ(mPublic::aFormatColor[0], 128) << "no document is open";
  Begin("x");
  for (const auto &[button, last] : {std::pair{7, 248}, {8, 38}}) {
    mPublic::aFormatColor.fill(128);
    for (int press = 0; press < 13; ++press) TextOptions::Press(strip, button);
    for (const qint16 level : mPublic::aFormatColor) EXPECT_EQ(level, last);
  }
  mPublic::aFormatColor.fill(128);
  for (int press = 0; press < 20; ++press) TextOptions::Press(strip, 6);
  EXPECT_EQ(text->font().pointSizeF(), 1.25) << "no font is smaller than nothing";
  TextOptions::Press(strip, 4);
  EXPECT_EQ(text->font().pointSizeF(), 10);
  EXPECT_EQ(editor->rtfLineNumber->font().pointSizeF(), 10);
}

}  // namespace
