#include "assistants/frmInsertImage.h"

#include <array>

#include "assistants/ImageText.h"
#include "base/mText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"
#include "toolkit/FocusMark.h"
#include "toolkit/LoadPicture.h"

frmInsertImage::frmInsertImage() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  new FocusMark(scrSelectedImage);
  clgOpenImage.Filter = PictureFilter();
  SetSettingsEnabled(false);
  connect(cmdSelectImage, &QPushButton::clicked, this, &frmInsertImage::cmdSelectImage_Click);
  connect(optImageSource_0, &QRadioButton::clicked, this, [this] { optImageSource_Click(false); });
  connect(optImageSource_1, &QRadioButton::clicked, this, [this] { optImageSource_Click(true); });
  connect(txtReferenceToURL, &QLineEdit::textChanged, this,
          &frmInsertImage::txtReferenceToURL_Change);
  connect(optImageDimensions_0, &QRadioButton::clicked, this,
          [this] { SetMeasuresEnabled(false); });
  connect(optImageDimensions_1, &QRadioButton::clicked, this, [this] { SetMeasuresEnabled(true); });
  connect(cmdOk, &QPushButton::clicked, this, &frmInsertImage::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmInsertImage::cmdSelectImage_Click() {
  if (!clgOpenImage.ShowOpen()) return;
  txtSelectImage->setText(clgOpenImage.FileName);
  if (auto picture = LoadPicture(clgOpenImage.FileName)) {
    picSelectedImage->setPixmap(QPixmap::fromImage(*std::move(picture)));
    picSelectedImage->adjustSize();
  }
  // Also when the picture couldn't be loaded: the path can be inserted all the same.
  SetSettingsEnabled(true);
  optImageDimensions_0->setText(QStringLiteral("Normal Sized  (Height: %1 Width: %2)")
                                    .arg(PictureSize().height())
                                    .arg(PictureSize().width()));
}

void frmInsertImage::optImageSource_Click(bool url) {
  txtReferenceToURL->setEnabled(url);
  cmdSelectImage->setEnabled(!url);
  if (url) txtReferenceToURL_Change();
}

void frmInsertImage::txtReferenceToURL_Change() {
  SetSettingsEnabled(!mText::Trim(txtReferenceToURL->text()).isEmpty());
}

void frmInsertImage::SetSettingsEnabled(bool enabled) {
  fraImageDimensions->setEnabled(enabled);
  optImageDimensions_0->setEnabled(enabled);
  optImageDimensions_1->setEnabled(enabled);
  SetMeasuresEnabled(enabled);
}

// The alternative text and the border go with the typed measures.
void frmInsertImage::SetMeasuresEnabled(bool enabled) {
  const std::array<QWidget *, 8> controls{lblHeight, lblWidth,           lblAltText,  txtHeight,
                                          txtWidth,  txtAlternativeText, optBorder_0, optBorder_1};
  for (QWidget *control : controls) control->setEnabled(enabled);
}

// Of the empty box, as long as no picture was loaded.
QSize frmInsertImage::PictureSize() const {
  return picSelectedImage->contentsRect().size();
}

void frmInsertImage::cmdOk_Click() {
  using Dimensions = ImageText::Dimensions;
  const bool chosen = optImageSource_0->isChecked();
  const Dimensions typed = optMeasurement_1->isChecked() ? Dimensions::Percent : Dimensions::Pixels;
  const ImageText image{
      .source = chosen ? txtSelectImage->text() : txtReferenceToURL->text(),
      .dimensions = optImageDimensions_0->isChecked() ? Dimensions::Normal : typed,
      .picture = PictureSize(),
      .height = txtHeight->text(),
      .width = txtWidth->text(),
      .bordered = optBorder_1->isChecked(),
      .borderThick = txtBorderThick->text(),
      .alternativeText = txtAlternativeText->text(),
  };
  Insertion::ReplaceSelection(image.Tag());
  Unload(*this);
}
