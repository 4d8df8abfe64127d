#include "StencilPage.h"

#include <QRegularExpression>

using Qt::StringLiterals::operator""_s;

namespace {

const StencilEntry *ParentOf(const std::vector<StencilEntry> &entries, const StencilEntry &entry) {
  return entry.parent < 0 ? nullptr : &entries[entry.parent];
}

/// The surroundings that hold for an entry, its own or inherited.
QString SurroundingsOf(const std::vector<StencilEntry> &entries, const StencilEntry &entry) {
  const StencilEntry *from = &entry;
  while (from && from->within.isEmpty()) from = ParentOf(entries, *from);
  return from ? from->within : u"|"_s;
}

/// A source with the attribute as the first one of its first tag; one of the same name goes.
StencilPage WithAttribute(const SourceText &source, const StencilEntry &element,
                          const StencilEntry &attribute) {
  static const QRegularExpression startTag(
      u"^(<[A-Za-z][A-Za-z0-9]*)((?:\\s+[\\w-]+(?:=\"[^\"]*\")?)*\\s*>)"_s);
  const auto tag = startTag.match(element.html);
  if (!tag.hasMatch()) {
    throw SourceError(source, element.htmlLine,
                      u"attributes stand below it, so it must begin with a plain start tag"_s);
  }
  const QRegularExpression sameName(
      u"\\s+%1(?:=\"[^\"]*\")?(?=[\\s>])"_s.arg(attribute.html.section(u'=', 0, 0)));
  const QString others = tag.captured(2).remove(sameName);
  return {tag.captured(1) + u' ' + attribute.html + others + element.html.mid(tag.capturedEnd()),
          tag.capturedLength(1) + 1};
}

/// A whole page round a text: what begins as a piece of a page does stands in that piece's place,
/// anything else in its body.
StencilPage WholePage(const StencilPage &text, HtmlVersion version) {
  struct Place {
    const char *piece, *before, *behind;
  };
  static const Place places[] = {
      {"<html", "", ""},
      {"<head", "<html>", "<body><p>x</p></body></html>"},
      {"<body", "<html><head><title>x</title></head>", "</html>"},
      {"<frameset", "<html><head><title>x</title></head>", "</html>"},
      {"", "<html><head><title>x</title></head><body><div>", "</div></body></html>"},
  };
  if (text.text.startsWith(u"<!DOCTYPE")) return text;
  const Place *place = places;
  while (!text.text.startsWith(QLatin1StringView(place->piece))) ++place;
  const QString before = DoctypeLine(version) + u"\r\n"_s + QLatin1StringView(place->before);
  return {before + text.text + QLatin1StringView(place->behind), before.size() + text.begin};
}

}  // namespace

bool IsAttribute(const StencilEntry &entry) {
  static const QRegularExpression attribute(u"\\A[A-Za-z-]+(?:=\"[^\"]*\")?\\z"_s);
  return attribute.match(entry.html).hasMatch();
}

StencilPage PageOf(const SourceText &source, const std::vector<StencilEntry> &entries,
                   std::size_t index) {
  const StencilEntry &entry = entries[index];
  const StencilEntry *outer = &entry;  // whose surroundings count
  StencilPage piece{entry.html, 0};
  if (entry.within.isEmpty() && IsAttribute(entry)) {
    const StencilEntry *element = ParentOf(entries, entry);
    while (element && !element->html.startsWith(u'<')) element = ParentOf(entries, *element);
    if (element) {
      piece = WithAttribute(source, *element, entry);
      outer = element;
    }
  }
  const QString surroundings = SurroundingsOf(entries, *outer);
  const qsizetype bar = surroundings.indexOf(u'|');
  piece.text = surroundings.left(bar) + piece.text + surroundings.mid(bar + 1);
  piece.begin += bar;
  return WholePage(piece, entry.type);
}
