#include "assistants/frmInsertTable.h"

#include "assistants/ColourText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr int largestNumber = 200;

void FillWithNumbers(QComboBox &list) {
  static const QStringList numbers = [] {
    QStringList texts;
    for (int number = 1; number <= largestNumber; ++number) texts << QString::number(number);
    return texts;
  }();
  // Measuring each of them would make up half of the time that the dialog takes to open.
  list.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list.setMinimumContentsLength(int(numbers.constLast().size()));
  list.addItems(numbers);
  list.setCurrentIndex(1);
}

void FillWithCaptions(QComboBox &list, std::span<const TableText::Choice> choices) {
  for (const TableText::Choice &choice : choices) list.addItem(QLatin1String(choice.caption));
}

// The index of a list that counts from 1.
int Number(const QComboBox &list) {
  return list.currentIndex() + 1;
}

std::optional<TableText::Measure> MeasureIf(const QCheckBox &ticked, const QLineEdit &number,
                                            const QComboBox &measurement) {
  if (!ticked.isChecked()) return std::nullopt;
  return TableText::Measure{number.text(), measurement.currentIndex() == 1};
}

std::optional<int> NumberIf(const QRadioButton &chosen, const QComboBox &list) {
  return chosen.isChecked() ? std::optional(Number(list)) : std::nullopt;
}

}  // namespace

frmInsertTable::frmInsertTable() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  for (QComboBox *list : {lstRows, lstCols, lstBorderWidth, lstCellspacingThick}) {
    FillWithNumbers(*list);
  }
  FillWithCaptions(*lstBorderRules, TableText::Frames());
  FillWithCaptions(*lstCellpaddingRules, TableText::Rules());
  const auto enables = [](QAbstractButton *button, std::initializer_list<QWidget *> widgets) {
    for (QWidget *widget : widgets) {
      widget->setEnabled(button->isChecked());
      connect(button, &QAbstractButton::toggled, widget, &QWidget::setEnabled);
    }
  };
  enables(chkSetTableWidth, {txtTableWidth, lstTableWidthMeasurement});
  enables(chkSetTableHeight, {txtTableHeight, lstTableHeightMeasurement});
  enables(optBorder_1, {lblShowImageBorder, lstBorderWidth});
  enables(optCellspacing_1, {lblCellspacingThick, lstCellspacingThick});
  enables(optTableBackgroundColor_1,
          {txtSelectTableBackgroundColor, cmdSelectTableBackgroundColor});
  connect(cmdSelectTableBackgroundColor, &QPushButton::clicked, this,
          &frmInsertTable::cmdSelectTableBackgroundColor_Click);
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertTable::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmInsertTable::reject);
}

bool frmInsertTable::QueryUnload(UnloadMode mode) {
  if (mode != UnloadMode::ControlMenu) return true;
  cancelled_ = true;
  hide();
  return false;
}

// After Cancel the dialog's colour is written all the same.
void frmInsertTable::cmdSelectTableBackgroundColor_Click() {
  cgdTableBackgroundColor.ShowColor();
  const QColor &colour = cgdTableBackgroundColor.Color;
  txtSelectTableBackgroundColor->setText(
      ColourText::ZeroBefore(colour.red(), colour.green(), colour.blue()));
}

void frmInsertTable::cmdOk_Click() {
  cancelled_ = false;
  const bool hadFocus = focusWidget() == cmdOk;
  cmdOk->setEnabled(false);
  const auto text = Choices().Build([this] {
    DoEventsInLoop();
    return !IsUnloaded() && !cancelled_;
  });
  if (IsUnloaded()) return;
  cmdOk->setEnabled(true);
  if (hadFocus) cmdOk->setFocus();
  if (!text) return;
  Insertion::ReplaceSelection(*text);
  hide();
}

TableText frmInsertTable::Choices() const {
  TableText table;
  table.rows = Number(*lstRows);
  table.cols = Number(*lstCols);
  if (optTableBackgroundColor_1->isChecked()) {
    table.background = txtSelectTableBackgroundColor->text();
  }
  table.width = MeasureIf(*chkSetTableWidth, *txtTableWidth, *lstTableWidthMeasurement);
  table.height = MeasureIf(*chkSetTableHeight, *txtTableHeight, *lstTableHeightMeasurement);
  table.border = NumberIf(*optBorder_1, *lstBorderWidth);
  table.cellspacing = NumberIf(*optCellspacing_1, *lstCellspacingThick);
  table.frame = lstBorderRules->currentIndex();
  table.rules = lstCellpaddingRules->currentIndex();
  return table;
}
