#include "assistants/LinkSchemes.h"

MakerEndpoints MakerEndpoints::Configured() {
  return {QStringLiteral(TAGWRIGHT_WEB_HOST),      QStringLiteral(TAGWRIGHT_FTP_HOST),
          QStringLiteral(TAGWRIGHT_GOPHER_HOST),   QStringLiteral(TAGWRIGHT_INTRANET_HOST),
          QStringLiteral(TAGWRIGHT_INTRANET_NAME), QStringLiteral(TAGWRIGHT_MAIL_BOX)};
}

// "emailto:" is no slip of the pen: the word belongs to the example.
std::array<QString, 6> LinkSchemes(const MakerEndpoints &maker) {
  return {
      QStringLiteral("<a href=\"http://") + maker.webHost +
          QStringLiteral("\">Be welcomed to Nimbara Works Websites</a>"),
      QStringLiteral("<a href=\"ftp://") + maker.ftpHost +
          QStringLiteral("\">Nimbara Works FTP-Site</a>"),
      QStringLiteral("<a href=\"gopher://") + maker.gopherHost +
          QStringLiteral(":60/1\">Link to Nimbara Works Gopher</a>"),
      QStringLiteral("<a href=\"telnet://") + maker.intranetHost + QStringLiteral("\">Link to ") +
          maker.intranetName + QStringLiteral(", Nimbara Works intranet server</a>"),
      QStringLiteral("<a href=\"emailto:") + maker.mailBox +
          QStringLiteral("\">Mail to the Nimbara Works Contact Team</a>"),
      QStringLiteral("<a href=\"file://localhost/C:/directory/start.html\">"
                     "Nimbara Works Start Page</a>"),
  };
}
