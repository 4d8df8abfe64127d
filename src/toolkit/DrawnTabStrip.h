#pragma once

#include <QList>
#include <QWidget>

#include "toolkit/DrawnCells.h"

/// A box whose foot is a row of drawn tabs, 80 pixels wide each; the active one joins the area
/// above. What stands in that area is the caller's. With the keyboard the arrows turn from tab to
/// tab.
class DrawnTabStrip : public QWidget, public DrawnCells {
  Q_OBJECT

 public:
  /// What a tab says while it is active and while it is not; more than one line each if the strip
  /// has them.
  struct Label {
    QString active;
    QString inactive;
  };

  static constexpr int LineHeight = 13;
  static constexpr int TabWidth = 80;

  explicit DrawnTabStrip(QWidget *parent = nullptr);

  /// The tabs, the first one active, and how many lines a label has.
  void SetTabs(const QList<Label> &labels, int lines = 1);

  /// 1-based. Setting it draws the tabs anew and tells nobody.
  int ActiveTab() const { return active_; }
  void SetActiveTab(int tab);

  /// The pixel row at which the tabs begin, and above which the area ends.
  int TabTop() const { return height() - lines_ * LineHeight - 1; }

  int CellCount() const override { return int(labels_.size()); }
  QString CellName(int tab) const override;
  QRect CellRect(int tab) const override;
  void PressCell(int tab) override { Q_EMIT TabPressed(tab); }
  int CurrentCell() const override { return active_; }
  QAccessible::Role Role() const override { return QAccessible::PageTabList; }
  QAccessible::Role CellRole() const override { return QAccessible::PageTab; }

 Q_SIGNALS:
  /// The user has pressed a tab, the active one or another.
  void TabPressed(int tab);
  void Resized();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;

 private:
  int TabAt(QPoint place) const;
  void DrawTab(QPainter &painter, int tab) const;

  QList<Label> labels_;
  int lines_ = 1;
  int active_ = 1;
};
