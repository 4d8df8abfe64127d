#include <gtest/gtest.h>

#include <QStringList>

#include "base/ForeignText.h"
#include "base/TextFile.h"
#include "documents/DocumentName.h"
#include "documents/DocumentText.h"
#include "documents/LineNumbers.h"
#include "documents/NewDocumentText.h"

namespace {

QStringList Lines(NewDocumentType type) {
  return NewDocumentText(type, QStringLiteral("21/11/2026")).split(QStringLiteral("\r\n"));
}

TEST(NewDocumentTextTest, PagesHaveTheirTwelveLinesAndTheirOwnDocumentType) {
  const std::pair<NewDocumentType, const char *> types[] = {
      {NewDocumentType::HtmlStrict,
       R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN" "http://www.w3.org/TR/html40/strict.dtd">)"},
      {NewDocumentType::HtmlTransitional,
       R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" "http://www.w3.org/TR/html40/loose.dtd">)"},
      {NewDocumentType::HtmlFrameset,
       R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Frameset//EN" "http://www.w3.org/TR/html40/frameset.dtd">)"},
  };
  const char *rest =
      "<html>\r\n\t<head>\r\n"
      "\t\t<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-1\">\r\n"
      "\t\t<meta name=\"GENERATOR\" content=\"nimbara works tagwright - hypertext authoring bench "
      "v1.100\">\r\n"
      "\r\n\t\t<title>####Insert site "
      "title####</title>\r\n\t</head>\r\n\t<body>\r\n\r\n\t</body>\r\n"
      "</html>";
  for (const auto &[type, first] : types) {
    EXPECT_EQ(NewDocumentText(type, {}).toStdString(), std::string(first) + "\r\n" + rest);
  }
  EXPECT_TRUE(NewDocumentText(NewDocumentType::BlankPage, {}).isEmpty());
}

TEST(NewDocumentTextTest, AppletAndJavaKeepTheirBlanks) {
  const QStringList applet = Lines(NewDocumentType::AppletPage);
  EXPECT_EQ(applet.size(), 17);
  EXPECT_EQ(applet[0], Lines(NewDocumentType::HtmlFrameset)[0]);
  EXPECT_EQ(applet[9], QString());
  EXPECT_EQ(
      applet[11],
      QStringLiteral("\t    <applet code=\"####YourClass.class####\" width=####AppletWidth#### "
                     "height=####AppletHeight####>"));
  EXPECT_EQ(applet[14], QString());
  const QStringList java = Lines(NewDocumentType::Java);
  EXPECT_EQ(java.size(), 17);
  EXPECT_EQ(java[2], QStringLiteral("*  Date:        21/11/2026"));
  EXPECT_EQ(java[6], QStringLiteral("*               "));
  EXPECT_TRUE(java[7].endsWith(QStringLiteral("authoring bench ")));
  EXPECT_EQ(java[14], QStringLiteral("        "));
}

TEST(DocumentTextTest, PrintedTextLosesOuterBlanksAndOneLineEnd) {
  const std::pair<const char *, QByteArray> cases[] = {
      {"", "\r\n"},
      {"   ", "\r\n"},
      {" a ", "a\r\n"},
      {"a\r\n", "a\r\n"},
      {"a\r\n ", "a\r\n"},
      {"a \r\n", "a \r\n"},
      {"a\r\n\r\n", "a\r\n\r\n"},
      {"\ta\t", "\ta\t\r\n"},
      {"  \r\na", "\r\na\r\n"},
  };
  for (const auto &[text, printed] : cases) {
    EXPECT_EQ(PrintedText(QLatin1String(text)), printed) << text;
  }
}

TEST(DocumentTextTest, LinesAreMeasuredBetweenAnyLineEnds) {
  EXPECT_EQ(TextFile::LongestLineIn(u""), 0);
  EXPECT_EQ(TextFile::LongestLineIn(u"ab\rabc\nabcd\r\nabcde"), 5);
  EXPECT_EQ(TextFile::LongestLineIn(u"abcdef\r\n\n"), 6);
}

TEST(DocumentTextTest, ForeignCharactersAreWrittenOut) {
  const QString all = QStringLiteral("\u2192") + QString::fromUcs4(U"\U0001F600", 1) + u'\u2029';
  EXPECT_EQ(ForeignText::Replaced(all, ForeignText::NumericReference),
            QStringLiteral("&#8594;&#128512;\n"));
  EXPECT_EQ(ForeignText::Replaced(all, ForeignText::JavaEscape),
            QStringLiteral("\\u2192\\ud83d\\ude00\n"));
}

TEST(DocumentTextTest, NamesAreComparedExactly) {
  EXPECT_TRUE(DocumentName::IsUnsaved(QStringLiteral(" <unsaved> ")));
  EXPECT_FALSE(DocumentName::IsUnsaved(QStringLiteral("<Unsaved>")));
  EXPECT_TRUE(DocumentName::IsJava(QStringLiteral("/a.java ")));
  EXPECT_FALSE(DocumentName::IsJava(QStringLiteral("/a.JAVA")));
  EXPECT_EQ(LineNumberText(9, 2), QStringLiteral("9:\n10:\n"));
}

}  // namespace
