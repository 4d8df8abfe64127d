#include <QTimer>

#include "assistants/frmInsertTable.h"
#include "shared/FormsTest.h"

namespace {

class InsertTableTest : public FormsTest {
 protected:
  frmInsertTable *OpenTable() {
    main->mnuAssistantsInsertTable->trigger();
    return static_cast<frmInsertTable *>(mForms::Find(QStringLiteral("frmInsertTable")));
  }
};

TEST_F(InsertTableTest, WritesTheTableOverTheSelectionInOneStep) {
  EXPECT_EQ(OpenTable(), nullptr) << "without a document";
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two three")->txthtml;
  text.SetSelStart(4);
  text.SetSelLength(3);
  frmInsertTable *form = OpenTable();
  EXPECT_TRUE(form->isModal());
  form->lstRows->setCurrentIndex(0);
  form->lstCols->setCurrentIndex(0);
  form->lstBorderWidth->setCurrentIndex(199);
  form->lstCellspacingThick->setCurrentIndex(6);
  form->lstBorderRules->setCurrentText(QStringLiteral("left hand side"));
  form->lstCellpaddingRules->setCurrentText(QStringLiteral("cols"));
  form->chkSetTableWidth->click();
  form->txtTableWidth->setText(QStringLiteral("50"));
  form->lstTableWidthMeasurement->setCurrentText(QStringLiteral("Percent"));
  form->chkSetTableHeight->click();
  form->txtTableHeight->setText(QStringLiteral("20"));
  form->optBorder_1->click();
  form->optCellspacing_1->click();
  form->optTableBackgroundColor_1->click();
  form->txtSelectTableBackgroundColor->setText(QStringLiteral(" 00ff00 "));
  QTest::keyClick(form->txtTableHeight, Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(
      text.Text(),
      QStringLiteral("one <table  bgcolor=\"#00ff00\" Width=\"50%\" Height=\"20\" Border=\"200\" "
                     "Cellspacing=\"7\" Border Frame=\"lhs\" border rules=\"cols\">\r\n\t<tr>\r\n"
                     "\t\t<td>\r\n\t\t</td>\r\n\t</tr>\r\n</table> three"));
  EXPECT_EQ(text.SelLength(), 0);
  EXPECT_EQ(text.Piece(text.SelStart() - 8, 14), QStringLiteral("</table> three"));
  text.undo();
  EXPECT_EQ(text.Text(), QStringLiteral("one two three"));

  EXPECT_EQ(OpenTable(), form);
  EXPECT_TRUE(form->cmdOk->isEnabled());
  EXPECT_EQ(form->lstBorderWidth->currentText(), QStringLiteral("200"));
  form->lstRows->setCurrentIndex(4);
  for (const auto &close : std::initializer_list<std::function<void()>>{
           [&] { form->cmdCancel->click(); },
           [&] { QTest::keyClick(form->txtTableWidth, Qt::Key_Escape); }, [&] { form->close(); }}) {
    close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(OpenTable(), form) << "the values come back";
  }
  EXPECT_EQ(text.Text(), QStringLiteral("one two three"));
}

TEST_F(InsertTableTest, OptionsEnableWhatTheyNeed) {
  Open(QStringLiteral("page.html"), "");
  frmInsertTable *form = OpenTable();
  const auto expect = [](bool enabled, const QWidgetList &widgets) {
    for (const QWidget *widget : widgets) {
      EXPECT_EQ(widget->isEnabled(), enabled) << qPrintable(widget->objectName());
    }
  };
  const auto enables = [&](QAbstractButton *on, QAbstractButton *off, const QWidgetList &widgets) {
    expect(false, widgets);
    on->click();
    expect(true, widgets);
    off->click();
    expect(false, widgets);
  };
  enables(form->chkSetTableWidth, form->chkSetTableWidth,
          {form->txtTableWidth, form->lstTableWidthMeasurement});
  enables(form->chkSetTableHeight, form->chkSetTableHeight,
          {form->txtTableHeight, form->lstTableHeightMeasurement});
  enables(form->optBorder_1, form->optBorder_0, {form->lblShowImageBorder, form->lstBorderWidth});
  enables(form->optCellspacing_1, form->optCellspacing_0,
          {form->lblCellspacingThick, form->lstCellspacingThick});
  enables(form->optTableBackgroundColor_1, form->optTableBackgroundColor_0,
          {form->txtSelectTableBackgroundColor, form->cmdSelectTableBackgroundColor});
  for (const QComboBox *list :
       {form->lstRows, form->lstCols, form->lstBorderWidth, form->lstCellspacingThick}) {
    EXPECT_EQ(list->currentText(), QStringLiteral("2"));
    EXPECT_EQ(list->itemText(list->count() - 1), QStringLiteral("200"));
  }
}

TEST_F(InsertTableTest, TheColourComesFromTheDialogAlsoAfterCancel) {
  Open(QStringLiteral("page.html"), "");
  frmInsertTable *form = OpenTable();
  form->optTableBackgroundColor_1->click();
  for (const auto &[chosen, digits] :
       std::initializer_list<std::pair<std::optional<QColor>, const char *>>{
           {std::nullopt, "000000"},
           {QColor(5, 255, 10), "05FF0A"},
           {std::nullopt, "05FF0A"},
       }) {
    dialogs.colours = {chosen};
    form->txtSelectTableBackgroundColor->setText(QStringLiteral("123456"));
    form->cmdSelectTableBackgroundColor->click();
    EXPECT_EQ(form->txtSelectTableBackgroundColor->text(), QLatin1String(digits));
  }
}

TEST_F(InsertTableTest, ClosingEndsTheBuilding) {
  RichTextBox &text = *Open(QStringLiteral("page.html"), "page")->txthtml;
  frmInsertTable *form = OpenTable();
  QTimer::singleShot(0, form, [form] {
    EXPECT_FALSE(form->cmdOk->isEnabled());
    form->cmdCancel->click();
  });
  form->cmdOk->click();
  EXPECT_FALSE(form->isVisible());
  OpenTable();
  EXPECT_TRUE(form->cmdOk->isEnabled());
  QTimer::singleShot(0, form, [form] { Unload(*form); });
  form->cmdOk->click();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertTable")), nullptr);
  EXPECT_EQ(text.Text(), QStringLiteral("page"));
}

}  // namespace
