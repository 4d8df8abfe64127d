#pragma once

#include <QString>

/// Six upper-case hexadecimal digits for a colour of red, green and blue from 0 to 255, without
/// "#". The two rules differ for parts below 16.
namespace ColourText {

QString ZeroBefore(int red, int green, int blue);  ///< 5 becomes "05"
QString ZeroBehind(int red, int green, int blue);  ///< 5 becomes "50"

}  // namespace ColourText
