#include <QDir>
#include <QElapsedTimer>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>

#include "Compare.h"
#include "frame/mPublic.h"
#include "images/frmImageViewer.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr QSize photo(2000, 1500);
constexpr int distinct = 5;
constexpr int bigSize = 2;          // cells of 150 pixels
const QSize thumbnail(120, 90);     // of a photo in such a cell
constexpr double leastRate = 0.85;  // of the decoder's own

// Noise over a gradient, about as hard to decode as a photo.
QImage Photo(int seed) {
  QImage picture(photo, QImage::Format_RGB32);
  quint32 noise = quint32(seed) * 2654435761u + 1;
  for (int y = 0; y < photo.height(); ++y) {
    auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
    for (int x = 0; x < photo.width(); ++x) {
      noise = noise * 1664525u + 1013904223u;
      const int grain = int(noise >> 27);
      line[x] = qRgb((x / 10 + grain) & 0xFF, (y / 8 + grain) & 0xFF, (x / 16 + y / 16) & 0xFF);
    }
  }
  return picture;
}

void FillFolder(const QString &folder, const char *type, int count) {
  for (int i = 0; i < count; ++i) {
    const auto path = [&](int number) {
      return QStringLiteral("%1/%2.%3").arg(folder).arg(number).arg(QLatin1String(type));
    };
    if (i < distinct) {
      Photo(i).save(path(i));
    } else {
      QFile::copy(path(i % distinct), path(i));
    }
  }
}

// As the user chooses it, from the root down.
void ChooseFolder(frmImageViewer &form, const QString &folder) {
  Q_EMIT form.drvImageDrive->activated(0);  // a folder made since isn't in the tree
  KeyedTree &tree = *form.trwDirectories;
  QTreeWidgetItem *node = tree.Node(1);
  QString path;
  for (const QString &name : folder.split(u'/', Qt::SkipEmptyParts)) {
    path += u'/' + name;
    tree.expandItem(node);
    node = tree.NodeByKey(path);
  }
  Q_EMIT tree.itemClicked(node, 0);
}

void DecodeAll(const QString &folder) {
  for (const QString &name : QDir(folder).entryList(QDir::Files)) {
    QImageReader reader(folder + u'/' + name);
    reader.setScaledSize(thumbnail);
    reader.read();
  }
}

void CompareScan(frmImageViewer &form, const char *type, int count) {
  const QTemporaryDir folder;
  FillFolder(folder.path(), type, count);
  ChooseFolder(form, folder.path());
  Compare(
      QStringLiteral("scan %1 %2 files").arg(count).arg(QLatin1String(type)), QStringLiteral("s"),
      1 / leastRate, [&form] { return Seconds([&form] { form.cmdSetImagePath->click(); }); },
      [&folder] { return Seconds([&folder] { DecodeAll(folder.path()); }); });
}

// The longest time between two turns of the event loop while a folder is scanned.
double LongestWait(frmImageViewer &form) {
  QElapsedTimer since;
  qint64 longest = 0;
  QTimer turns;
  QObject::connect(&turns, &QTimer::timeout, &form, [&] {
    longest = std::max(longest, since.nsecsElapsed());
    since.start();
  });
  since.start();
  turns.start(0);
  form.cmdSetImagePath->click();
  return double(longest) / 1e6;
}

double MillisecondsOfAScroll(frmImageViewer &form) {
  constexpr int steps = 100;
  QScrollBar &bar = *form.scrImageViewer;
  return Seconds([&bar] {
           for (int step = 1; step <= steps; ++step) {
             bar.setValue(int(qint64(bar.maximum()) * step / steps));
             DoEvents();
           }
         }) *
         1000 / steps;
}

}  // namespace

void BenchImages() {
  mPublic::ReadPreferences();
  mPublic::recPreferences.ImageHeight = mPublic::recPreferences.ImageWidth = bigSize;
  mPublic::WritePreferences();
  frmImageViewer &form = *Default<frmImageViewer>();
  form.show();
  DoEvents();
  CompareScan(form, "jpg", 500);
  CompareScan(form, "png", 40);
  CompareScan(form, "bmp", 40);
  const QTemporaryDir folder;
  FillFolder(folder.path(), "jpg", 100);
  ChooseFolder(form, folder.path());
  Measure(QStringLiteral("longest wait for a click in a scan"), QStringLiteral("ms"), 50,
          [&form] { return LongestWait(form); });
  const QTemporaryDir many;
  const QImage small = Photo(1).scaled(160, 120);
  for (int i = 0; i < 5000; ++i) small.save(QStringLiteral("%1/%2.jpg").arg(many.path()).arg(i));
  ChooseFolder(form, many.path());
  form.cmdSetImagePath->click();
  Measure(QStringLiteral("a jump in 5,000 thumbnails"), QStringLiteral("ms"), 16,
          [&form] { return MillisecondsOfAScroll(form); });
  Unload(form);
}
