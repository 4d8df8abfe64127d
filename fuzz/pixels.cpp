// Pixel files: whatever stands in one, a strip draws what lies in it and leaves out the rest.

#include "Fuzz.h"
#include "frame/PixelFile.h"
#include "toolkit/ToolStrip.h"

void Try(Input &input) {
  const QString path = Path(QStringLiteral("File0001.dat"));
  const auto bytes = input.ConsumeRemainingBytes<char>();
  PutFile(path, QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  static ToolStrip strip(Qt::Horizontal, QStringList(17, QStringLiteral("A button")));
  qsizetype drawn = 0;
  ForEachPixel(path, [&drawn](const PixelRecord &pixel) {
    ++drawn;
    const qint32 colour = pixel.colour;
    strip.PSet(pixel.x, pixel.y, colour);
    Require(!strip.Artwork().valid(pixel.x, pixel.y) ||
                strip.Artwork().pixel(pixel.x, pixel.y) ==
                    qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF),
            "a point has its colour");
  });
  Require(drawn * sizeof(PixelRecord) <= bytes.size(), "the last record isn't drawn");
  strip.grab();
}
