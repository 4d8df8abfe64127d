#include "assistants/Palettes.h"
#include "assistants/frmColors.h"
#include "assistants/frmFontcolors.h"
#include "assistants/frmSpecialCharacters.h"
#include "shared/FormsTest.h"
#include "toolkit/CellGrid.h"

namespace {

// Clicks the middle of a cell.
void Click(CellGrid *grid, int cell, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(grid, button, {}, grid->CellRect(cell).center());
}

class ColoursTest : public FormsTest {};

TEST_F(ColoursTest, AssistantsStayAwayWithoutADocument) {
  main->mnuAssistantsColorSelection->trigger();
  main->mnuAssitantsSpecialCharacters->trigger();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmColors")), nullptr);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmSpecialCharacters")), nullptr);
}

TEST_F(ColoursTest, APickReplacesTheSelection) {
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two")->txthtml;
  text.SetSelStart(4);
  text.SetSelLength(3);
  main->mnuAssistantsColorSelection->trigger();
  auto *form = Default<frmColors>();
  ASSERT_TRUE(form->isVisible());
  Click(form->picColor, 2);
  EXPECT_EQ(form->txthtmlvalue->text(), QStringLiteral("#000033"));
  Click(form->picGreyScalePalette, 2);
  EXPECT_EQ(form->txthtmlvalue->text(), QStringLiteral("#707070")) << "each part is 7";
  EXPECT_EQ(form->picSelection->palette().color(QPalette::Window), QColor(7, 7, 7));
  Click(form->picGreyScalePalette, 36);
  form->txthtmlvalue->setText(u' ' + form->txthtmlvalue->text());
  QTest::keyClick(form->picGreyScalePalette, Qt::Key_Return);
  EXPECT_EQ(text.Text(), QStringLiteral("one #FFFFFF"));
  EXPECT_EQ(text.SelStart(), 11);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmColors")), nullptr);
}

TEST_F(ColoursTest, TheFieldTakesAColourFromThePaletteOrTheDialog) {
  const auto field = [this] { return main->picColor->palette().color(QPalette::Window); };
  const auto letter = [this] { return main->picFontColor->palette().color(QPalette::ButtonText); };
  QTest::mouseClick(main->picColor, Qt::LeftButton);
  Click(Default<frmFontcolors>()->picFontColors, 10);
  EXPECT_EQ(field(), QColor(Qt::red));
  EXPECT_EQ(letter(), QColor(Qt::red));
  EXPECT_EQ(mForms::Find(QStringLiteral("frmFontcolors")), nullptr);
  struct Case {
    std::optional<QColor> answer;
    QColor taken;
  };
  for (const auto &[answer, taken] :
       {Case{std::nullopt, Qt::black}, {QColor(1, 2, 3), {1, 2, 3}}, {{}, {1, 2, 3}}}) {
    dialogs.colours = {answer};
    QTest::mouseClick(main->picColor, Qt::LeftButton);
    Default<frmFontcolors>()->cmdOtherColor->click();
    EXPECT_EQ(field(), taken) << "Cancel leaves the dialog's own colour";
    EXPECT_EQ(letter(), taken);
  }
}

TEST_F(ColoursTest, TheLetterShowsThePaletteWhenItGetsTheFocus) {
  for (int time = 1; time <= 2; ++time) {
    main->activateWindow();
    DoEvents();
    main->picFontColor->setFocus();
    DoEvents();
    ASSERT_NE(mForms::Find(QStringLiteral("frmFontcolors")), nullptr) << time;
    EXPECT_EQ(main->focusWidget(), main->picButtons);
    Default<frmFontcolors>()->reject();
    DoEvents();
    EXPECT_EQ(mForms::Find(QStringLiteral("frmFontcolors")), nullptr) << time;
  }
}

TEST_F(ColoursTest, CharactersAreShownAndCollected) {
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two")->txthtml;
  main->mnuAssitantsSpecialCharacters->trigger();
  auto *form = Default<frmSpecialCharacters>();
  Click(form->picSpecialCharacters, 3);
  EXPECT_EQ(form->txthtmlname->text(), QStringLiteral("&amp;"));
  EXPECT_EQ(form->txtUniCodeName->text(), QStringLiteral("&#38;"));
  EXPECT_EQ(form->txtCodeContainer->text(), QString());
  Click(form->picSpecialCharacters, 1, Qt::RightButton);
  form->txtCodeContainer->setText(u' ' + form->txtCodeContainer->text() + u' ');
  form->opthtml_1->setChecked(true);
  Click(form->picSpecialCharacters, 2, Qt::RightButton);
  EXPECT_EQ(form->txtCodeContainer->text(), QStringLiteral("&lt;&#62;"));
  EXPECT_EQ(form->txthtmlname->text(), QStringLiteral("&amp;"));
  text.SetSelStart(0);
  text.SetSelLength(3);
  form->cmdInsertCodeIntoEditor->click();
  form->cmdInsertCodeIntoEditor->click();
  EXPECT_EQ(text.Text(), QStringLiteral("&lt;&#62;&lt;&#62; two"));
  form->cmdEmpty->click();
  form->cmdInsertCodeIntoEditor->click();
  EXPECT_EQ(text.Text(), QStringLiteral("&lt;&#62;&lt;&#62; two"));
}

TEST_F(ColoursTest, TheGridWorksWithTheKeyboardAndIsReadAloud) {
  Open(QStringLiteral("page.html"), "");
  main->mnuAssitantsSpecialCharacters->trigger();
  auto *form = Default<frmSpecialCharacters>();
  CellGrid *grid = form->picSpecialCharacters;
  for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Space}) {
    QTest::keyClick(grid, Qt::Key(key));
  }
  EXPECT_EQ(form->txthtmlname->text(), QStringLiteral("&gt;"));
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(grid, &menuKey);
  QTest::keyClick(grid, Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(form->txtCodeContainer->text(), QStringLiteral("&gt;&gt;"));
  QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(grid);
  ASSERT_EQ(spoken->childCount(), 235);
  EXPECT_EQ(spoken->child(2)->text(QAccessible::Name), QStringLiteral("&"));
  spoken->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(form->txthtmlname->text(), QStringLiteral("&amp;"));
}

}  // namespace
