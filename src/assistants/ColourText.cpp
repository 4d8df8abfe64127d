#include "assistants/ColourText.h"

#include "base/mText.h"

namespace {

constexpr int digits = 2;

QString Hex(int part) {
  return QString::number(part, 16).toUpper();
}

template <class Part>
QString Join(int red, int green, int blue, Part part) {
  return part(red) + part(green) + part(blue);
}

}  // namespace

QString ColourText::ZeroBefore(int red, int green, int blue) {
  return Join(red, green, blue,
              [](int part) { return mText::Right(QStringLiteral("00") + Hex(part), digits); });
}

QString ColourText::ZeroBehind(int red, int green, int blue) {
  return Join(red, green, blue,
              [](int part) { return mText::Left(Hex(part) + QStringLiteral("00"), digits); });
}
