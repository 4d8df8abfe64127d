#include "assistants/frmMetaTags.h"

#include <QLabel>

#include "documents/Insertion.h"
#include "frame/mdiMain.h"

namespace {

constexpr int refreshRow = 7;
constexpr int cookieRow = 9;
constexpr int boxColumns = 4;  // a label, a box, and both again
constexpr int boxesWidth = 480;

}  // namespace

frmMetaTags::frmMetaTags() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  for (int row = 0; row < int(chkMetaTags.size()); ++row) AddRow(row);
  txtSeconds = boxes_[refreshRow].first;
  txtSeconds->setObjectName(QStringLiteral("txtSeconds"));
  txtMetaTags[refreshRow] = boxes_[refreshRow].second;
  txtMetaTags.back() = boxes_[cookieRow].second;
  for (size_t i = 0; i < txtMetaTags.size(); ++i)
    txtMetaTags[i]->setObjectName(QStringLiteral("txtMetaTags_%1").arg(i));
  // The buttons were made first, but come behind the rows. Qt 6.4 moves nothing behind a window's
  // last control, so that one must not be the last any more.
  const auto [lastButOne, last] = boxes_[cookieRow];
  setTabOrder(lastButOne, cmdOk);
  setTabOrder(lastButOne, last);
  setTabOrder(last, cmdCancel);
  setTabOrder(last, cmdOk);
  // A box that isn't a row's own can be filled in at any time.
  for (size_t i = 0; i < chkMetaTags.size(); ++i) {
    txtMetaTags[i]->setEnabled(false);
    connect(chkMetaTags[i], &QCheckBox::toggled, txtMetaTags[i], &QLineEdit::setEnabled);
  }
  connect(cmdOk, &QPushButton::clicked, this, &frmMetaTags::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmMetaTags::AddRow(int row) {
  const MetaTagsText::Row &data = MetaTagsText::rows[row];
  const QString caption = QLatin1String(data.caption);
  chkMetaTags[row] = new QCheckBox(caption, fraMetaTypes);
  chkMetaTags[row]->setObjectName(QStringLiteral("chkMetaTags_%1").arg(row));
  layMetaTypes->addWidget(chkMetaTags[row], row, 0);
  if (data.between) {
    boxes_[row] = {AddBox(row, 1, data.firstLabel), AddBox(row, 3, data.secondLabel)};
  } else {
    auto *box = new QLineEdit(QLatin1String(data.preset), fraMetaTypes);
    box->setAccessibleName(caption);
    box->setMinimumWidth(boxesWidth);
    box->setCursorPosition(0);
    layMetaTypes->addWidget(box, row, 1, 1, boxColumns);
    boxes_[row] = {box, nullptr};
  }
  txtMetaTags[row] = boxes_[row].first;
}

QLineEdit *frmMetaTags::AddBox(int row, int column, const char *label) {
  auto *box = new QLineEdit(fraMetaTypes);
  auto *caption = new QLabel(QLatin1String(label), fraMetaTypes);
  caption->setBuddy(box);
  layMetaTypes->addWidget(caption, row, column);
  layMetaTypes->addWidget(box, row, column + 1);
  return box;
}

void frmMetaTags::cmdOk_Click() {
  std::array<MetaTagsText::Entry, 10> entries;
  for (size_t i = 0; i < entries.size(); ++i) {
    const auto [first, second] = boxes_[i];
    entries[i] = {chkMetaTags[i]->isChecked(), first->text(), second ? second->text() : QString()};
  }
  Insertion::PutInFront(MetaTagsText::Block(entries));
  Unload(*this);
}
