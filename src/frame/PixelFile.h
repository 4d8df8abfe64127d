#pragma once

#include <QString>

#include "base/RecordFile.h"
#include "frame/PixelRecord.h"

/// Calls draw(pixel) for the records of a pixel file in order, from the first to the last but one:
/// the last record of a file is never drawn. A missing file draws nothing.
template <class Draw>
void ForEachPixel(const QString &path, Draw draw) {
  const RecordFile<PixelRecord> file(path);
  const qint64 last = file.Count() - 1;
  file.Scan(1, [&draw, last](qint64 number, const PixelRecord &pixel) {
    if (number > last) return false;
    draw(pixel);
    return true;
  });
}
