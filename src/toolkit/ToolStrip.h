#pragma once

#include <QImage>
#include <QWidget>

/// A row or column of cells of 24 by 24 pixels whose buttons are drawn point by point.
class ToolStrip : public QWidget {
  Q_OBJECT

 public:
  static constexpr int Cell = 24;  ///< edge of a cell in device-independent pixels

  /// A strip of that many buttons, from left to right or from top to bottom.
  ToolStrip(Qt::Orientation direction, int buttons, QWidget *parent = nullptr);

  /// Colours one pixel of the artwork; it stays until it is coloured anew. Pixels outside the strip
  /// are ignored. colour is red + 256 green + 65536 blue, as pixel files hold it.
  void PSet(int x, int y, qint32 colour);

  /// What has been drawn, transparent elsewhere.
  const QImage &Artwork() const { return artwork_; }

  QSize sizeHint() const override { return artwork_.size(); }

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QImage artwork_;
};
