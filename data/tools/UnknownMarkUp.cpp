#include "UnknownMarkUp.h"

#include <QRegularExpression>

using Qt::StringLiterals::operator""_s;

namespace {

std::optional<MarkUpFault> FirstUnknownAttribute(const QString &element, const QString &list,
                                                 qsizetype position, const HtmlDtd &dtd) {
  static const QRegularExpression attribute(
      u"([A-Za-z][\\w:-]*)(?:\\s*=\\s*(?:\"[^\"]*\"|'[^']*'|[^\\s\"'>]+))?"_s);
  const QSet<QString> known = dtd.attributes.value(element);
  for (auto found = attribute.globalMatch(list); found.hasNext();) {
    const auto match = found.next();
    const QString name = match.captured(1);
    if (!known.contains(name.toLower())) {
      return MarkUpFault{
          position + match.capturedStart(),
          u"<%1> has no attribute %2 in html 4.01 %3"_s.arg(element, name, dtd.name)};
    }
  }
  return {};
}

}  // namespace

std::optional<MarkUpFault> FirstUnknownMarkUp(const QString &page, const HtmlDtd &dtd) {
  static const QRegularExpression markUp(
      u"<!--.*?-->"                                                        // a comment
      "|<[!?](?:\"[^\"]*\"|'[^']*'|[^>\"'])*>"                             // a declaration
      "|<(/?)([A-Za-z][\\w:-]*)((?:\"[^\"]*\"|'[^']*'|[^<>\"'])*)(>?)"_s,  // a tag
      QRegularExpression::DotMatchesEverythingOption);
  qsizetype position = 0;
  for (auto found = markUp.match(page); found.hasMatch(); found = markUp.match(page, position)) {
    position = found.capturedEnd();
    if (!found.hasCaptured(2)) continue;
    const QString element = found.captured(2).toLower();
    if (!dtd.attributes.contains(element)) {
      return MarkUpFault{found.capturedStart(),
                         u"html 4.01 %1 has no element <%2>"_s.arg(dtd.name, element)};
    }
    if (found.capturedLength(4) == 0) {
      return MarkUpFault{found.capturedStart(), u"a tag that never ends"_s};
    }
    const auto fault =
        FirstUnknownAttribute(element, found.captured(3), found.capturedStart(3), dtd);
    if (fault) return fault;
    if (found.capturedLength(1) == 0 && (element == u"script" || element == u"style")) {
      position = page.indexOf(u"</"_s, position);
      if (position < 0) return {};
    }
  }
  return {};
}
