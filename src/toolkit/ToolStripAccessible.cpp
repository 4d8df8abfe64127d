#include "toolkit/ToolStripAccessible.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

#include "toolkit/ToolStrip.h"

namespace {

class Button : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Button(ToolStrip *strip, int number) : strip_(strip), number_(number) {}

  bool isValid() const override { return strip_; }
  QObject *object() const override { return nullptr; }
  QWindow *window() const override { return strip_->window()->windowHandle(); }
  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(strip_);
  }
  QAccessibleInterface *child(int) const override { return nullptr; }
  QAccessibleInterface *childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::PushButton; }
  QString text(QAccessible::Text text) const override {
    return text == QAccessible::Name ? strip_->ToolTips()[number_ - 1] : QString();
  }
  void setText(QAccessible::Text, const QString &) override {}
  QRect rect() const override {
    const QRect cell = strip_->CellRect(number_);
    return QRect(strip_->mapToGlobal(cell.topLeft()), cell.size());
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = strip_->hasFocus() && strip_->CurrentButton() == number_;
    state.disabled = !strip_->isEnabled();
    state.invisible = !strip_->isVisible();
    return state;
  }

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString &action) override {
    if (action == pressAction()) strip_->Press(number_);
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  QPointer<ToolStrip> strip_;
  int number_;
};

class Strip : public QAccessibleWidget {
 public:
  explicit Strip(ToolStrip *strip) : QAccessibleWidget(strip, QAccessible::ToolBar) {
    for (int button = 1; button <= strip->ButtonCount(); ++button) {
      buttons_.push_back(QAccessible::registerAccessibleInterface(new Button(strip, button)));
    }
  }
  ~Strip() override {
    for (const QAccessible::Id button : buttons_) QAccessible::deleteAccessibleInterface(button);
  }

  int childCount() const override { return int(buttons_.size()); }
  QAccessibleInterface *child(int index) const override {
    const bool exists = index >= 0 && index < childCount();
    return exists ? QAccessible::accessibleInterface(buttons_[index]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface *sought) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == sought) return i;
    }
    return -1;
  }
  QAccessibleInterface *childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }
  QAccessibleInterface *focusChild() const override {
    const auto &strip = static_cast<const ToolStrip &>(*widget());
    return strip.hasFocus() ? child(strip.CurrentButton() - 1) : nullptr;
  }

 private:
  std::vector<QAccessible::Id> buttons_;
};

QAccessibleInterface *Make(const QString &, QObject *object) {
  auto *strip = qobject_cast<ToolStrip *>(object);
  return strip && strip->ButtonCount() > 0 ? new Strip(strip) : nullptr;
}

}  // namespace

void ToolStripAccessible::Install() {
  static const bool installed = [] {
    QAccessible::installFactory(&Make);
    return true;
  }();
  Q_UNUSED(installed);
}
