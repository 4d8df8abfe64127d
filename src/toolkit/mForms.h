#pragma once

#include <QCloseEvent>
#include <QDialog>
#include <QString>
#include <initializer_list>

/// What asks a form to unload.
enum class UnloadMode {
  ControlMenu,  ///< the user, through the window's own close button or Escape
  Code,         ///< the program
  SystemEnd,    ///< the session ends
  TaskManager,  ///< the process is asked to end
};

/// A window with the life of the system's forms: loaded when it is first needed, asked before it
/// goes.
class Form {
 public:
  virtual ~Form() = default;

  /// What the form does once its controls stand. Runs once, when others can already reach it.
  virtual void Load() {}

  /// Whether the form may go. May show questions and pump events.
  virtual bool QueryUnload(UnloadMode) { return true; }

  /// What the form lets go of at once when it has agreed to go, before it is hidden.
  virtual void Unloaded() {}

  /// True from the moment that the form has agreed to go. The object lives on, hidden, as long as a
  /// handler of it may be on the stack; such a handler should end.
  bool IsUnloaded() const { return unloaded_; }

  /// The window that this form is.
  virtual QWidget &Window() = 0;

 private:
  friend bool Unload(Form &, UnloadMode);
  bool asking_ = false;
  bool unloaded_ = false;
};

/// Asks the form's QueryUnload. If it agrees, the form is hidden, its timers stop, it is no default
/// instance any more and is laid aside; it is destroyed once no handler can be on the stack. False
/// if it refused, or is already being asked.
bool Unload(Form &form, UnloadMode mode = UnloadMode::Code);

/// A form on one of Qt's window classes: its close event asks QueryUnload.
template <class Base>
class FormOf : public Base, public Form {
 public:
  using Base::Base;
  QWidget &Window() override { return *this; }

 protected:
  void closeEvent(QCloseEvent *event) override {
    event->setAccepted(Unload(*this, UnloadMode::ControlMenu));
  }
};

/// A dialog form; Escape is its close button.
class DialogForm : public FormOf<QDialog> {
  Q_OBJECT

 public:
  using FormOf::FormOf;
  void reject() override { Unload(*this, UnloadMode::ControlMenu); }
};

namespace mForms {

/// The default instance of that name, or null if there is none now.
Form *Find(const QString &name);

void Remember(const QString &name, Form *form);

/// Unloads the default instances of these names in this order. A form that was never made stays
/// unmade; one that refuses stays.
void UnloadDefaults(std::initializer_list<const char *> names);

/// Destroys every form, laid aside or not, without asking. For the end of the process.
void DestroyAll();

/// Destroys the forms that were laid aside, if no handler can be on the stack. The event loop calls
/// it.
void DestroyLaidAside();

}  // namespace mForms

/// The default instance of a form, made and loaded at first use. Lives until it is unloaded.
template <class F>
F *Default() {
  const QString name = QString::fromLatin1(F::staticMetaObject.className());
  if (Form *form = mForms::Find(name)) return static_cast<F *>(form);
  auto *form = new F;
  mForms::Remember(name, form);
  form->Load();
  return form;
}
