#include "toolkit/DrawnCells.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace {

class Cell : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Cell(QWidget *widget, DrawnCells *cells, int number)
      : widget_(widget), cells_(cells), number_(number) {}

  bool isValid() const override { return widget_; }
  QObject *object() const override { return nullptr; }
  QWindow *window() const override { return widget_->window()->windowHandle(); }
  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(widget_);
  }
  QAccessibleInterface *child(int) const override { return nullptr; }
  QAccessibleInterface *childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface *) const override { return -1; }

  QAccessible::Role role() const override { return cells_->CellRole(); }
  QString text(QAccessible::Text text) const override {
    return text == QAccessible::Name ? cells_->CellName(number_) : QString();
  }
  void setText(QAccessible::Text, const QString &) override {}
  QRect rect() const override {
    const QRect cell = cells_->CellRect(number_);
    return QRect(widget_->mapToGlobal(cell.topLeft()), cell.size());
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = widget_->hasFocus() && cells_->CurrentCell() == number_;
    state.disabled = !widget_->isEnabled();
    state.invisible = !widget_->isVisible();
    return state;
  }

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString &action) override {
    if (action == pressAction()) cells_->PressCell(number_);
  }
  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  QPointer<QWidget> widget_;
  DrawnCells *cells_;  // a part of the widget
  int number_;
};

class Strip : public QAccessibleWidget {
 public:
  Strip(QWidget *widget, DrawnCells *cells)
      : QAccessibleWidget(widget, cells->Role()), source_(cells) {}
  ~Strip() override {
    for (const QAccessible::Id cell : cells_) QAccessible::deleteAccessibleInterface(cell);
  }

  // The widget may get its cells later than its name, with which it becomes known to assistive
  // tools.
  int childCount() const override { return source_->CellCount(); }
  QAccessibleInterface *child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    while (int(cells_.size()) <= index) {
      auto *cell = new Cell(widget(), source_, int(cells_.size()) + 1);
      cells_.push_back(QAccessible::registerAccessibleInterface(cell));
    }
    return QAccessible::accessibleInterface(cells_[index]);
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
    return widget()->hasFocus() ? child(source_->CurrentCell() - 1) : nullptr;
  }

 private:
  DrawnCells *source_;
  mutable std::vector<QAccessible::Id> cells_;  // made when they are asked for
};

QAccessibleInterface *Make(const QString &, QObject *object) {
  auto *widget = qobject_cast<QWidget *>(object);
  auto *cells = dynamic_cast<DrawnCells *>(object);
  return widget && cells ? new Strip(widget, cells) : nullptr;
}

}  // namespace

void DrawnCells::InstallAccessible() {
  static const bool installed = [] {
    QAccessible::installFactory(&Make);
    return true;
  }();
  Q_UNUSED(installed);
}
