#include "assistants/HorRuleText.h"

#include <array>

#include "base/mText.h"

namespace {

constexpr std::array alignments{"align=left", "align=center", "align=right"};

QString Number(const QString &typed) {
  return mText::NumberText(mText::Val(typed));
}

}  // namespace

QString HorRuleText::Tag() const {
  return QStringLiteral("<hr WIDTH=\"") + Number(width) + QStringLiteral("%\" Size=") +
         Number(size) + u' ' + QLatin1String(alignments[align]) +
         (noShade ? QStringLiteral(" Noshade>") : QStringLiteral(">"));
}
