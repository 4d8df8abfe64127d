#include "assistants/frmInsertList.h"

#include "assistants/ListText.h"
#include "assistants/OpenAssistant.h"
#include "documents/Insertion.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/ChosenOption.h"

frmInsertList::frmInsertList() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  optListType_ = {optListType_0, optListType_1, optListType_2, optListType_3, optListType_4};
  optBulletType_ = {optBulletType_0, optBulletType_1, optBulletType_2};
  optNumberingStyle_ = {optNumberingStyle_0, optNumberingStyle_1, optNumberingStyle_2,
                        optNumberingStyle_3, optNumberingStyle_4};
  const std::array<QWidget *, 5> details{fraBulletType, fraNumberingStyle, pagNone, pagNone,
                                         pagNone};
  for (size_t kind = 0; kind < details.size(); ++kind) {
    connect(optListType_[kind], &QRadioButton::toggled, this,
            [this, page = details[kind]](bool on) {
              if (on) stkDetails->setCurrentWidget(page);
            });
  }
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertList::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmInsertList::Load() {
  raise();
}

void frmInsertList::Open(int kind) {
  if (!mPublic::AnyEditorOpen()) return;
  auto *form = Default<frmInsertList>();
  form->optListType_[size_t(kind)]->setChecked(true);
  ShowFromStart(*form);
}

void frmInsertList::cmdOk_Click() {
  ListText list;
  list.kind = ChosenOption(optListType_);
  list.bulletType = ChosenOption(optBulletType_);
  list.numberingStyle = ChosenOption(optNumberingStyle_);
  list.compact = chkCompact->isChecked();
  list.noOfItems = txtNoOfItems->text();
  list.startValue = txtStartValue->text();
  Insertion::ReplaceSelection(list.Build());
  hide();
}
