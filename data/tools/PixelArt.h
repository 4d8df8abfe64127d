#pragma once

#include <QByteArray>
#include <vector>

#include "SourceText.h"
#include "frame/PixelRecord.h"

/// Side of a strip's cell in pixels. Its outermost ring is the hover frame's.
inline constexpr int cellSide = 24;

/// The records of a pixel file, from its source:
///
///     ; a comment                          blank lines and these are skipped
///     size 408 24                          strip or picture, in pixels
///     cells across                         how buttons follow: across, down, or none (one picture)
///     bytes 13248                          exact length of the file
///     colour b #2f7bd0  letters            one letter a colour; what follows is a comment
///     button Bold                          or "picture": the art, one character a point, up to
///     bbbb..                               the next blank line; "." stays as the background is
///     bb..bb
///
/// Each block of art is centred in its cell; where that doesn't come out even, the smaller margin
/// is at the left or top. All rows of a block are equally long, and no point lies in the outermost
/// ring of a cell.
///
/// The last record of a file is never drawn. Art with fewer points than the file draws is followed
/// by its first points again, which draws the same picture. Throws SourceError for art with more.
std::vector<PixelRecord> PixelRecords(const SourceText &source);

/// The same picture as a BMP file of 32 bits a pixel, transparent where nothing is drawn. What the
/// source tells of a length in bytes only limits its points.
QByteArray BitmapFile(const SourceText &source);
