#pragma once

#include <QObject>

class QWidget;

/// Draws the style's focus rectangle round a widget that doesn't show by itself that it has the
/// keyboard. It belongs to the widget.
class FocusMark : public QObject {
  Q_OBJECT

 public:
  explicit FocusMark(QWidget *widget);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool painting_ = false;
};
