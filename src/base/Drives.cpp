#include "base/Drives.h"

#include <QStorageInfo>
#include <algorithm>

QStringList Drives() {
  QStringList mountPoints;
  const auto volumes = QStorageInfo::mountedVolumes();
  for (const QStorageInfo &volume : volumes) mountPoints << volume.rootPath();
  return DrivesAmong(mountPoints);
}

QStringList DrivesAmong(const QStringList &mountPoints) {
  const QStringList places{QStringLiteral("/media/"), QStringLiteral("/mnt/"),
                           QStringLiteral("/run/media/")};
  QStringList drives;
  for (const QString &point : mountPoints) {
    const bool isDrive = std::any_of(places.begin(), places.end(), [&point](const QString &place) {
      return (point + u'/').startsWith(place);
    });
    if (isDrive) drives << point;
  }
  drives.sort();
  drives.removeDuplicates();
  drives.prepend(QStringLiteral("/"));
  return drives;
}
