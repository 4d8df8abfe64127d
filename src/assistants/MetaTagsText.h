#pragma once

#include <QString>
#include <array>

namespace MetaTagsText {

/// A row of the meta tag assistant and the line that it writes: the texts of one box or of two with
/// fixed pieces around them.
struct Row {
  const char *caption;
  const char *opening;               ///< stands before the first text
  const char *closing;               ///< stands behind the last
  const char *preset = "";           ///< what the box holds at first
  const char *between = nullptr;     ///< stands between two texts; null in a row of one box
  const char *firstLabel = nullptr;  ///< of the two boxes
  const char *secondLabel = nullptr;
};

extern const std::array<Row, 10> rows;

/// What a row of the dialog holds.
struct Entry {
  bool ticked = false;
  QString first;
  QString second;  ///< empty in a row of one box
};

/// The lines of the ticked rows, each with its line end.
QString Block(const std::array<Entry, 10> &entries);

}  // namespace MetaTagsText
