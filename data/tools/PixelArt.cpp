#include "PixelArt.h"

#include <QHash>
#include <QRect>
#include <QtEndian>

using Qt::StringLiterals::operator""_s;

namespace {

/// Reads one source from top to bottom. `line_` is the number of the line that is being read.
class ArtReader {
 public:
  explicit ArtReader(const SourceText &source) : source_(source) {}

  QSize PictureSize() const { return size_; }

  std::vector<PixelRecord> Read() {
    while (line_ < source_.lines.size()) {
      const QString text = source_.lines[line_++].simplified();
      if (!text.isEmpty() && text[0] != u';') ReadLine(text.split(u' '));
    }
    if (pictures_ != Cells()) Fail(u"%1 pictures for %2 cells"_s.arg(pictures_).arg(Cells()));
    if (points_.empty()) Fail(u"no point at all"_s);
    std::vector<PixelRecord> records;
    for (std::size_t n = 0; n <= drawn_; ++n) records.push_back(points_[n % points_.size()]);
    return records;
  }

 private:
  enum class Order { none, across, down };

  [[noreturn]] void Fail(const QString &message) const {
    throw SourceError(source_, line_, message);
  }

  void ReadLine(const QStringList &words) {
    const QString &what = words[0];
    if (what == u"size" && words.size() == 3) {
      size_ = {Number(words[1]), Number(words[2])};
    } else if (what == u"cells" && words.size() == 2) {
      ReadOrder(words[1]);
    } else if (what == u"bytes" && words.size() == 2) {
      const int bytes = Number(words[1]);
      if (bytes % sizeof(PixelRecord) != 0) Fail(u"not a whole number of records"_s);
      drawn_ = bytes / sizeof(PixelRecord) - 1;
    } else if (what == u"colour" && words.size() >= 3 && words[1].size() == 1) {
      ReadColour(words[1][0], words[2]);
    } else if (what == u"button" || what == u"picture") {
      ReadPicture();
    } else {
      Fail(u"not understood: "_s + words.join(u' '));
    }
  }

  int Number(const QString &word) const {
    const int number = word.toInt();
    if (number < 1) Fail(u"\"%1\" is no length"_s.arg(word));
    return number;
  }

  void ReadOrder(const QString &word) {
    const int order = QStringList{u"none"_s, u"across"_s, u"down"_s}.indexOf(word);
    if (order < 0) Fail(u"cells follow across, down or none"_s);
    order_ = Order(order);
  }

  void ReadColour(QChar letter, const QString &value) {
    bool isNumber = false;
    const int rgb = value.mid(1).toInt(&isNumber, 16);
    if (!isNumber || value.size() != 7 || value[0] != u'#') Fail(u"a colour is #rrggbb"_s);
    if (letter == u'.') Fail(u"\".\" is the background"_s);
    if (colours_.contains(letter)) Fail(u"\"%1\" has a colour already"_s.arg(letter));
    colours_[letter] = (rgb >> 16) | (rgb & 0xff00) | (rgb & 0xff) << 16;
  }

  int Cells() const {
    if (order_ == Order::none) return 1;
    return (order_ == Order::across ? size_.width() : size_.height()) / cellSide;
  }

  QRect Cell(int number) const {
    if (order_ == Order::none) return {QPoint(0, 0), size_};
    const int offset = number * cellSide;
    return order_ == Order::across ? QRect(offset, 0, cellSide, cellSide)
                                   : QRect(0, offset, cellSide, cellSide);
  }

  void ReadPicture() {
    if (pictures_ == Cells()) Fail(u"a picture too many, there are %1 cells"_s.arg(Cells()));
    const QRect cell = Cell(pictures_++);
    const QRect room = order_ == Order::none ? cell : cell.adjusted(1, 1, -1, -1);
    qsizetype end = line_;
    while (end < source_.lines.size() && !source_.lines[end].trimmed().isEmpty()) ++end;
    if (end == line_) Fail(u"a picture without art"_s);
    const qsizetype width = source_.lines[line_].size();
    const int left = cell.x() + HalfOf(cell.width() - width);
    int y = cell.y() + HalfOf(cell.height() - (end - line_));
    for (; line_ < end; ++y) {
      const QString &row = source_.lines[line_++];
      if (row.size() != width) Fail(u"a row of %1 among rows of %2"_s.arg(row.size()).arg(width));
      for (int n = 0; n < width; ++n) {
        if (row[n] != u'.') AddPoint({left + n, y}, row[n], room);
      }
    }
  }

  /// Half of it, rounded down also below zero.
  static int HalfOf(qsizetype length) { return static_cast<int>(length >> 1); }

  void AddPoint(QPoint point, QChar letter, const QRect &room) {
    if (!colours_.contains(letter)) Fail(u"\"%1\" has no colour"_s.arg(letter));
    if (!room.contains(point)) Fail(u"a point on the frame of its cell or outside"_s);
    if (points_.size() == drawn_) Fail(u"more than the %1 points of the file"_s.arg(drawn_));
    points_.push_back({qint32_le(point.x()), qint32_le(point.y()), qint32_le(colours_[letter])});
  }

  const SourceText &source_;
  qsizetype line_ = 0;
  QSize size_;
  Order order_ = Order::none;
  std::size_t drawn_ = 0;
  QHash<QChar, int> colours_;
  int pictures_ = 0;
  std::vector<PixelRecord> points_;
};

}  // namespace

std::vector<PixelRecord> PixelRecords(const SourceText &source) {
  return ArtReader(source).Read();
}

QByteArray BitmapFile(const SourceText &source) {
  ArtReader reader(source);
  const std::vector<PixelRecord> points = reader.Read();
  const QSize size = reader.PictureSize();
  constexpr qsizetype fileHeader = 14;
  constexpr qsizetype pictureHeader = 108;  // of version 4, the first with transparency
  QByteArray file(fileHeader + pictureHeader + 4 * size.width() * size.height(), '\0');
  const auto put = [&file](qsizetype place, auto number) {
    qToLittleEndian(number, file.data() + place);
  };
  file.replace(0, 2, "BM");
  put(2, quint32(file.size()));
  put(10, quint32(fileHeader + pictureHeader));
  put(fileHeader, quint32(pictureHeader));
  put(fileHeader + 4, qint32(size.width()));
  put(fileHeader + 8, qint32(size.height()));  // positive: the lowest row comes first
  put(fileHeader + 12, quint16(1));
  put(fileHeader + 14, quint16(32));
  put(fileHeader + 16, quint32(3));  // where a channel lies is told by masks:
  put(fileHeader + 40, quint32(0x00FF0000));
  put(fileHeader + 44, quint32(0x0000FF00));
  put(fileHeader + 48, quint32(0x000000FF));
  put(fileHeader + 52, quint32(0xFF000000));
  put(fileHeader + 56, quint32(0x73524742));  // sRGB
  for (const PixelRecord &point : points) {
    const qint32 bgr = point.colour;
    const quint32 argb = 0xFF000000U | (bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF);
    const qsizetype row = size.height() - 1 - point.y;
    put(fileHeader + pictureHeader + 4 * (row * size.width() + point.x), argb);
  }
  return file;
}
