#pragma once

#include <QObject>

class QWidget;

/// Holds back the painting of a window whose text box shows what it should, until something would
/// change that: its text, selection, scroll position, size, focus or palette, an exposure, a mouse
/// button or wheel anywhere in the program, or the window's close.
class FrozenPainting : public QObject {
  Q_OBJECT

 public:
  /// Of the window that is its parent.
  explicit FrozenPainting(QWidget *window);

  /// Paints at once what waits to be painted, and nothing from then on.
  void Freeze();
  void Free();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QWidget *window_;
  bool frozen_ = false;
};
