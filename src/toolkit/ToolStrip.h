#pragma once

#include <QColor>
#include <QImage>
#include <QStringList>
#include <QWidget>
#include <map>

#include "base/StripButton.h"
#include "toolkit/DrawnCells.h"

/// A row or column of buttons in cells of 24 by 24 pixels, drawn point by point. Buttons are
/// numbered from 1 at the strip's start. The pointer raises the cell it is over; a press sinks it.
/// With the keyboard Tab reaches the strip once, arrows move inside it, Space and Return press. To
/// assistive tools each button is a push button named by its tooltip.
class ToolStrip : public QWidget, public DrawnCells {
  Q_OBJECT

 public:
  static constexpr int Cell = StripCell;

  /// A button for each tooltip, from left to right or from top to bottom; without tooltips one cell
  /// that only shows its picture.
  ToolStrip(Qt::Orientation direction, const QStringList &toolTips, QWidget *parent = nullptr);

  const QStringList &ToolTips() const { return toolTips_; }

  int CellCount() const override { return int(toolTips_.size()); }
  QString CellName(int button) const override { return toolTips_[button - 1]; }
  QRect CellRect(int button) const override;
  void PressCell(int button) override { Press(button); }
  int CurrentCell() const override { return current_; }
  QAccessible::Role Role() const override { return QAccessible::ToolBar; }
  QAccessible::Role CellRole() const override { return QAccessible::PushButton; }

  /// Does what a click on the button does.
  void Press(int button);

  /// Colours one pixel of the artwork; it stays until it is coloured anew. Pixels outside the strip
  /// are ignored. colour is red + 256 green + 65536 blue, as pixel files hold it.
  void PSet(int x, int y, qint32 colour);

  /// What has been drawn, transparent elsewhere.
  const QImage &Artwork() const { return artwork_; }

  /// Marks a cell with a small filled square; an invalid colour takes it away.
  void SetSquare(int button, const QColor &colour);
  QColor Square(int button) const;

  /// Takes the raised or sunken look away.
  void ClearMark();
  int MarkedButton() const { return marked_; }  ///< 0 if none is marked

  QSize sizeHint() const override { return artwork_.size(); }

 Q_SIGNALS:
  void ButtonUp(int button);

 protected:
  bool event(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void leaveEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  enum class Look { Raised, Sunken };

  void DrawArtwork(QPainter &painter) const;
  bool IsButton(int button) const { return button >= 1 && button <= CellCount(); }
  int ButtonUnder(QPoint place) const;
  void Mark(int button, Look look);
  void MoveTo(int button);

  Qt::Orientation direction_;
  QStringList toolTips_;
  QImage artwork_;
  std::map<int, QColor> squares_;
  int marked_ = 0;
  Look look_ = Look::Raised;
  int current_ = 1;
};
