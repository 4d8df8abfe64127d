#include "assistants/frmInsertHorRule.h"

#include "assistants/HorRuleText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"

frmInsertHorRule::frmInsertHorRule() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertHorRule::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmInsertHorRule::cmdOk_Click() {
  const HorRuleText rule{.align = optAlign_0->isChecked()   ? 0
                                  : optAlign_1->isChecked() ? 1
                                                            : 2,
                         .noShade = chkNoShade->isChecked(),
                         .size = txtSize->text(),
                         .width = txtWidth->text()};
  Insertion::PutInFrontAndPass(rule.Tag());
  Unload(*this);
}
