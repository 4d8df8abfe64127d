// Makes the files of the icon theme from the icon that the program draws: one scalable picture and
// one of each size.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <QTextStream>

#include "frame/ProgramIcon.h"

namespace {

void Paint(QPaintDevice &device, int side) {
  QPainter painter(&device);
  ProgramIcon().paint(&painter, 0, 0, side, side);
}

bool WriteScalable(const QString &path) {
  constexpr int units = 32;
  QSvgGenerator generator;
  generator.setFileName(path);
  generator.setTitle(QStringLiteral("tagwright"));
  generator.setDescription({});
  generator.setSize({units, units});
  generator.setViewBox(QRect(0, 0, units, units));
  Paint(generator, units);
  return QFile(path).size() > 0;
}

bool WriteSize(const QString &path, int side) {
  QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  Paint(picture, side);
  return picture.save(path, "PNG");
}

}  // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // a build has no display
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  QTextStream errors(stderr);
  if (arguments.size() < 2) {
    errors << "make_icons FOLDER [SIZE...]\n";
    return 2;
  }
  const QString folder = arguments[1] + u'/';
  bool written = WriteScalable(folder + QStringLiteral("tagwright.svg"));
  for (const QString &size : arguments.mid(2)) {
    written = WriteSize(folder + size + QStringLiteral(".png"), size.toInt()) && written;
  }
  if (!written) errors << "can't write into " << folder << '\n';
  return written ? 0 : 1;
}
