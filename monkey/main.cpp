// Plays with the forms at random, for a number of steps from a seed, and tells both where it fails.

#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QHashSeed>
#include <QScrollBar>
#include <QTemporaryDir>
#include <csignal>
#include <cstdio>

#include "monkey/Fence.h"
#include "monkey/Monkey.h"

namespace {

Monkey *monkey = nullptr;

void Report() {
  if (monkey) monkey->Report();
}

// A step that takes longer than this, in seconds of the processor's time, hangs.
constexpr unsigned longestStep = 20;

void Hangs(int) {
  std::fputs("monkey: a step doesn't end\n", stderr);
  __sanitizer_print_stack_trace();
  Report();
  // What scrolls may come and go without end.
  for (const QWidget *widget : QApplication::allWidgets()) {
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
    if (!area || !area->isVisible()) continue;
    std::fprintf(stderr, "  %s %s %dx%d, bars to %d and %d\n", area->metaObject()->className(),
                 qPrintable(area->objectName()), area->width(), area->height(),
                 area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
  }
  _exit(1);
}

// What the toolkit warns of is a fault of ours, unless it is what this platform can't do, a mouse
// that strays out of a window that shrinks, or a picture that was saved as a text.
void Message(QtMsgType type, const QMessageLogContext &context, const QString &text) {
  if (QLatin1String(context.category).startsWith(QLatin1String("qt.gui.imageio"))) return;
  if (text.startsWith(QStringLiteral("This plugin does not support"))) return;
  if (text.contains(QStringLiteral("occurs outside target window"))) return;
  std::fprintf(stderr, "toolkit: %s\n", qPrintable(text));
  if (type == QtFatalMsg) std::abort();
  if (type != QtWarningMsg && type != QtCriticalMsg) return;
  if (monkey) {
    __sanitizer_print_stack_trace();
    monkey->Fail(text);
  }
}

}  // namespace

int main(int argc, char **argv) {
  QHashSeed::setDeterministicGlobalSeed();
  const QTemporaryDir folder;
  if (!folder.isValid() || !QDir::setCurrent(folder.path())) return 1;
  const QByteArray path = QFile::encodeName(QDir(folder.path()).canonicalPath());
  for (const char *name :
       {"HOME", "TAGWRIGHT_FOLDER", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
        "XDG_RUNTIME_DIR", "XDG_STATE_HOME"}) {
    qputenv(name, path);
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  FenceIn(path.toStdString());
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);

  QCommandLineParser options;
  options.addHelpOption();
  options.addOption({QStringLiteral("steps"), QStringLiteral("How many."), QStringLiteral("N"),
                     QStringLiteral("1000")});
  options.addOption({QStringLiteral("seed"), QStringLiteral("Where chance begins."),
                     QStringLiteral("S"), QStringLiteral("1")});
  options.addOption({QStringLiteral("trace"), QStringLiteral("Tell each action.")});
  options.process(application);

  qInstallMessageHandler(&Message);
  __sanitizer_set_death_callback(&Report);
  for (const int watch : {SIGPROF, SIGALRM}) std::signal(watch, &Hangs);
  Monkey player({.steps = options.value(QStringLiteral("steps")).toInt(),
                 .seed = options.value(QStringLiteral("seed")).toUInt(),
                 .trace = options.isSet(QStringLiteral("trace")),
                 .longestStep = longestStep,
                 .folder = QFile::decodeName(path)});
  monkey = &player;
  const int status = QApplication::exec();
  for (const int watch : {SIGPROF, SIGALRM}) std::signal(watch, SIG_IGN);
  monkey = nullptr;
  if (status == 0) {
    std::printf("monkey: %s steps from seed %s, fingerprint %08x, %d calls refused\n",
                qPrintable(options.value(QStringLiteral("steps"))),
                qPrintable(options.value(QStringLiteral("seed"))), player.Fingerprint(),
                RefusedCalls());
  }
  return status;
}
