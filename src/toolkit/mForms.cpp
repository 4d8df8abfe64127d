#include "toolkit/mForms.h"

#include <QHash>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <utility>
#include <vector>

#include "toolkit/DoEvents.h"

namespace {

QHash<QString, Form *> &Defaults() {
  static QHash<QString, Form *> defaults;
  return defaults;
}

std::vector<QPointer<QWidget>> laidAside;

// Forms that can't be destroyed yet are looked at again after this many milliseconds: a modal
// dialog or a menu may hold its loop for long, and nobody waits for the memory.
constexpr int retryInterval = 100;

void LayAside(QWidget &window) {
  const auto timers = window.findChildren<QTimer *>();
  for (QTimer *timer : timers) timer->stop();
  window.hide();
  laidAside.emplace_back(&window);
  QTimer::singleShot(0, &mForms::DestroyLaidAside);
}

}  // namespace

bool Unload(Form &form, UnloadMode mode) {
  if (form.unloaded_) return true;
  if (form.asking_) return false;
  form.asking_ = true;
  const bool agreed = form.QueryUnload(mode);
  form.asking_ = false;
  if (!agreed) return false;
  form.unloaded_ = true;
  Defaults().removeIf([&form](const auto &entry) { return entry.value() == &form; });
  form.Unloaded();
  LayAside(form.Window());
  return true;
}

namespace mForms {

Form *Find(const QString &name) {
  return Defaults().value(name);
}

void Remember(const QString &name, Form *form) {
  Defaults().insert(name, form);
  QObject::connect(&form->Window(), &QObject::destroyed, [form] {
    Defaults().removeIf([form](const auto &entry) { return entry.value() == form; });
  });
}

void UnloadDefaults(std::initializer_list<const char *> names) {
  for (const char *name : names) {
    if (Form *form = Find(QString::fromLatin1(name))) Unload(*form);
  }
}

void DestroyLaidAside() {
  if (laidAside.empty()) return;
  if (DoEventsRunning() || QThread::currentThread()->loopLevel() > 1) {
    QTimer::singleShot(retryInterval, &DestroyLaidAside);
    return;
  }
  const auto forms = std::exchange(laidAside, {});
  for (const auto &form : forms) delete form.data();
}

void DestroyAll() {
  while (!Defaults().isEmpty()) delete &Defaults().begin().value()->Window();
  for (const auto &form : std::exchange(laidAside, {})) delete form.data();
}

}  // namespace mForms
