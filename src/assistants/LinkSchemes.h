#pragma once

#include <QString>
#include <array>

/// The maker's own endpoints, which the examples of links point to.
struct MakerEndpoints {
  QString webHost, ftpHost, gopherHost, intranetHost;
  QString intranetName;  ///< the intranet host's short name
  QString mailBox;

  /// Those that this build was configured with (TAGWRIGHT_WEB_HOST and so on).
  static MakerEndpoints Configured();
};

/// An example of each kind of link: web, ftp, gopher, telnet, mail, local file.
std::array<QString, 6> LinkSchemes(const MakerEndpoints &maker);
