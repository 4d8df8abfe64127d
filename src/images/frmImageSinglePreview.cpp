#include "images/frmImageSinglePreview.h"

#include <algorithm>

#include "base/mText.h"
#include "frame/PanelFont.h"
#include "images/frmImageViewer.h"
#include "toolkit/LoadPicture.h"
#include "toolkit/WindowOnTop.h"
#include "toolkit/twips.h"

frmImageSinglePreview::frmImageSinglePreview() : DialogForm(Default<frmImageViewer>()) {
  setupUi(this);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmImageSinglePreview::Load() {
  SetPanelFont(*cmdClose);
  SetPanelFont(*lblImagePathName);
  const QString path = mText::Trim(Default<frmImageViewer>()->SelectedImage());
  if (auto picture = LoadPicture(Default<frmImageViewer>()->SelectedImage())) {
    picImage->setPixmap(QPixmap::fromImage(*std::move(picture)));
  }
  PlaceControls();
  lblImagePathName->setText(path);
  lblImagePathName->setToolTip(path.toHtmlEscaped());
}

// The picture counts double in the window's height: there is room below it.
void frmImageSinglePreview::PlaceControls() {
  if (!picImage->pixmap(Qt::ReturnByValue).isNull()) picImage->adjustSize();
  cmdClose->adjustSize();
  cmdClose->move(0, 0);
  picImage->move(0, cmdClose->height() + twips(2 + 100));
  resize(picImage->width() + twips(300), cmdClose->height() + 2 * picImage->height() + twips(200));
  lblImagePathName->setGeometry(cmdClose->width() + twips(70), 0,
                                std::max(0, width() - cmdClose->width() - twips(7)),
                                cmdClose->height());
}

void frmImageSinglePreview::showEvent(QShowEvent *event) {
  DialogForm::showEvent(event);
  SetWindowOnTop(*this, true);
}
