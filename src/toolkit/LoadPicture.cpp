#include "toolkit/LoadPicture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QProcess>
#include <algorithm>
#include <array>
#include <utility>

#include "base/mFolders.h"

namespace {

constexpr int largestPicture = 1024;  // megabytes, four bytes a pixel
constexpr qint64 mostPixels = qint64(largestPicture) * 1024 * 1024 / 4;
constexpr int metafileLimit = 5000;              // milliseconds
constexpr qint64 mostDrawn = qint64(200) << 20;  // bytes of a drawn metafile

bool IsMetafile(QByteArrayView start) {
  constexpr std::array<const char *, 3> marks{
      "\xD7\xCD\xC6\x9A",                      // with a header that tells where to place it
      "\x01\x00\x09\x00", "\x02\x00\x09\x00",  // without, in memory or on disk
  };
  return std::any_of(marks.begin(), marks.end(), [start](const char *mark) {
    return start.startsWith(QByteArrayView(mark, 4));
  });
}

// Metafiles are drawn by a program of their own, since their parsers crash and hang.
std::optional<QImage> DrawMetafile(const QString &path) {
  QProcess drawing;
  drawing.setStandardErrorFile(QProcess::nullDevice());
  drawing.start(
      mFolders::HelperProgram(QStringLiteral("wmf2raster"), QCoreApplication::applicationDirPath()),
      {QFileInfo(path).absoluteFilePath()});
  const QDeadlineTimer late(metafileLimit);
  const auto tooMuch = [&drawing] { return drawing.bytesAvailable() > mostDrawn; };
  while (!tooMuch() && drawing.waitForReadyRead(int(late.remainingTime()))) {
  }
  if (!tooMuch()) drawing.waitForFinished(int(late.remainingTime()));
  if (drawing.state() != QProcess::NotRunning) {
    drawing.kill();
    drawing.waitForFinished();
    return {};
  }
  if (drawing.exitStatus() != QProcess::NormalExit || drawing.exitCode() != 0) return {};
  QImage picture = QImage::fromData(drawing.readAllStandardOutput(), "PPM");
  if (picture.isNull()) return {};
  return picture;
}

// An icon's directory has one byte for a measure and writes 256 as 0.
int Area(const QSize &size) {
  const auto measure = [](int entry) { return entry > 0 ? entry : 256; };
  return measure(size.width()) * measure(size.height());
}

void GoToLargestImage(QImageReader &reader) {
  std::pair<int, int> largest{0, 0};  // area, number
  const int count = reader.imageCount();
  for (int i = 0; i < count && reader.jumpToImage(i); ++i) {
    const int area = Area(reader.size());
    if (area > largest.first) largest = {area, i};
  }
  reader.jumpToImage(largest.second);
}

// A file open for reading, with the reader set to the picture that counts.
class PictureFile {
 public:
  explicit PictureFile(const QString &path) : file_(path) {
    if (!QFileInfo(path).isFile() || !file_.open(QIODevice::ReadOnly)) return;  // a pipe never ends
    metafile_ = IsMetafile(file_.peek(4));
    if (metafile_) return;
    QImageReader::setAllocationLimit(largestPicture);
    reader_.setDecideFormatFromContent(true);
    reader_.setDevice(&file_);
    reader_.setAutoTransform(true);
    const QByteArray type = reader_.format();
    readable_ = !type.isEmpty();
    if (type == "ico" || type == "cur") {
      GoToLargestImage(reader_);
      return;
    }
    // Asked for its size, the reader of GIF files walks through all frames.
    if (type == "gif") return;
    size_ = reader_.size();
    if (qint64(size_.width()) * size_.height() > mostPixels) readable_ = false;
  }

  bool IsMetafilePicture() const { return metafile_; }
  bool IsReadable() const { return readable_; }

  // As the file's header tells it, turned; empty if it doesn't.
  QSize Size() const { return Turned(size_); }

  std::optional<QImage> Read() {
    QImage picture;
    if (!reader_.read(&picture)) return {};
    picture.setDevicePixelRatio(1);  // a name that ends with "@2x" would halve its measures
    return picture;
  }

  void ScaleTo(QSize size) { reader_.setScaledSize(Turned(size)); }

 private:
  QSize Turned(QSize size) const {
    return reader_.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed()
                                                                              : size;
  }

  QFile file_;
  QImageReader reader_;
  QSize size_;
  bool metafile_ = false;
  bool readable_ = false;
};

QImage ScaledTo(QSize size, const QImage &picture) {
  return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

std::optional<QImage> LoadPicture(const QString &path) {
  PictureFile file(path);
  if (file.IsMetafilePicture()) return DrawMetafile(path);
  return file.IsReadable() ? file.Read() : std::nullopt;
}

std::optional<ScaledPicture> LoadScaledPicture(const QString &path,
                                               const std::function<QSize(QSize)> &scaledTo) {
  PictureFile file(path);
  if (file.IsReadable() && !file.Size().isEmpty()) {
    const QSize size = file.Size();
    file.ScaleTo(scaledTo(size));
    if (auto picture = file.Read()) return ScaledPicture{*std::move(picture), size};
    return {};
  }
  auto whole = file.IsMetafilePicture() ? DrawMetafile(path)
               : file.IsReadable()      ? file.Read()
                                        : std::nullopt;
  if (!whole) return {};
  return ScaledPicture{ScaledTo(scaledTo(whole->size()), *whole), whole->size()};
}

QString PictureFilter() {
  return QStringLiteral(
      "Pictures|*.bmp;*.gif;*.jpg;*.jpeg;*.jif;*.png;*.ico;*.cur;*.wmf|All files *.*|*.*");
}
