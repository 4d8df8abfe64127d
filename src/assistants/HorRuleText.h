#pragma once

#include <QString>

/// What the rule assistant holds; the texts are as they stand in its boxes.
struct HorRuleText {
  int align = 0;  ///< left, center, right
  bool noShade = false;
  QString size;   ///< thickness in pixels
  QString width;  ///< in percent

  QString Tag() const;
};
