#include "assistants/FramePictures.h"

#include "assistants/FramePicture.h"

namespace {
constexpr int columns = 13;
}

FramePictures::FramePictures(QWidget *parent)
    : QGroupBox(parent), layPictures_(new QGridLayout(this)), shpSelection_(new QFrame(this)) {
  layPictures_->setSpacing(0);
  shpSelection_->setObjectName(QStringLiteral("shpSelection"));
  shpSelection_->setStyleSheet(QStringLiteral(
      "#shpSelection { border: 2px solid palette(highlight); border-radius: 3px; }"));
  int index = 0;
  for (const FramesetLayout &layout : FramesetLayouts()) {
    auto *picture = new FramePicture(layout, this);
    picture->setObjectName(QStringLiteral("picFrame_%1").arg(index));
    layPictures_->addWidget(picture, index / columns, index % columns, Qt::AlignCenter);
    connect(picture, &QRadioButton::clicked, this, [this, index] {
      Outline(index);
      Q_EMIT Clicked(index);
    });
    shpSelection_->setFixedSize(picture->sizeHint());
    ++index;
  }
}

void FramePictures::Click(int index) {
  findChild<FramePicture *>(QStringLiteral("picFrame_%1").arg(index))->click();
}

// The outline shares the picture's cell.
void FramePictures::Outline(int index) {
  layPictures_->addWidget(shpSelection_, index / columns, index % columns, Qt::AlignCenter);
}
