#include <QTimer>

#include "assistants/AssistantTest.h"
#include "assistants/frmInsertTable.h"

using Qt::StringLiterals::operator""_s;

class InsertTableTest : public AssistantTest {
 protected:
  frmInsertTable *OpenTable() { return Show<frmInsertTable>(main->mnuAssistantsInsertTable); }

  frmInsertTable *form = OpenTable();
};

TEST_F(InsertTableTest, WritesTheTableOverTheSelection) {
  form->lstCols->setCurrentIndex(0);
  form->lstBorderWidth->setCurrentIndex(199);
  form->lstCellspacingThick->setCurrentIndex(6);
  form->lstBorderRules->setCurrentText(u"left hand side"_s);
  form->lstCellpaddingRules->setCurrentText(u"cols"_s);
  form->chkSetTableWidth->click();
  form->txtTableWidth->setText(u"50"_s);
  form->lstTableWidthMeasurement->setCurrentText(u"Percent"_s);
  form->chkSetTableHeight->click();
  form->txtTableHeight->setText(u"2.50px"_s);
  form->optBorder_1->click();
  form->optCellspacing_1->click();
  form->optTableBackgroundColor_1->click();
  form->txtSelectTableBackgroundColor->setText(u" 0%1f "_s);
  QTest::keyClick(form->txtTableHeight, Qt::Key_Return);
  EXPECT_EQ(text->Text(),
            u"one <table  bgcolor=\"#0%1f\" Width=\"50%\" Height=\"2.5\" Border=\"200\" "
            u"Cellspacing=\"7\" Border Frame=\"lhs\" border rules=\"cols\">\r\n"
            u"\t<tr>\r\n\t\t<td>\r\n\t\t</td>\r\n\t</tr>\r\n"
            u"\t<tr>\r\n\t\t<td>\r\n\t\t</td>\r\n\t</tr>\r\n</table> three");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(OpenTable(), form) << "the values come back";
  form->close();
  EXPECT_EQ(OpenTable(), form);
}

TEST_F(InsertTableTest, OptionsEnableWhatTheyNeed) {
  const std::pair<QAbstractButton *, QWidgetList> groups[]{
      {form->chkSetTableWidth, {form->txtTableWidth, form->lstTableWidthMeasurement}},
      {form->chkSetTableHeight, {form->txtTableHeight, form->lstTableHeightMeasurement}},
      {form->optBorder_1, {form->lblShowImageBorder, form->lstBorderWidth}},
      {form->optCellspacing_1, {form->lblCellspacingThick, form->lstCellspacingThick}},
      {form->optTableBackgroundColor_1,
       {form->txtSelectTableBackgroundColor, form->cmdSelectTableBackgroundColor}}};
  for (const auto &[option, widgets] : groups) {
    QString states;
    for (const QWidget *widget : widgets) states += QString::number(widget->isEnabled());
    option->click();
    for (const QWidget *widget : widgets) states += QString::number(widget->isEnabled());
    EXPECT_EQ(states, u"0011") << qPrintable(option->objectName());
  }
}

TEST_F(InsertTableTest, TheColourComesFromTheDialogAlsoAfterCancel) {
  form->optTableBackgroundColor_1->click();
  dialogs.colours = {std::nullopt, QColor(5, 255, 10), std::nullopt};
  for (const char16_t *digits : {u"000000", u"05FF0A", u"05FF0A"}) {
    form->txtSelectTableBackgroundColor->setText(u"123456"_s);
    form->cmdSelectTableBackgroundColor->click();
    EXPECT_EQ(form->txtSelectTableBackgroundColor->text(), digits);
  }
}

TEST_F(InsertTableTest, ClosingEndsTheBuilding) {
  QTimer::singleShot(0, form, [this] {
    EXPECT_FALSE(form->cmdOk->isEnabled());
    form->cmdCancel->click();
  });
  form->cmdOk->click();
  EXPECT_FALSE(form->isVisible());
  OpenTable();
  EXPECT_TRUE(form->cmdOk->isEnabled());
  QTimer::singleShot(0, form, [this] { Unload(*form); });
  form->cmdOk->click();
  EXPECT_EQ(mForms::Find(u"frmInsertTable"_s), nullptr);
  EXPECT_EQ(text->Text(), u"one two three");
}
