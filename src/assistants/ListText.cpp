#include "assistants/ListText.h"

#include <array>

#include "base/mText.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");
const QString listItem = QStringLiteral("\t<li>\r\n\t</li>\r\n");
// The user writes over the two placeholders by hand.
const QString definition = QStringLiteral(
    "\t<dt>##Insert Definition Term##\r\n\t\t<dd>##Insert Definition Description##\r\n");

constexpr std::array tags{"ul", "ol", "dl", "menu", "dir"};
constexpr std::array bullets{"circle", "square", "disc"};
constexpr std::array numberings{" type=\"I\"", " type=\"i\"", " type=\"A\"", " type=\"a\"", ""};

QString Attributes(const ListText &list) {
  switch (list.kind) {
    case ListText::Unsorted:
      return QStringLiteral(" type=\"%1\"").arg(QLatin1String(bullets[list.bulletType]));
    case ListText::Sorted:
      return QStringLiteral(" %1%2 start=\"%3\"")
          .arg(list.compact ? QStringLiteral(" compact ") : QString(),
               QLatin1String(numberings[list.numberingStyle]),
               mText::NumberText(mText::Val(list.startValue)));
    default:
      return {};
  }
}

}  // namespace

QString ListText::Build() const {
  const QString tag = QLatin1String(tags[kind]);
  const QString &item = kind == Definitions ? definition : listItem;
  return u'<' + tag + Attributes(*this) + u'>' + lineEnd +
         item.repeated(mText::CountOf(noOfItems)) + QStringLiteral("</") + tag + u'>';
}
