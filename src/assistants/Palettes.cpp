#include "assistants/Palettes.h"

#include <array>

namespace {

constexpr int wide = 36;
constexpr int narrow = 8;
constexpr int full = 255;

// The sixteen colours that HTML 4.01 names (section 6.5), dark ones above the light ones.
constexpr std::array named{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                           0x008080, 0x808080, 0xFFFFFF, 0xFF0000, 0x00FF00, 0xFFFF00,
                           0x0000FF, 0xFF00FF, 0x00FFFF, 0xC0C0C0};

QList<QColor> Hues(int columns, std::initializer_list<double> lightness) {
  QList<QColor> colours;
  for (const double light : lightness) {
    for (int hue = 0; hue < columns; ++hue) {
      colours << QColor::fromHslF(float(hue) / float(columns), 1.0F, float(light)).toRgb();
    }
  }
  return colours;
}

}  // namespace

Palette Palette::Web() {
  constexpr int levels = 6;
  constexpr int step = full / (levels - 1);
  Palette palette{wide, {}};
  for (int green = 0; green < levels; ++green) {
    for (int red = 0; red < levels; ++red) {
      for (int blue = 0; blue < levels; ++blue) {
        palette.colours << QColor(red * step, green * step, blue * step);
      }
    }
  }
  return palette;
}

Palette Palette::GreyScale() {
  Palette palette{wide, {}};
  for (int step = 0; step < wide; ++step) {
    const int level = step * full / (wide - 1);
    palette.colours << QColor(level, level, level);
  }
  return palette;
}

Palette Palette::Rainbow() {
  return {wide, Hues(wide, {0.9, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1})};
}

Palette Palette::Font() {
  Palette palette{narrow, {}};
  for (const int colour : named) palette.colours << QColor::fromRgb(QRgb(colour));
  palette.colours << Hues(narrow, {0.85, 0.7, 0.5, 0.35, 0.2});
  return palette;
}
