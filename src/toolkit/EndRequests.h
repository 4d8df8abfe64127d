#pragma once

#include <QObject>
#include <functional>

/// Hears the requests to end that the user doesn't make in a window: the signals SIGTERM, SIGHUP
/// and SIGINT, and the desktop's, at a logout. There is one such object at most.
class EndRequests : public QObject {
  Q_OBJECT

 public:
  /// end is called from the event loop, be it a dialog's or a pumped one, at the first request. A
  /// second signal ends the process by its default action, whatever the process is doing; but one
  /// of another kind within a second is the same request, since the system's manager of sessions
  /// sends SIGHUP right behind SIGTERM. save is called when the desktop is about to log out, which
  /// the user may yet cancel. SIGHUP stays ignored where it was when the process started.
  EndRequests(std::function<void()> save, std::function<void()> end);

  /// Gives the signals their default action back.
  ~EndRequests() override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  std::function<void()> end_;
};
