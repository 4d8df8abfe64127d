#include "base/mPlatform.h"

#include <gtest/gtest.h>

#include "base/Drives.h"

TEST(mPlatform, OnlyTheTemporaryFolderInAMessageChanges) {
  Platform here = mPlatform::Current();
  here.temporaryFolder = "/home/c/.cache";
  const QString message = "(C:\\TEMP) and C:\\temp\\x, not D:\\TEMP";
  EXPECT_EQ(mPlatform::WithTemporaryFolder(message, here),
            "(/home/c/.cache) and /home/c/.cache\\x, not D:\\TEMP");
}

TEST(DrivesTest, TheRootComesFirstThenTheVolumesThatPeopleMount) {
  const QString mounts("/run /run/media/me/b /home /mnt /mnt/a /media/stick / /mediathek /mnt");
  EXPECT_EQ(DrivesAmong(mounts.split(' ')).join(' '), "/ /media/stick /mnt /mnt/a /run/media/me/b");
}
