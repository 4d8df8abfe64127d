// The yardstick: the toolkit's own widgets and nothing else.
//   bare start       an empty main window with a text box, until it is drawn
//   bare open FILE   the same with the text of a file in it

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QWindow>
#include <cstdlib>

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1280, 800);
  auto *box = new QPlainTextEdit(&window);
  box->setLineWrapMode(QPlainTextEdit::NoWrap);
  box->setFont(QFont(QStringLiteral("Courier New"), 10));
  window.setCentralWidget(box);
  if (argc > 2) {
    QFile file(QFile::decodeName(argv[2]));
    if (!file.open(QIODevice::ReadOnly)) return 1;
    box->setPlainText(QString::fromLatin1(file.readAll()));
  }
  window.show();
  while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  box->viewport()->repaint();
  _Exit(0);
}
