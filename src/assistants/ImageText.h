#pragma once

#include <QSize>
#include <QString>

/// What the image assistant holds; the texts are as they stand in its boxes.
struct ImageText {
  enum class Dimensions {
    Normal,   ///< those of the picture
    Pixels,   ///< those typed
    Percent,  ///< those typed, as whole numbers
  };

  QString source{};
  Dimensions dimensions = Dimensions::Normal;
  QSize picture{0, 0};  ///< in pixels
  QString height{}, width{};
  bool bordered = false;
  QString borderThick{};
  QString alternativeText{};

  /// Nothing is escaped: what was typed is written.
  QString Tag() const;
};
