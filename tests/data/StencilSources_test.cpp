#include <gtest/gtest.h>

#include <QDir>

#include "StencilPage.h"

using Qt::StringLiterals::operator""_s;

// What the delivered library promises: every element of the language, and below each its own
// attributes. The 16 that nearly every element has stand in a section of their own.
TEST(StencilSources, HaveEveryElementAndItsAttributes) {
  const QStringList common =
      u"id class style title lang dir onclick ondblclick onmousedown onmouseup onmouseover "
      "onmousemove onmouseout onkeypress onkeydown onkeyup"_s.split(u' ');
  QMap<QString, QSet<QString>> missing =
      ReadHtmlDtd(QStringLiteral(TAGWRIGHT_DTD_FOLDER), HtmlVersion::frameset).attributes;
  for (QSet<QString> &attributes : missing) {
    for (const QString &name : common) attributes.remove(name);
  }
  QSet<QString> elements;
  const QDir folder(QStringLiteral(TAGWRIGHT_STENCIL_SOURCES));
  for (const QString &file : folder.entryList({u"*.txt"_s})) {
    const std::vector<StencilEntry> entries = ReadStencilEntries(ReadSource(folder.filePath(file)));
    for (const StencilEntry &entry : entries) {
      if (entry.html.startsWith(u'<' + entry.caption)) elements << entry.caption;
      if (entry.parent < 0 || !IsAttribute(entry)) continue;
      const StencilEntry &element = entries[entry.parent];
      if (!element.html.startsWith(u'<' + element.caption)) continue;
      EXPECT_TRUE(entry.html.startsWith(entry.caption)) << qPrintable(file) << entry.line;
      missing[element.caption].remove(entry.caption);
    }
  }
  for (const auto &[element, attributes] : missing.asKeyValueRange()) {
    EXPECT_TRUE(elements.contains(element)) << qPrintable(element);
    EXPECT_TRUE(attributes.isEmpty())
        << qPrintable(element + u": "_s + attributes.values().join(u' '));
  }
}
