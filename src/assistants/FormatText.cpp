#include "assistants/FormatText.h"

#include <array>

namespace {

struct Pair {
  const char *opening;
  const char *closing;
};

constexpr int firstButton = 2;
constexpr std::array pairs{Pair{"<b>", "</b>"},
                           Pair{"<i>", "</i>"},
                           Pair{"<u>", "</u>"},
                           Pair{"<strike>", "</strike>"},
                           Pair{"<p>", "</p>"},
                           Pair{"<p align=\"left\">", "</p>"},
                           Pair{"<p align=\"right\">", "</p>"},
                           Pair{"<p align=\"center\">", "</p>"}};

constexpr std::array sizes{"-2", "-1", "", "+1", "+2", "+3", "+4"};

}  // namespace

FormatText FormatText::OfButton(int button) {
  const int index = button - firstButton;
  if (index < 0 || index >= int(pairs.size())) return {};
  return {QLatin1String(pairs[index].opening), QLatin1String(pairs[index].closing)};
}

FormatText FormatText::OfFont(int sizeIndex, const QString &fontName, const QString &colour) {
  const bool sized = sizeIndex >= 0 && sizeIndex < int(sizes.size()) && *sizes[sizeIndex];
  FormatText text;
  if (sized) text.opening = QStringLiteral("<font size=%1>").arg(QLatin1String(sizes[sizeIndex]));
  // No arg(): a font's name may hold a percent sign.
  text.opening += QStringLiteral("<font face=\"") + fontName +
                  QStringLiteral(",Helvetica\"><font color=\"") + colour + QStringLiteral("\">");
  text.closing = QStringLiteral("</font></font>") +
                 (sized ? QStringLiteral("</font>&nbsp;") : QStringLiteral("&nbsp;"));
  return text;
}
