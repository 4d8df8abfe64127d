#include <gtest/gtest.h>

#include "assistants/HorRuleText.h"
#include "assistants/LinkSchemes.h"

namespace {

TEST(LinkSchemesTest, NameTheMakersEndpoints) {
  const MakerEndpoints maker{QStringLiteral("web.x"), QStringLiteral("ftp.x"),
                             QStringLiteral("go.x"),  QStringLiteral("inner.x"),
                             QStringLiteral("Inner"), QStringLiteral("box@x")};
  const char *const schemes[] = {
      R"(<a href="http://web.x">Be welcomed to Nimbara Works Websites</a>)",
      R"(<a href="ftp://ftp.x">Nimbara Works FTP-Site</a>)",
      R"(<a href="gopher://go.x:60/1">Link to Nimbara Works Gopher</a>)",
      R"(<a href="telnet://inner.x">Link to Inner, Nimbara Works intranet server</a>)",
      R"(<a href="emailto:box@x">Mail to the Nimbara Works Contact Team</a>)",
      R"(<a href="file://localhost/C:/directory/start.html">Nimbara Works Start Page</a>)",
  };
  for (size_t i = 0; i < 6; ++i) EXPECT_EQ(LinkSchemes(maker)[i], QLatin1String(schemes[i]));
  for (const QString &scheme : LinkSchemes(MakerEndpoints::Configured()))
    EXPECT_TRUE(scheme.contains(QLatin1String("nimbara-works.")) ||
                scheme.contains(QLatin1String("localhost")))
        << qPrintable(scheme);
}

TEST(HorRuleTextTest, Tags) {
  struct Case {
    HorRuleText rule;
    const char *tag;
  };
  for (const auto &[rule, tag] : {
           Case{{0, false, QStringLiteral("2"), QStringLiteral("100")},
                R"(<hr WIDTH="100%" Size=2 align=left>)"},
           {{1, true, QStringLiteral(" 2.50 "), QStringLiteral("50 percent")},
            R"(<hr WIDTH="50%" Size=2.5 align=center Noshade>)"},
           {{2, false, {}, QStringLiteral("wide")}, R"(<hr WIDTH="0%" Size=0 align=right>)"},
           {{0, false, QStringLiteral("-3"), QStringLiteral("1e2")},
            R"(<hr WIDTH="100%" Size=-3 align=left>)"},
       })
    EXPECT_EQ(rule.Tag(), QLatin1String(tag));
}

}  // namespace
