#include "assistants/ImageText.h"

#include <gtest/gtest.h>

namespace {

using Dimensions = ImageText::Dimensions;

TEST(ImageTextTest, TagOfWhatTheDialogHolds) {
  struct Case {
    ImageText image;
    const char16_t *tag;
  };
  for (const auto &[image, tag] : {
           Case{{.source = QStringLiteral("  a b.png "),
          .picture = {34, 12},
          .alternativeText = QStringLiteral(" a logo ")},
                u"<img src=\"a b.png\" height=\"12\" width=\"34\" border=0 alt=\"a logo\">"},
           {{.source = QStringLiteral("a\"<%1&\u0142.png"),
           .borderThick = QStringLiteral("5"),
           .alternativeText = QStringLiteral("%2")},
            u"<img src=\"a\"<%1&\u0142.png\" height=\"0\" width=\"0\" border=0 alt=\"%2\">"},
           {{.picture = {1, 2},
           .bordered = true,
           .borderThick = QStringLiteral(" thick \"1\" "),
           .alternativeText = QStringLiteral("  ")},
            u"<img src=\"\" height=\"2\" width=\"1\" border=thick \"1\">"},
           {{.bordered = true}, u"<img src=\"\" height=\"0\" width=\"0\" border=>"},
       })
    EXPECT_EQ(image.Tag(), QString::fromUtf16(tag));
}

TEST(ImageTextTest, TypedMeasures) {
  struct Case {
    const char *typed, *pixels, *percent;
  };
  for (const auto &[typed, pixels, percent] : {
           Case{"100", "100", "100%"},
           {" 12.5 px ", "12.5", "12%"},
           {"13.5", "13.5", "14%"},
           {"", "0", "0%"},
           {"wide", "0", "0%"},
           {"-0.4", "-0.4", "0%"},
           {"1e2", "100", "100%"},
           {"40000", "40000", "40000%"},
           {"1e40", "1E+40", "1E+40%"},
           {"1e400", "0", "0%"},
       }) {
    ImageText image{
        .dimensions = Dimensions::Pixels, .picture = {9, 9}, .height = QLatin1String(typed)};
    image.width = QStringLiteral("7");
    EXPECT_EQ(image.Tag(), QStringLiteral("<img src=\"\" height=\"%1\" width=\"7\" border=0>")
                               .arg(QLatin1String(pixels)));
    image.dimensions = Dimensions::Percent;
    std::swap(image.height, image.width);
    EXPECT_EQ(image.Tag(), QStringLiteral("<img src=\"\" height=\"7%\" width=\"%1\" border=0>")
                               .arg(QLatin1String(percent)));
  }
}

}  // namespace
