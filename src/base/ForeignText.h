#pragma once

#include <QString>
#include <functional>

/// What becomes of characters that the ANSI code page lacks when they enter a document: the editor
/// never holds what its file can't.
namespace ForeignText {

/// How one such character is written instead. Takes a code point.
using Replacement = std::function<QString(char32_t)>;

QString NumericReference(char32_t codePoint);  ///< "&#8594;"
QString JavaEscape(char32_t codePoint);        ///< "\u2192", two of them beyond U+FFFF

/// The text with every such character replaced. The separators U+2028 and U+2029 count as line ends
/// and become LF.
QString Replaced(const QString &text, const Replacement &replacement);

}  // namespace ForeignText
