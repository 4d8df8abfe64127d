#include "monkey/Monkey.h"

#include <sys/time.h>
#include <unistd.h>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QThread>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <tuple>

#include "documents/FileCommands.h"
#include "documents/JournalFile.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "monkey/Fence.h"
#include "monkey/RandomDialogs.h"
#include "shared/AllForms.h"
#include "shared/ScriptedPrograms.h"
#include "stencils/StencilRecord.h"
#include "toolkit/DoEvents.h"
#include "toolkit/EndProgram.h"

namespace {

constexpr size_t remembered = 40;       // actions
constexpr int manyDocuments = 12;       // from here on fewer are opened
constexpr int stepsInOneFolder = 2000;  // what has grown in it goes then
constexpr int stepsBetweenKills = 100;  // that are only thought of
constexpr int shortLibrary = 60;        // stencils; all of them would take most of the time
constexpr int nestedActionOneIn = 6;

QString NameOf(const QObject *object) {
  if (!object) return QStringLiteral("nothing");
  return QLatin1String(object->metaObject()->className()) + u' ' + object->objectName();
}

void PutFile(const QString &path, const QByteArray &bytes) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes);
}

// In the order of their looks: the toolkit's own is that of addresses.
QWidgetList VisibleWindows() {
  QWidgetList windows;
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowHandle()) windows << window;
  }
  const auto key = [](const QWidget *window) {
    const QRect place = window->geometry();
    return std::tuple(QByteArrayView(window->metaObject()->className()), window->objectName(),
                      window->windowTitle(), place.x(), place.y(), place.width(), place.height());
  };
  std::sort(windows.begin(), windows.end(),
            [&key](const QWidget *a, const QWidget *b) { return key(a) < key(b); });
  return windows;
}

bool IsBlocked(const QWidget *window) {
  const QWidget *modal = QApplication::activeModalWidget();
  return modal && window->window() != modal;
}

// The window system gives nothing to a window that was closed in the meantime.
bool IsThere(const QPointer<QWindow> &window) {
  return window && window->isVisible();
}

// What others do on the machine makes a step no longer, but a step may also wait without end.
void WatchStep(unsigned seconds) {
  const itimerval watch{.it_interval = {}, .it_value = {.tv_sec = time_t(seconds), .tv_usec = 0}};
  setitimer(ITIMER_PROF, &watch, nullptr);
  alarm(10 * seconds);
}

}  // namespace

Monkey::Monkey(const Plan &plan) : plan_(plan), dice_(plan.seed) {
  SetLoopPumpInterval(0);
  Dialogs::Set(std::make_unique<RandomDialogs>(dice_, plan_.folder + QStringLiteral("/docs")));
  SetEndProgram([this] {
    ended_ = true;
    for (QWidget *window : VisibleWindows()) window->hide();
  });
  Begin();
  for (int depth = 0; depth < int(timers_.size()); ++depth) {
    timers_[depth].callOnTimeout([this, depth] { Tick(depth); });
    timers_[depth].start(0);
  }
}

Monkey::~Monkey() {
  mForms::DestroyAll();
  journal_.reset();
  SetEndProgram({});
  Dialogs::Set(nullptr);
  Programs::Set(nullptr);
}

void Monkey::Report() const {
  std::fprintf(stderr, "monkey: seed %u, step %d of %d, depth %d; the last actions:\n", plan_.seed,
               step_, plan_.steps, depth_);
  for (const std::string &action : last_) std::fprintf(stderr, "  %s\n", action.c_str());
  std::fprintf(stderr, "again with: monkey --steps %d --seed %u --trace\n", plan_.steps,
               plan_.seed);
}

void Monkey::Fail(const QString &what) {
  if (failed_) return;
  failed_ = true;
  std::fprintf(stderr, "monkey: FAILED: %s\n", qPrintable(what));
  Report();
  QCoreApplication::exit(1);
}

void Monkey::Note(const QString &what) {
  std::string line = QStringLiteral("%1.%2 %3").arg(step_).arg(depth_).arg(what).toStdString();
  for (const char c : line) fingerprint_ = fingerprint_ * 31 + static_cast<unsigned char>(c);
  if (plan_.trace) std::fprintf(stderr, "%s\n", line.c_str());
  last_.push_back(std::move(line));
  if (last_.size() > remembered) last_.pop_front();
}

// ---- the course of things

// The timer of a depth fires while that of the depth above is still being handled, which is when
// something pumps events or a message box stands.
void Monkey::Tick(int depth) {
  if (depth != depth_ + 1 || failed_) return;
  const bool outermost = depth == 0;
  if (outermost) {
    if (step_ == plan_.steps) return QCoreApplication::exit(0);
    ++step_;
    WatchStep(plan_.longestStep);
  } else if (!dice_.OneIn(nestedActionOneIn)) {
    return;
  }
  depth_ = depth;
  if (depth == int(timers_.size()) - 1) {
    // Nothing deeper would end what stands here, be it a drag, a menu or a message box.
    Press(Qt::Key_Escape, Qt::NoModifier);
  } else if (!ended_) {
    Act();
  }
  depth_ = depth - 1;
  // What the toolkit's own timers have begun may pump or ask as well.
  if (!outermost || DoEventsRunning() || QThread::currentThread()->loopLevel() > 1) return;
  LookAround();
  if (!ended_ && step_ % stepsBetweenKills == 0) LookIntoJournal();
  if (ended_ || step_ % stepsInOneFolder == 0) BeginAnew();
}

void Monkey::Act() {
  static const Kind kinds[] = {
      {30, &Monkey::PressKey},      {8, &Monkey::TypeText},
      {35, &Monkey::Click},         {6, &Monkey::Drag},
      {3, &Monkey::Wheel},          {10, &Monkey::TakeMenuEntry},
      {8, &Monkey::OpenForm},       {4, &Monkey::OpenDocument},
      {6, &Monkey::CloseSomething}, {3, &Monkey::UnloadSomething},
      {4, &Monkey::SizeSomething},  {1, &Monkey::DropFile},
      {1, &Monkey::FillClipboard},  {4, &Monkey::Wait},
  };
  static const int sum =
      std::accumulate(std::begin(kinds), std::end(kinds), 0,
                      [](int all, const Kind &kind) { return all + kind.weight; });
  int drawn = dice_.Below(sum);
  for (const Kind &kind : kinds) {
    if ((drawn -= kind.weight) < 0) return (this->*kind.act)();
  }
}

void Monkey::Begin() {
  FillFolder();
  journal_.emplace(plan_.folder + QStringLiteral("/journal"));
  ScriptedPrograms &programs = ScriptedPrograms::Install();
  if (dice_.OneIn(2)) programs.toFile = Programs::Application{QStringLiteral("viewer.desktop")};
  auto *main = Default<mdiMain>();
  main->show();
  DoEvents();
}

void Monkey::BeginAnew() {
  Note(QStringLiteral("begin anew"));
  journal_.reset();
  mForms::DestroyAll();
  // As after a kill, which brings the texts back, or without what lay there.
  if (dice_.OneIn(2)) QDir(plan_.folder + QStringLiteral("/journal")).removeRecursively();
  mPublic::aEditorState = {};
  mPublic::iActualEditor = 0;
  mPublic::bAppClosing = false;
  ended_ = false;
  Begin();
}

// What a kill would leave says the text of every document that has been changed.
void Monkey::LookIntoJournal() {
  journal_->WriteNow();
  QStringList kept;
  for (const QString &path : JournalFile::In(plan_.folder + QStringLiteral("/journal"))) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) continue;
    const auto document = JournalRecords::Read(file);
    if (document) kept << document->caption + u'\n' + document->text;
  }
  for (const auto &editor : mEditors::aEditorWindow) {
    if (!editor || editor->IsUnloaded() || !editor->txthtml->document()->isModified()) continue;
    const QString text =
        editor->txthtml->Text().replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (!kept.contains(editor->Caption() + u'\n' + text)) {
      Fail(QStringLiteral("the journal lacks ") + editor->Caption());
    }
  }
}

void Monkey::FillFolder() {
  const QDir folder(plan_.folder);
  QDir docs(folder.filePath(QStringLiteral("docs")));
  docs.removeRecursively();
  docs.mkpath(QStringLiteral("inner/deeper"));
  const QByteArray page =
      "<html>\r\n<head>\r\n<title>a</title>\r\n</head>\r\n<body bgcolor=\"#ffffff\">\r\n"
      "<p>text<br>\r\n<!-- note -->\r\n</body>\r\n</html>\r\n";
  PutFile(docs.filePath(QStringLiteral("page.html")), page);
  PutFile(docs.filePath(QStringLiteral("long.htm")), page.repeated(100));
  PutFile(docs.filePath(QStringLiteral("we[*]ird &n.html")), "<p>\xE4\xA0\x81</p>");
  PutFile(docs.filePath(QStringLiteral("empty.html")), "");
  PutFile(docs.filePath(QStringLiteral("A.java")), "class A {\r\n  int a = b;\r\n}\r\n");
  PutFile(docs.filePath(QStringLiteral("zeros.txt")), QByteArray(3000, '\0') + "\r\r\n\n");
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(Qt::red);
  for (const char *name : {"a.png", "b.bmp", "c.jpg", "inner/d.png"}) {
    picture.save(docs.filePath(QLatin1String(name)));
  }
  PutFile(docs.filePath(QStringLiteral("broken.gif")), "GIF89a\x01\x02");
  const QDir delivered(QStringLiteral(TAGWRIGHT_DATA_DIR));
  for (const QString &name :
       delivered.entryList({QStringLiteral("*.dat"), QStringLiteral("*.htf")})) {
    QFile::remove(folder.filePath(name));
    QFile::copy(delivered.filePath(name), folder.filePath(name));
  }
  QFile::remove(mPublic::PreferencesPath());
  QFile::copy(QStringLiteral(TAGWRIGHT_DELIVERED_PREFERENCES), mPublic::PreferencesPath());
  QFile library(folder.filePath(QStringLiteral("htLib0001.htf")));
  library.resize(shortLibrary * qint64(sizeof(StencilRecord)));
}

// What holds whenever nothing is being done.
void Monkey::LookAround() {
  if (ended_) return;
  if (VisibleWindows().isEmpty()) Fail(QStringLiteral("it runs without a window"));
  if (mPublic::bAppClosing) return;  // a refusal leaves a window without its slot
  for (int slot = 1; slot <= mPublic::LastSlot; ++slot) {
    const frmHTMLChild *editor = mEditors::aEditorWindow[slot];
    const bool stands = editor && !editor->IsUnloaded();
    if (stands != mPublic::aEditorState[slot].open) {
      Fail(QStringLiteral("slot %1 and its window differ").arg(slot));
    }
  }
  const int active = mPublic::iActualEditor;
  if (active != 0 && !mPublic::aEditorState[active].open) {
    Fail(QStringLiteral("the active slot %1 isn't open").arg(active));
  }
  if (active == 0 && mPublic::AnyEditorOpen()) Fail(QStringLiteral("no slot is active"));
}

// ---- what there is to choose from

// One that takes input: what is popped up, what is modal, or any.
QWidget *Monkey::AnyWindow() {
  if (QWidget *popup = QApplication::activePopupWidget(); popup && !dice_.OneIn(8)) return popup;
  if (QWidget *modal = QApplication::activeModalWidget(); modal && !dice_.OneIn(8)) return modal;
  const QWidgetList windows = VisibleWindows();
  return windows.isEmpty() ? nullptr : windows[dice_.Below(int(windows.size()))];
}

QWidget *Monkey::AnyWidget(const QWidget &window) {
  QWidgetList widgets;
  for (QWidget *widget : window.findChildren<QWidget *>()) {
    if (widget->isVisible() && !widget->size().isEmpty() && widget->window() == &window) {
      widgets << widget;
    }
  }
  return widgets.isEmpty() ? nullptr : widgets[dice_.Below(int(widgets.size()))];
}

QString Monkey::AnyText() {
  static const QStringList texts{
      QStringLiteral("<b>"),
      QStringLiteral("</table>"),
      QStringLiteral("12"),
      QStringLiteral("99999"),
      QStringLiteral("-3"),
      QStringLiteral("<!--"),
      QStringLiteral("1E300"),
      QStringLiteral("a b c"),
      QStringLiteral("&H1F"),
      QStringLiteral("\u2192\u00E9"),
      QStringLiteral("line\r\nline\n"),
      QStringLiteral("%s%n"),
      QStringLiteral(".htm"),
      QStringLiteral("\"'&"),
      QStringLiteral("\t\t"),
  };
  if (dice_.OneIn(30)) return QString(3000, u'x');
  return texts[dice_.Below(int(texts.size()))];
}

QString Monkey::AnyFile() {
  const QDir docs(plan_.folder + QStringLiteral("/docs"));
  const QStringList names = docs.entryList(QDir::Files);
  return names.isEmpty() ? QString() : docs.filePath(names[dice_.Below(int(names.size()))]);
}

// ---- what a user does

void Monkey::PressKey() {
  static const Qt::Key keys[] = {
      Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,  Qt::Key_Escape,
      Qt::Key_Left,  Qt::Key_Right,   Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Home,
      Qt::Key_End,   Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
      Qt::Key_Space, Qt::Key_F1,      Qt::Key_F4,       Qt::Key_F6,     Qt::Key_F10,
      Qt::Key_Menu,  Qt::Key_Insert,  Qt::Key_Plus,     Qt::Key_Minus,  Qt::Key_Clear,
  };
  static const Qt::KeyboardModifiers modifiers[] = {
      Qt::NoModifier,
      Qt::NoModifier,
      Qt::NoModifier,
      Qt::ShiftModifier,
      Qt::ControlModifier,
      Qt::AltModifier,
      Qt::ControlModifier | Qt::ShiftModifier,
  };
  const int key =
      dice_.OneIn(3) ? Qt::Key_A + dice_.Below(26) : int(keys[dice_.Below(int(std::size(keys)))]);
  const Qt::KeyboardModifiers with = modifiers[dice_.Below(int(std::size(modifiers)))];
  Note(QStringLiteral("key %1 in %2")
           .arg(QKeySequence(key | with).toString(), NameOf(QApplication::focusWidget())));
  Press(Qt::Key(key), with);
}

void Monkey::Press(Qt::Key key, Qt::KeyboardModifiers with) {
  QPointer<QWindow> window = QGuiApplication::focusWindow();
  if (!window) {
    const QWidget *any = AnyWindow();
    window = any ? any->windowHandle() : nullptr;
  }
  if (!window) return;
  QTest::keyPress(window, key, with);
  if (!IsThere(window)) window = QGuiApplication::focusWindow();
  if (window) QTest::keyRelease(window, key, with);
}

void Monkey::TypeText() {
  const QString text = AnyText();
  Note(QStringLiteral("type %1 in %2").arg(text.left(12), NameOf(QApplication::focusWidget())));
  for (const QChar letter : text.left(12)) {
    if (letter.unicode() > 126 || letter.unicode() < 32) continue;
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (!window) return;
    QTest::keyPress(window, letter.toLatin1());
    if (IsThere(window)) QTest::keyRelease(window, letter.toLatin1());
  }
}

void Monkey::Click() {
  const QWidget *any = AnyWindow();
  const QWidget *widget = any ? AnyWidget(*any) : nullptr;
  if (!widget) widget = any;
  if (!widget) return;
  static const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                            Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
  const Qt::MouseButton button = buttons[dice_.Below(int(std::size(buttons)))];
  const Qt::KeyboardModifiers with = dice_.OneIn(10) ? Qt::ShiftModifier : Qt::NoModifier;
  const QPoint at =
      widget->mapTo(any, QPoint(dice_.Below(widget->width()), dice_.Below(widget->height())));
  const bool twice = dice_.OneIn(6);
  Note(QStringLiteral("click %1 at %2,%3 with %4%5")
           .arg(NameOf(widget))
           .arg(at.x())
           .arg(at.y())
           .arg(int(button))
           .arg(twice ? QLatin1String(" twice") : QLatin1String()));
  const QPointer<QWindow> window = any->windowHandle();
  if (!QRect(QPoint(), window->size()).contains(at)) return;
  QTest::mouseMove(window, at);
  for (int times = twice ? 2 : 1; times > 0 && IsThere(window); --times) {
    QTest::mousePress(window, button, with, at);
    if (IsThere(window)) QTest::mouseRelease(window, button, with, at);
  }
}

void Monkey::Drag() {
  const QWidget *any = AnyWindow();
  const QWidget *widget = any ? AnyWidget(*any) : nullptr;
  if (!widget) return;
  const QPointer<QWindow> window = any->windowHandle();
  const QPoint from =
      widget->mapTo(any, QPoint(dice_.Below(widget->width()), dice_.Below(widget->height())));
  const QPoint to(dice_.Below(window->width()), dice_.Below(window->height()));
  if (!QRect(QPoint(), window->size()).contains(from)) return;
  Note(QStringLiteral("drag %1 from %2,%3 to %4,%5")
           .arg(NameOf(widget))
           .arg(from.x())
           .arg(from.y())
           .arg(to.x())
           .arg(to.y()));
  QTest::mousePress(window, Qt::LeftButton, {}, from);
  constexpr int moves = 4;
  for (int move = 1; move <= moves && IsThere(window); ++move) {
    if (!QRect(QPoint(), window->size()).contains(to)) break;
    QTest::mouseMove(window, from + (to - from) * move / moves);
  }
  if (IsThere(window)) QTest::mouseRelease(window, Qt::LeftButton, {}, to);
}

void Monkey::Wheel() {
  const QWidget *any = AnyWindow();
  QWidget *widget = any ? AnyWidget(*any) : nullptr;
  if (!widget || IsBlocked(widget)) return;
  Note(QStringLiteral("wheel over ") + NameOf(widget));
  const QPoint turned(0, dice_.OneIn(2) ? 120 : -120);
  const QPointF at = widget->rect().center();
  QWheelEvent event(at, widget->mapToGlobal(at), {}, turned, {}, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QCoreApplication::sendEvent(widget, &event);
}

void Monkey::TakeMenuEntry() {
  const auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (!main || main->IsUnloaded() || IsBlocked(main)) return;
  QList<QAction *> entries;
  for (QAction *entry : main->findChildren<QAction *>()) {
    if (entry->objectName().startsWith(QStringLiteral("mnu")) && entry->isEnabled()) {
      entries << entry;
    }
  }
  if (entries.isEmpty()) return;
  QAction *entry = entries[dice_.Below(int(entries.size()))];
  if (entry->objectName() == QStringLiteral("mnuFileQuit") && !dice_.OneIn(10)) return;
  Note(QStringLiteral("menu ") + entry->objectName());
  entry->trigger();
}

void Monkey::OpenForm() {
  const auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (!main || main->IsUnloaded() || IsBlocked(main)) return;
  const auto &forms = AllForms();
  const int number = dice_.Below(int(forms.size()));
  Note(QStringLiteral("open form %1").arg(number));
  forms[number]();
}

void Monkey::OpenDocument() {
  const auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (!main || main->IsUnloaded() || IsBlocked(main)) return;
  if (mPublic::CountOpenEditors() > manyDocuments && !dice_.OneIn(20)) return;
  const QString file = AnyFile();
  Note(QStringLiteral("open ") + file.section(u'/', -1));
  FileCommands::LoadFileIntoNewEditor(file);
}

// By its own close button, so nothing that a modal window blocks. The main window's question is
// often enough answered with Yes.
void Monkey::CloseSomething() {
  QWidgetList windows = VisibleWindows();
  const auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (main) {
    for (QMdiSubWindow *window : main->mdiArea->subWindowList()) windows << window;
  }
  windows.removeIf([](const QWidget *window) { return IsBlocked(window); });
  if (windows.isEmpty()) return;
  QWidget *window = windows[dice_.Below(int(windows.size()))];
  if (window == main && !dice_.OneIn(10)) return;
  Note(QStringLiteral("close ") + NameOf(window));
  window->close();
}

void Monkey::UnloadSomething() {
  QWidgetList windows = VisibleWindows();
  windows.removeIf(
      [](QWidget *window) { return IsBlocked(window) || !dynamic_cast<Form *>(window); });
  if (windows.isEmpty()) return;
  QWidget *window = windows[dice_.Below(int(windows.size()))];
  if (window->objectName() == QStringLiteral("mdiMain") && !dice_.OneIn(10)) return;
  Note(QStringLiteral("unload ") + NameOf(window));
  Unload(*dynamic_cast<Form *>(window));
}

void Monkey::SizeSomething() {
  QWidgetList windows = VisibleWindows();
  const auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (main) {
    for (QMdiSubWindow *window : main->mdiArea->subWindowList()) windows << window;
  }
  if (windows.isEmpty()) return;
  QWidget *window = windows[dice_.Below(int(windows.size()))];
  const QSize size(50 + dice_.Below(1300), 30 + dice_.Below(900));
  const int way = dice_.Below(6);
  Note(QStringLiteral("size %1 way %2 to %3 by %4")
           .arg(NameOf(window))
           .arg(way)
           .arg(size.width())
           .arg(size.height()));
  switch (way) {
    case 0:
      return window->showMaximized();
    case 1:
      if (window->inherits("QMdiSubWindow")) return window->showMinimized();
      [[fallthrough]];
    case 2:
      return window->showNormal();
    default:
      window->resize(size);
  }
}

void Monkey::DropFile() {
  auto *main = static_cast<mdiMain *>(mForms::Find(QStringLiteral("mdiMain")));
  if (!main || !main->isVisible() || IsBlocked(main)) return;
  const QString file = AnyFile();
  Note(QStringLiteral("drop ") + file.section(u'/', -1));
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file)});
  QDropEvent event(QPointF(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(main, &event);
}

void Monkey::FillClipboard() {
  Note(QStringLiteral("clipboard"));
  QGuiApplication::clipboard()->setText(AnyText());
}

void Monkey::Wait() {
  static const int spans[] = {5, 50, 500, 1100, 6000};
  const int span = spans[dice_.Below(int(std::size(spans)))];
  Note(QStringLiteral("wait %1").arg(span));
  PassTime(span);
}
