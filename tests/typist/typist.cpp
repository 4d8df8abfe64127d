// A plugin of the toolkit that works in the real program as a hand would, so that tests can kill
// the program itself. It tells on the standard output what it sees, in lines that are written at
// once:
//
//     open NAME TEXT   a document that stands when the program is ready
//     ready
//     text NAME TEXT   a document's text after each change, names and texts in base 64
//     kept             everything told so far is in the journal

#include <unistd.h>

#include <QApplication>
#include <QGenericPlugin>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <csignal>

namespace {

void Tell(const QByteArray &line) {
  const QByteArray whole = line + '\n';
  [[maybe_unused]] const auto written = write(STDOUT_FILENO, whole.constData(), whole.size());
}

template <class T>
T *Find(const char *name) {
  for (QWidget *widget : QApplication::allWidgets()) {
    if (widget->objectName() == QLatin1String(name)) return qobject_cast<T *>(widget);
    if (auto *child = widget->findChild<T *>(QLatin1String(name))) return child;
  }
  return nullptr;
}

class Typist : public QObject {
 public:
  explicit Typist(const QString &role) : role_(role), random_(QRandomGenerator::securelySeeded()) {
    connect(&tick_, &QTimer::timeout, this, &Typist::Tick);
    tick_.start();
  }

 private:
  void Tick() {
    if (!ready_) {
      // Its event loop runs, so it has started.
      ready_ = QThread::currentThread()->loopLevel() > 0 && Find<QWidget>("mdiMain");
      if (ready_) Begin();
    } else if (waiting_) {
      if (journal_->property("busy").toBool()) return;
      waiting_ = false;
      Tell("kept");
    } else if (role_ == QLatin1String("type")) {
      Type();
    }
  }

  void Begin() {
    for (QPlainTextEdit *box : Boxes()) TellText("open", *box);
    Tell("ready");
    journal_ = qApp->findChild<QObject *>(QStringLiteral("Journal"));
    const QList<QPlainTextEdit *> before = Boxes();
    if (before.size() < 2) {
      Find<QAction>("mnuFileNewFile")->trigger();
      Find<QPushButton>("cmdOk")->click();
    }
    for (QPlainTextEdit *box : Boxes()) {
      connect(box, &QPlainTextEdit::textChanged, this, [box] { TellText("text", *box); });
    }
    if (role_ == QLatin1String("type")) return;
    for (int i = 0; i < 20; ++i) TypeKey();
    // So that only the signal can have the journal written.
    for (QTimer *timer : journal_->findChildren<QTimer *>()) timer->stop();
    if (role_ == QLatin1String("dialog")) {
      QTimer::singleShot(0, this, [] { std::raise(SIGTERM); });
      Find<QAction>("mnuFileSave")->trigger();
    } else if (role_ == QLatin1String("pump")) {
      std::raise(SIGTERM);
      for (;;) QCoreApplication::processEvents();
    } else if (role_ == QLatin1String("hang")) {
      Tell("hanging");
      for (;;) pause();
    } else if (role_ == QLatin1String("hangup")) {
      for (const int request : {SIGTERM, SIGHUP}) std::raise(request);  // as a session's end does
    }
  }

  // Sometimes the next keys meet the writing, sometimes they wait for it.
  void Type() {
    TypeKey();
    if (random_.bounded(15) > 0) return;
    QMetaObject::invokeMethod(journal_->findChild<QTimer *>(QStringLiteral("timRest")), "timeout");
    waiting_ = random_.bounded(2) == 0;
  }

  void TypeKey() {
    const QList<QPlainTextEdit *> boxes = Boxes();
    QPlainTextEdit *box = boxes[random_.bounded(boxes.size())];
    switch (random_.bounded(8)) {
      case 0:
        QTest::keyClick(box, Qt::Key_Return);
        break;
      case 1:
        QTest::keyClick(box, Qt::Key_Backspace);
        break;
      case 2:
        QTest::keyClick(box, random_.bounded(2) ? Qt::Key_Up : Qt::Key_End);
        break;
      case 3:
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QStringLiteral("\u20AC"), {});
        break;
      default:
        QTest::keyClick(box, char('a' + random_.bounded(26)));
    }
  }

  static QList<QPlainTextEdit *> Boxes() {
    QList<QPlainTextEdit *> boxes;
    for (QWidget *widget : QApplication::allWidgets()) {
      auto *box = qobject_cast<QPlainTextEdit *>(widget);
      if (box && box->objectName() == QLatin1String("txthtml") && box->isVisible()) boxes << box;
    }
    return boxes;
  }

  static void TellText(const QByteArray &what, const QPlainTextEdit &box) {
    const QWidget *window = &box;
    while (!qobject_cast<const QMdiSubWindow *>(window)) window = window->parentWidget();
    Tell(what + ' ' + window->windowTitle().toUtf8().toBase64() + ' ' +
         box.document()->toRawText().toUtf8().toBase64());
  }

  const QString role_;
  QRandomGenerator random_;
  QTimer tick_;
  QObject *journal_ = nullptr;
  bool ready_ = false;
  bool waiting_ = false;
};

}  // namespace

class TypistPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "typist.json")

 public:
  QObject *create(const QString &, const QString &role) override { return new Typist(role); }
};

#include "typist.moc"
