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
constexpr int largestSize = 3;      // cells of 300 pixels
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

// A GIF that grows no codes: as large as its picture, and as quick to decode as they come.
QByteArray Gif(const QImage &photo) {
  const QImage picture = photo.convertToFormat(QImage::Format_Indexed8);
  QByteArray bytes("GIF89a");
  const auto word = [&bytes](int value) {
    bytes += char(value & 0xFF);
    bytes += char(value >> 8);
  };
  word(picture.width());
  word(picture.height());
  bytes += QByteArray("\xF6\0\0", 3);  // 128 colours
  for (int i = 0; i < 128; ++i) bytes += QByteArray(3, char(2 * i));
  bytes += QByteArray(",\0\0\0\0", 5);
  word(picture.width());
  word(picture.height());
  bytes += QByteArray("\0\7", 2);  // codes of 8 bits, as long as the table is cleared in time
  constexpr int between = 120;
  constexpr char clear = char(0x80);
  QByteArray codes;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (codes.size() % between == 0) codes += clear;
      codes += char(picture.pixelIndex(x, y) & 0x7F);
    }
  }
  codes += char(0x81);
  constexpr qsizetype block = 255;
  for (qsizetype at = 0; at < codes.size(); at += block) {
    const QByteArray part = codes.mid(at, block);
    bytes += char(part.size());
    bytes += part;
  }
  return bytes + QByteArray("\0;", 2);
}

void SavePhoto(int seed, const QString &path) {
  if (!path.endsWith(QStringLiteral("gif"))) {
    Photo(seed).save(path);
    return;
  }
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(Gif(Photo(seed)));
}

void FillFolder(const QString &folder, const char *type, int count) {
  for (int i = 0; i < count; ++i) {
    const auto path = [&](int number) {
      return QStringLiteral("%1/%2.%3").arg(folder).arg(number).arg(QLatin1String(type));
    };
    if (i < distinct) {
      SavePhoto(i, path(i));
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

// A line of /proc/self/status, in MB.
double Status(const char *name) {
  QFile file(QStringLiteral("/proc/self/status"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray &line : file.readAll().split('\n')) {
    if (line.startsWith(name)) return line.mid(7).simplified().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

// What a scan takes at its worst above that.
double MegabytesOfAScan(frmImageViewer &form, double before) {
  QFile peak(QStringLiteral("/proc/self/clear_refs"));
  if (peak.open(QIODevice::WriteOnly)) peak.write("5");  // the peak begins anew
  peak.close();
  form.cmdSetImagePath->click();
  return Status("VmHWM:") - before;
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

void SetSizes(int index) {
  mPublic::ReadPreferences();
  mPublic::recPreferences.ImageHeight = mPublic::recPreferences.ImageWidth = index;
  mPublic::WritePreferences();
}

}  // namespace

void BenchImages() {
  SetSizes(bigSize);
  frmImageViewer &form = *Default<frmImageViewer>();
  form.show();
  DoEvents();
  const double withoutPictures = Status("VmRSS:");
  CompareScan(form, "jpg", 500);
  CompareScan(form, "png", 40);
  CompareScan(form, "bmp", 40);
  CompareScan(form, "gif", 40);
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
  SetSizes(largestSize);
  const double decoded = double(photo.width()) * photo.height() * 4 / 1024 / 1024;
  Measure(QStringLiteral("memory of a scan of 5,000 files"), QStringLiteral("MB"), 256 + decoded,
          [&] { return MegabytesOfAScan(form, withoutPictures); });
  Unload(form);
}
