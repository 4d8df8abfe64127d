// Pixel files: whatever stands in one, a strip draws what lies in it and leaves out the rest.

#include "Fuzz.h"
#include "frame/PixelFile.h"
#include "toolkit/ToolStrip.h"

void Try(Input &input) {
  const QString path = Path(QStringLiteral("File0001.dat"));
  const auto bytes = input.ConsumeRemainingBytes<char>();
  PutFile(path, QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  static ToolStrip strip;
  strip.resize(408, 24);
  qint64 drawn = 0;
  ForEachPixel(path, [&drawn](const PixelRecord &pixel) {
    strip.PSet(pixel.x, pixel.y, pixel.colour);
    ++drawn;
  });
  Require(drawn <= qint64(bytes.size() / sizeof(PixelRecord)), "the last record isn't drawn");
  strip.grab();
}
