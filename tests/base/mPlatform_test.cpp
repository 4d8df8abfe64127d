#include "base/mPlatform.h"

#include <gtest/gtest.h>

TEST(mPlatform, OnlyTheTemporaryFolderInAMessageChanges) {
  Platform here = mPlatform::Current();
  here.temporaryFolder = QStringLiteral("/home/c/.cache");
  const QString message = QStringLiteral("(C:\\TEMP) and C:\\temp\\x, not D:\\TEMP");
  EXPECT_EQ(mPlatform::WithTemporaryFolder(message, here),
            u"(/home/c/.cache) and /home/c/.cache\\x, not D:\\TEMP");
  EXPECT_EQ(mPlatform::WithTemporaryFolder(message, mPlatform::Original()), message);
}
