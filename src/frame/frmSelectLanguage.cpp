#include "frame/frmSelectLanguage.h"

#include "frame/mPublic.h"
#include "frame/mdiMain.h"

frmSelectLanguage::frmSelectLanguage() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdLanguage_0, &QPushButton::clicked, this, [this] { cmdLanguage_Click(0); });
  connect(cmdLanguage_1, &QPushButton::clicked, this, [this] { cmdLanguage_Click(1); });
}

void frmSelectLanguage::Load() {
  cmdLanguage_Click(0);
}

void frmSelectLanguage::cmdLanguage_Click(int index) {
  mPublic::iLanguage = index + 1;
  Unload(*this);
}
