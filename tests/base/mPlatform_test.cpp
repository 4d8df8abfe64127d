#include "base/mPlatform.h"

#include <gtest/gtest.h>

namespace {

TEST(mPlatform, OnlyTheTemporaryFolderInAMessageChanges) {
  Platform here = mPlatform::Current();
  here.temporaryFolder = QStringLiteral("/home/c/.cache/tagwright");
  const QString message = QStringLiteral("(C:\\TEMP) and C:\\temp\\x, not D:\\TEMP");
  EXPECT_EQ(mPlatform::WithTemporaryFolder(message, here),
            u"(/home/c/.cache/tagwright) and /home/c/.cache/tagwright\\x, not D:\\TEMP");
  EXPECT_EQ(mPlatform::WithTemporaryFolder(message, mPlatform::Original()), message);
}

}  // namespace
