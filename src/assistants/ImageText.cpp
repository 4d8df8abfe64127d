#include "assistants/ImageText.h"

#include <cmath>

#include "base/mText.h"

namespace {

QString Measures(const QString &height, const QString &width, const QString &unit = {}) {
  return QStringLiteral(" height=\"") + height + unit + QStringLiteral("\" width=\"") + width +
         unit + u'"';
}

QString Number(const QString &typed) {
  return mText::NumberText(mText::Val(typed));
}

QString WholeNumber(const QString &typed) {
  return mText::NumberText(std::nearbyint(mText::Val(typed)));
}

QString DimensionsOf(const ImageText &image) {
  switch (image.dimensions) {
    case ImageText::Dimensions::Pixels:
      return Measures(Number(image.height), Number(image.width));
    case ImageText::Dimensions::Percent:
      return Measures(WholeNumber(image.height), WholeNumber(image.width), QStringLiteral("%"));
    default:
      return Measures(QString::number(image.picture.height()),
                      QString::number(image.picture.width()));
  }
}

}  // namespace

QString ImageText::Tag() const {
  QString tag = QStringLiteral("<img src=\"") + mText::Trim(source) + u'"' + DimensionsOf(*this) +
                QStringLiteral(" border=") +
                (bordered ? mText::Trim(borderThick) : QStringLiteral("0"));
  if (const QString alternative = mText::Trim(alternativeText); !alternative.isEmpty())
    tag += QStringLiteral(" alt=\"") + alternative + u'"';
  return tag + u'>';
}
