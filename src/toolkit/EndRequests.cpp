#include "toolkit/EndRequests.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QEvent>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>

namespace {

constexpr int requests[] = {SIGTERM, SIGHUP, SIGINT};

int bell = -1;  // counts the signals that have arrived; a notifier waits for it

std::atomic<int64_t> firstAt = 0;           // when the first signal came, in nanoseconds
constexpr int64_t together = 1000'000'000;  // signals within this are one request

int64_t Now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return int64_t(time.tv_sec) * 1000'000'000 + time.tv_nsec;
}

// Calls only what may be called in the middle of anything.
void Ring(int request) {
  const int error = errno;
  const int64_t now = Now();
  int64_t first = 0;
  std::signal(request, SIG_DFL);
  if (firstAt.compare_exchange_strong(first, now)) {
    const uint64_t once = 1;
    [[maybe_unused]] const auto written = write(bell, &once, sizeof once);
  } else if (now - first > together) {
    std::raise(request);
  }
  errno = error;
}

bool IsHandledBy(int request, void (*handler)(int)) {
  struct sigaction action {};
  return sigaction(request, nullptr, &action) == 0 && action.sa_handler == handler;
}

}  // namespace

EndRequests::EndRequests(std::function<void()> save, std::function<void()> end)
    : end_(std::move(end)) {
  firstAt = 0;
  bell = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  auto *notifier = new QSocketNotifier(bell, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
    notifier->setEnabled(false);
    end_();
  });
  for (const int request : requests) {
    if (!IsHandledBy(request, SIG_IGN)) std::signal(request, Ring);
  }
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, save, Qt::DirectConnection);
  connect(qGuiApp, &QGuiApplication::saveStateRequest, this, save, Qt::DirectConnection);
  qGuiApp->installEventFilter(this);
}

EndRequests::~EndRequests() {
  for (const int request : requests) {
    if (IsHandledBy(request, Ring)) std::signal(request, SIG_DFL);
  }
  close(bell);
}

// The toolkit would close all windows, and each would ask.
bool EndRequests::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Quit || watched != qGuiApp) return false;
  end_();
  return true;
}
