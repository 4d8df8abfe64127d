#pragma once

#include <QObject>
#include <functional>
#include <vector>

class QWidget;

/// F6 and Shift+F6 take the keyboard round a window's stops; Escape takes it back to the first one,
/// unless the control that has it uses that key. Owned by the window.
class FocusRound : public QObject {
  Q_OBJECT

 public:
  /// Each stop is asked for when it is needed; null, hidden or disabled ones are passed over.
  using Stop = std::function<QWidget *()>;

  FocusRound(QWidget *window, std::vector<Stop> stops);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Go(int direction);
  int Current() const;
  bool TakeFocus(int stop) const;

  QWidget *window_;
  std::vector<Stop> stops_;
};
