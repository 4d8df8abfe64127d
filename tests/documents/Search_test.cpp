#include "documents/frmSearch.h"

#include "shared/FormsTest.h"

struct SearchTest : FormsTest {
  void Begin(const QByteArray &bytes, const QString &sought) {
    text = Open("page.html", bytes)->txthtml;
    Default<frmSearch>()->show();
    Default<frmSearch>()->txtSearchString->clear();
    Default<frmSearch>()->txtSearchString->setText(sought);
  }
  // Presses the button. Where the mark stands, -1 without one, and what is selected.
  QString Press() {
    dialogs.answers = {Dialogs::Answer::Ok};
    Default<frmSearch>()->cmdSearch->click();
    const auto marks = text->extraSelections();
    return QString("%1: %2+%3")
        .arg(marks.isEmpty() ? -1 : marks[0].cursor.selectionStart())
        .arg(text->SelStart())
        .arg(text->SelLength());
  }

  RichTextBox *text = nullptr;
};

TEST_F(SearchTest, EachPressGoesOneHitOnAndTheEndStartsAgain) {
  Begin("ab\r\n  Word\r\nb word b", " word ");
  for (int round = 1; round <= 2; ++round) {
    EXPECT_EQ(Press(), "5: 0+5") << "selected is what began one before the last hit";
    EXPECT_EQ(Press(), "12: 5+5");
    EXPECT_EQ(Press(), "-1: 1+4");
  }
  EXPECT_EQ(dialogs.messages.count("Window Search|Window was searched complete!|0"), 2);
  Press();
  Default<frmSearch>()->txtSearchString->setText("WORD");
  EXPECT_EQ(Press(), "5: 0+5") << "another text begins at the top";
  Default<frmSearch>()->chkMatchCase->setChecked(true);
  EXPECT_EQ(Press(), "-1: 1+4");
}

TEST_F(SearchTest, TheMarkIsSeenAndGoesWhenTheUserGoesOn) {
  const std::function<void()> goingOn[] = {
      [this] { QTest::keyClick(text, Qt::Key_Left); },
      [this] { QTest::mouseClick(text->viewport(), Qt::LeftButton); },
      [this] { text->SetSelText("x"); },
      [] { Unload(*Default<frmSearch>()); },
  };
  for (const auto &goOn : goingOn) {
    Begin(QByteArray("\r\n").repeated(500) + QByteArray(400, ' ') + "needle", "needle");
    Press();
    ASSERT_FALSE(text->extraSelections().isEmpty());
    const QRect place = text->cursorRect(text->extraSelections()[0].cursor);
    EXPECT_TRUE(text->viewport()->rect().contains(place));
    goOn();
    EXPECT_TRUE(text->extraSelections().isEmpty());
  }
}
