#include "documents/NewDocumentText.h"

#include <QStringList>

namespace {

const QString generator = QStringLiteral("nimbara works tagwright - hypertext authoring bench ");

QString DocumentTypeLine(NewDocumentType type) {
  const auto line = [](const char *variant, const char *dtd) {
    return QStringLiteral("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01%1//EN\" \"%2%3\">")
        .arg(QLatin1String(variant), QStringLiteral("http://www.w3.org/TR/html40/"),
             QLatin1String(dtd));
  };
  switch (type) {
    case NewDocumentType::HtmlStrict:
      return line("", "strict.dtd");
    case NewDocumentType::HtmlTransitional:
      return line(" Transitional", "loose.dtd");
    default:
      return line(" Frameset", "frameset.dtd");
  }
}

QStringList AppletLines() {
  return {
      {},
      QStringLiteral(
          "\t    <!-- NOTE: #### is only a place holder and must be replaced at all by the "
          "value of the special data -->"),
      QStringLiteral("\t    <applet code=\"####YourClass.class####\" width=####AppletWidth#### "
                     "height=####AppletHeight####>"),
      {},
      QStringLiteral("\t    </applet>"),
      {},
  };
}

QStringList PageLines(NewDocumentType type) {
  QStringList lines{
      DocumentTypeLine(type),
      QStringLiteral("<html>"),
      QStringLiteral("\t<head>"),
      QStringLiteral("\t\t<meta http-equiv=\"Content-Type\" content=\"text/html; "
                     "charset=iso-8859-1\">"),
      QStringLiteral("\t\t<meta name=\"GENERATOR\" content=\"%1v1.100\">").arg(generator),
      {},
      QStringLiteral("\t\t<title>####Insert site title####</title>"),
      QStringLiteral("\t</head>"),
      QStringLiteral("\t<body>"),
  };
  lines += type == NewDocumentType::AppletPage ? AppletLines() : QStringList{{}};
  lines += {QStringLiteral("\t</body>"), QStringLiteral("</html>")};
  return lines;
}

QStringList JavaLines(const QString &date) {
  return {
      QStringLiteral("/**"),
      QStringLiteral("*  Filename:    <unsaved>"),
      QStringLiteral("*  Date:        ") + date,
      QStringLiteral("*  Version:     "),
      QStringLiteral("*  Author:      "),
      QStringLiteral("*  Description: "),
      QStringLiteral("*               "),
      QStringLiteral("*  Generator:   ") + generator,
      QStringLiteral("*/"),
      {},
      QStringLiteral("import java.*;"),
      {},
      QStringLiteral("public class <unsaved> {"),
      QStringLiteral("    public static void main(String argv[]) {"),
      QStringLiteral("        "),
      QStringLiteral("    }"),
      QStringLiteral("}"),
  };
}

}  // namespace

QString NewDocumentText(NewDocumentType type, const QString &date) {
  const auto joined = [](const QStringList &lines) { return lines.join(QLatin1String("\r\n")); };
  switch (type) {
    case NewDocumentType::BlankPage:
      return {};
    case NewDocumentType::Java:
      return joined(JavaLines(date));
    default:
      return joined(PageLines(type));
  }
}
