#pragma once

#include <QString>

/// The text functions whose exact meaning matters to files and dialogs. Positions are 1-based.
/// They are not QString's own of similar name: Trim takes blanks only, Val reads a leading number.
namespace mText {

/// Without the blanks (character 32, no other white space) at both ends.
QString Trim(QStringView text);

/// The leading number of a text, 0 if there is none. Blanks are skipped everywhere; then an
/// optional sign, digits, one decimal point, an exponent (E or D), or &H and &O with their digits
/// and no sign (as 16-bit values of two's complement where at most four hexadecimal digits are
/// given or the octal ones fit into 16 bits, else 32-bit); stops at the first character that
/// doesn't belong. The point is the decimal sign in every locale. A number beyond the range of its
/// kind gives 0.
double Val(QStringView text);

/// A number as text with a leading blank in place of the plus sign: " 3", "-0.5". Fifteen digits,
/// decimal point and leading zero in every locale, no trailing zeros; from 1E15 on in the form
/// "1E+40", below 1E-15 in the form "1E-16". What isn't finite is written as 0.
QString Str(double number);

/// Str without the leading blank.
QString NumberText(double number);

/// Position of the first occurrence at or behind start, 0 if there is none. An empty sought text is
/// found at start if start lies in the text or right behind it. A start below 1 finds nothing.
qsizetype InStr(qsizetype start, QStringView text, QStringView sought,
                Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// length characters from the position on; fewer where the text ends. A start below 1 or a negative
/// length gives an empty text.
QString Mid(QStringView text, qsizetype start, qsizetype length);
QString Mid(QStringView text, qsizetype start);
QString Left(QStringView text, qsizetype length);
QString Right(QStringView text, qsizetype length);

/// The text with every occurrence of find, regardless of case, replaced from the left. Two habits
/// of it that callers see: each replacement takes the blanks from the end of the text behind it,
/// and the search goes on one character behind a replacement's start, or at the last character of a
/// replacement of more than one, so a removal passes over the character that moves up, and the end
/// of a replacement can be part of the next hit. An empty find changes nothing.
QString ReplaceAllText(QStringView text, QStringView find, QStringView replacement);

/// The count that is typed into a number box: the nearest whole number, 0 if it is below 0 or too
/// large for 16 bits.
qint16 CountOf(QStringView text);

/// Nearest whole number, halves to the even one. The nearest end of the range for what lies beyond
/// it, 0 for what isn't a number.
qint64 RoundToEven(double number);

}  // namespace mText
