#include "documents/frmSearch.h"

#include <QScrollBar>

#include "shared/FormsTest.h"

namespace {

class SearchTest : public FormsTest {
 protected:
  void Begin(const QByteArray &bytes, const char *sought) {
    text = Open(QStringLiteral("page.html"), bytes)->txthtml;
    form = Default<frmSearch>();
    form->show();
    form->txtSearchString->clear();
    form->txtSearchString->setText(QString::fromLatin1(sought));
  }
  // Presses the button and returns where the mark stands, -1 without one.
  int Press() {
    form->cmdSearch->click();
    const auto marks = text->extraSelections();
    return marks.isEmpty() ? -1 : marks.constFirst().cursor.selectionStart();
  }

  RichTextBox *text = nullptr;
  frmSearch *form = nullptr;
};

const QString complete = QStringLiteral("Window Search|Window was searched complete!|0");

TEST_F(SearchTest, EachPressGoesOneHitOnAndTheEndStartsAgain) {
  Begin("ab\r\n  Word\r\nb word b", " word ");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Press(), 5);
    EXPECT_EQ(text->SelStart(), 0) << "selected is what began one before the last hit";
    EXPECT_EQ(text->SelLength(), 5);
    EXPECT_EQ(Press(), 12);
    EXPECT_EQ(text->SelStart(), 5);
    dialogs.answers = {Dialogs::Answer::Ok};
    EXPECT_EQ(Press(), -1);
    EXPECT_EQ(dialogs.messages.takeLast(), complete);
    EXPECT_EQ(text->SelStart(), 1);
    EXPECT_EQ(text->SelLength(), 4);
  }
  Press();
  Press();
  form->txtSearchString->setText(QStringLiteral("WORD"));
  EXPECT_EQ(Press(), 5) << "another text begins at the top";
  form->chkMatchCase->setChecked(true);
  dialogs.answers = {Dialogs::Answer::Ok};
  EXPECT_EQ(Press(), -1);
}

TEST_F(SearchTest, WhatCannotBeFoundIsToldOnce) {
  struct Case {
    const char *sought;
    int found;
  };
  for (const auto &[sought, found] : {Case{"", -1},
                                      {"   ", -1},
                                      {"a text longer than all of the document", -1},
                                      {"\xFC", 3},
                                      {"&\xA0", 4}}) {
    Begin("xyz\xDC&\xA0", sought);
    if (found < 0) dialogs.answers = {Dialogs::Answer::Ok};
    EXPECT_EQ(Press(), found) << sought;
    EXPECT_TRUE(dialogs.answers.empty());
  }
  for (int slot = 1; slot <= 5; ++slot) Unload(*mEditors::aEditorWindow[slot]);
  dialogs.messages.clear();
  form->cmdSearch->click();
  EXPECT_TRUE(dialogs.messages.isEmpty()) << "nothing happens without a document";
}

TEST_F(SearchTest, TheMarkIsSeenAndGoesWhenTheUserGoesOn) {
  const QByteArray far = QByteArray("\r\n").repeated(500) + QByteArray(400, ' ') + "needle";
  const auto marked = [this] { return !text->extraSelections().isEmpty(); };
  const std::function<void()> goingOn[] = {
      [this] { QTest::keyClick(text, Qt::Key_Left); },
      [this] { QTest::mouseClick(text->viewport(), Qt::LeftButton); },
      [this] { text->SetSelText(QStringLiteral("x")); },
      [this] { Unload(*form); },
  };
  for (const auto &goOn : goingOn) {
    Begin(far, "needle");
    Press();
    ASSERT_TRUE(marked());
    const QRect place = text->cursorRect(text->extraSelections().constFirst().cursor);
    EXPECT_TRUE(text->viewport()->rect().contains(place));
    EXPECT_EQ(text->CaretLine(), 3) << "the caret is where the selection was set";
    goOn();
    EXPECT_FALSE(marked());
  }
}

}  // namespace
