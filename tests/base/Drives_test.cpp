#include "base/Drives.h"

#include <gtest/gtest.h>

namespace {

TEST(DrivesTest, TheRootComesFirstThenTheVolumesThatPeopleMount) {
  const QString mounts =
      QStringLiteral("/run /run/media/me/b /home /mnt /mnt/a /media/stick / /mediathek /mnt /proc");
  EXPECT_EQ(DrivesAmong(mounts.split(u' ')).join(u' '),
            QStringLiteral("/ /media/stick /mnt /mnt/a /run/media/me/b"));
  EXPECT_EQ(DrivesAmong({}), QStringList(QStringLiteral("/")));
}

}  // namespace
