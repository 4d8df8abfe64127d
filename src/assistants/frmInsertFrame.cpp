#include "assistants/frmInsertFrame.h"

#include <QSignalBlocker>
#include <algorithm>
#include <limits>

#include "assistants/FramesetLayouts.h"
#include "base/mText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"
#include "toolkit/ChosenOption.h"

FrameSourceTable frameSourceTable;

namespace {

QString LabelText(const char *slot) {
  return QLatin1String(slot) + QLatin1String(" Frame");
}

QString FileName(const char *slot) {
  return QString::fromLatin1(slot).remove(u' ') + QLatin1String("Frame.html");
}

// A number that the field can't hold leaves it as it was.
void StoreMargin(qint16 &field, const QLineEdit &box) {
  using Limits = std::numeric_limits<qint16>;
  const qint64 pixels = mText::RoundToEven(mText::Val(mText::Trim(box.text())));
  if (pixels >= Limits::min() && pixels <= Limits::max()) field = qint16(pixels);
}

}  // namespace

frmInsertFrame::frmInsertFrame() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  lblFrameSourceDescription_ = {lblFrameSourceDescription_0, lblFrameSourceDescription_1,
                                lblFrameSourceDescription_2, lblFrameSourceDescription_3,
                                lblFrameSourceDescription_4};
  txtFrameSourceDescription_ = {txtFrameSourceDescription_0, txtFrameSourceDescription_1,
                                txtFrameSourceDescription_2, txtFrameSourceDescription_3,
                                txtFrameSourceDescription_4};
  optScrolling_ = {optScrolling_0, optScrolling_1, optScrolling_2};
  optResize_ = {optResize_0, optResize_1};
  KeepPlaces();
  connect(fraFrameTypes, &FramePictures::Clicked, this, &frmInsertFrame::picFrame_Click);
  connect(tabFrameAttributes, &QTabBar::currentChanged, this,
          [this](int tab) { tabFrameAttributes_Click(tab + 1); });
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertFrame::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

// Nothing jumps when rows come and go.
void frmInsertFrame::KeepPlaces() {
  for (QLineEdit *box : txtFrameSourceDescription_) {
    QSizePolicy policy = box->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    box->setSizePolicy(policy);
  }
  int widest = 0;
  for (const FramesetLayout &layout : FramesetLayouts()) {
    for (const char *slot : layout.slots) {
      widest = std::max(widest, fontMetrics().horizontalAdvance(LabelText(slot)));
    }
  }
  laySources->setColumnMinimumWidth(0, widest);
}

void frmInsertFrame::Load() {
  fraFrameTypes->Click(0);
}

void frmInsertFrame::picFrame_Click(int index) {
  selected_ = qint16(index);
  shownRow_ = 1;
  SetFrameSourceTag(index);
}

// The other controls keep what they show, until a tab is turned.
void frmInsertFrame::SetFrameSourceTag(int index) {
  const FramesetLayout &layout = FramesetLayouts()[index];
  txtMarginheight->setText(QStringLiteral("0"));
  txtMarginwidth->setText(QStringLiteral("0"));
  slots_ = int(layout.slots.size());
  for (int slot = 0; slot < maxSlots; ++slot) {
    lblFrameSourceDescription_[slot]->setVisible(slot < slots_);
    txtFrameSourceDescription_[slot]->setVisible(slot < slots_);
    if (slot >= slots_) continue;
    lblFrameSourceDescription_[slot]->setText(LabelText(layout.slots[slot]));
    txtFrameSourceDescription_[slot]->setText(FileName(layout.slots[slot]));
  }
  if (!layout.odd.keepsAttributes) frameSourceTable.assign(layout.slots.size() + 1, {});
  const QSignalBlocker quiet(tabFrameAttributes);
  while (tabFrameAttributes->count() > 0) tabFrameAttributes->removeTab(0);
  for (const char *tab : layout.Tabs()) tabFrameAttributes->addTab(QString::fromLatin1(tab));
}

// Attributes are stored here alone: those of the tab in view when the text is made are not.
void frmInsertFrame::tabFrameAttributes_Click(int tab) {
  StoreAttributes(frameSourceTable[shownRow_]);
  shownRow_ = tab;
  ShowAttributes(frameSourceTable[tab]);
}

void frmInsertFrame::StoreAttributes(FrameAttributes &row) const {
  row.scrolling = qint16(ChosenOption(optScrolling_));
  row.resize = qint16(ChosenOption(optResize_));
  row.frameborder = chkFrameBorder->isChecked() ? 1 : 0;
  StoreMargin(row.marginheight, *txtMarginheight);
  StoreMargin(row.marginwidth, *txtMarginwidth);
}

void frmInsertFrame::ShowAttributes(const FrameAttributes &row) {
  optScrolling_[row.scrolling]->setChecked(true);
  optResize_[row.resize]->setChecked(true);
  chkFrameBorder->setChecked(row.frameborder != 0);
  txtMarginheight->setText(mText::NumberText(row.marginheight));
  txtMarginwidth->setText(mText::NumberText(row.marginwidth));
}

void frmInsertFrame::cmdOk_Click() {
  QStringList sources;
  for (int slot = 0; slot < slots_; ++slot) sources << txtFrameSourceDescription_[slot]->text();
  Insertion::ReplaceSelection(BuildFramesetText(selected_, sources, frameSourceTable));
  Unload(*this);
}
