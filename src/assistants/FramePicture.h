#pragma once

#include <QRadioButton>

#include "assistants/FramesetLayouts.h"

/// A radio button that shows how a frameset divides its window.
class FramePicture : public QRadioButton {
  Q_OBJECT

 public:
  /// The layout must outlive the picture.
  explicit FramePicture(const FramesetLayout &layout, QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent *event) override;
  bool hitButton(const QPoint &place) const override { return rect().contains(place); }

 private:
  const FramesetLayout &layout_;
};
