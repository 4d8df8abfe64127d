#include "frame/frmLanguage.h"

#include "base/mFolders.h"
#include "frame/mdiMain.h"

frmLanguage::frmLanguage()
    : DialogForm(Default<mdiMain>()),
      texts_(mFolders::InProgramFolder(QStringLiteral("lang.dat"))) {
  setupUi(this);
  connect(cmdNavigation_0, &QPushButton::clicked, this, [this] { cmdNavigation_Click(0); });
  connect(cmdNavigation_1, &QPushButton::clicked, this, [this] { cmdNavigation_Click(1); });
}

void frmLanguage::Load() {
  cmdNavigation_Click(0);
}

void frmLanguage::cmdNavigation_Click(int index) {
  using Direction = LanguageTexts::Direction;
  texts_.german = txtDeutsch->Text();
  texts_.english = txtEnglish->Text();
  texts_.Go(index == 0 ? Direction::Next : Direction::Previous);
  setWindowTitle(QStringLiteral("Spracheinstellungen/ Lanuage Settings     ITEM: %1/%2")
                     .arg(texts_.Number())
                     .arg(texts_.Count()));
  txtDeutsch->SetText(texts_.german);
  txtEnglish->SetText(texts_.english);
}
