#include "assistants/AssistantTest.h"
#include "assistants/frmColors.h"
#include "assistants/frmFontcolors.h"
#include "assistants/frmSpecialCharacters.h"
#include "toolkit/CellGrid.h"

using Qt::StringLiterals::operator""_s;

// Clicks the middle of a cell.
static void Click(CellGrid *grid, int cell, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(grid, button, {}, grid->CellRect(cell).center());
}

class ColoursTest : public AssistantTest {};

TEST_F(ColoursTest, APickReplacesTheSelection) {
  auto *form = Show<frmColors>(main->mnuAssistantsColorSelection);
  Click(form->picColor, 2);
  EXPECT_EQ(form->txthtmlvalue->text(), u"#000033");
  Click(form->picGreyScalePalette, 2);
  EXPECT_EQ(form->txthtmlvalue->text(), u"#707070") << "each part is 7";
  EXPECT_EQ(form->picSelection->palette().color(QPalette::Window), QColor(7, 7, 7));
  form->txthtmlvalue->setText(u" #any "_s);
  QTest::keyClick(form->picGreyScalePalette, Qt::Key_Return);
  EXPECT_EQ(text->Text(), u"one #any three");
  EXPECT_EQ(mForms::Find(u"frmColors"_s), nullptr);
}

TEST_F(ColoursTest, TheFieldTakesAColourFromThePaletteOrTheDialog) {
  const auto expect = [this](const QColor &colour) {
    EXPECT_EQ(main->picColor->palette().color(QPalette::Window), colour);
    EXPECT_EQ(main->picFontColor->palette().color(QPalette::ButtonText), colour);
  };
  QTest::mouseClick(main->picColor, Qt::LeftButton);
  Click(Default<frmFontcolors>()->picFontColors, 10);
  expect(Qt::red);
  EXPECT_EQ(mForms::Find(u"frmFontcolors"_s), nullptr);
  dialogs.colours = {std::nullopt, QColor(1, 2, 3), std::nullopt};
  for (const QColor taken : {QColor(Qt::black), QColor(1, 2, 3), QColor(1, 2, 3)}) {
    QTest::mouseClick(main->picColor, Qt::LeftButton);
    Default<frmFontcolors>()->cmdOtherColor->click();
    expect(taken);  // Cancel leaves the dialog's own colour
  }
}

TEST_F(ColoursTest, TheLetterShowsThePaletteWhenItGetsTheFocus) {
  main->activateWindow();
  for (int time = 1; time <= 2; ++time) {
    DoEvents();
    main->picFontColor->setFocus();
    DoEvents();
    ASSERT_NE(mForms::Find(u"frmFontcolors"_s), nullptr) << time;
    Default<frmFontcolors>()->reject();
    main->activateWindow();
  }
}

TEST_F(ColoursTest, CharactersAreShownAndCollectedWithMouseAndKeyboard) {
  auto *form = Show<frmSpecialCharacters>(main->mnuAssitantsSpecialCharacters);
  CellGrid *grid = form->picSpecialCharacters;
  for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Space}) {
    QTest::keyClick(grid, key);
  }
  QTest::keyClick(grid, Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(form->txthtmlname->text() + form->txtUniCodeName->text(), u"&gt;&#62;");
  form->txtCodeContainer->setText(u' ' + form->txtCodeContainer->text() + u' ');
  form->opthtml_1->setChecked(true);
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(grid, &menuKey);
  Click(grid, 1, Qt::RightButton);
  Click(grid, 3);
  EXPECT_EQ(form->txthtmlname->text(), u"&amp;");
  form->cmdInsertCodeIntoEditor->click();
  form->cmdInsertCodeIntoEditor->click();
  form->cmdEmpty->click();
  form->cmdInsertCodeIntoEditor->click();
  EXPECT_EQ(text->Text(), u"one &gt;&#62;&#60;&gt;&#62;&#60; three");
  QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(grid);
  EXPECT_EQ(spoken->childCount(), 235);
  EXPECT_EQ(spoken->child(2)->text(QAccessible::Name), u"&");
}
