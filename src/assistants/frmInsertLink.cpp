#include "assistants/frmInsertLink.h"

#include <array>

#include "assistants/LinkSchemes.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"

namespace {

// With its beginning in view.
void Show(QLineEdit &box, const QString &text) {
  box.setText(text);
  box.setCursorPosition(0);
}

}  // namespace

frmInsertLink::frmInsertLink() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  const auto schemes = LinkSchemes(MakerEndpoints::Configured());
  const std::array optLinkType{optLinkType_0, optLinkType_1, optLinkType_2,
                               optLinkType_3, optLinkType_4, optLinkType_5};
  for (size_t i = 0; i < optLinkType.size(); ++i) {
    connect(optLinkType[i], &QRadioButton::clicked, this,
            [this, scheme = schemes[i]] { Show(*txtSchema, scheme); });
  }
  Show(*txtSchema, schemes[0]);
  connect(cmdTake, &QPushButton::clicked, this, [this] { Show(*txtLink_0, txtSchema->text()); });
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertLink::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmInsertLink::cmdOk_Click() {
  Insertion::ReplaceSelection(txtLink_0->text());
  hide();
}
