#include "frame/FolderTree.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "shared/Files.h"

namespace {

TEST(FolderTreeTest, FoldersAndLinksToThemInOrder) {
  QTemporaryDir temporary;
  const QDir folder(temporary.path());
  for (const char *name : {"b", "A", "C*", ".hidden", "a b"}) folder.mkdir(QLatin1String(name));
  PutFile(folder.filePath(QStringLiteral("file")), "x");
  QFile::link(temporary.path(), folder.filePath(QStringLiteral("circle")));
  QFile::link(folder.filePath(QStringLiteral("file")), folder.filePath(QStringLiteral("toFile")));
  QFile::link(QStringLiteral("self"), folder.filePath(QStringLiteral("self")));
  EXPECT_EQ(FolderTree::FoldersIn(temporary.path()).join(u'|'),
            QStringLiteral(".hidden|A|a b|b|C*|circle"));
  EXPECT_EQ(FolderTree::FoldersIn(folder.filePath(QStringLiteral("circle/circle/circle"))).size(),
            6);
  EXPECT_TRUE(FolderTree::FoldersIn(folder.filePath(QStringLiteral("file"))).isEmpty());
  EXPECT_TRUE(FolderTree::FoldersIn(QStringLiteral("/none")).isEmpty());
}

TEST(FolderTreeTest, KeysEndInASeparatorAndADriveCannotBeChosen) {
  const struct {
    const Platform &platform;
    const char *drive, *root, *child, *path;
  } cases[] = {
      {mPlatform::Original(), "c: [system]", "C:", "C:\\x y\\", "C:\\x y"},
      {mPlatform::Current(), "/", "/", "/x y/", "/x y"},
      {mPlatform::Current(), "/media/Stick", "/media/Stick/", "/media/Stick/x y/",
       "/media/Stick/x y"},
  };
  for (const auto &[platform, drive, root, child, path] : cases) {
    const QString rootKey = FolderTree::RootKey(QLatin1String(drive), platform);
    EXPECT_EQ(rootKey, QLatin1String(root));
    const QString key = FolderTree::ChildKey(rootKey, QStringLiteral("x y"), platform);
    EXPECT_EQ(key, QLatin1String(child));
    EXPECT_EQ(FolderTree::PathOf(key, rootKey, platform), QLatin1String(path));
    EXPECT_FALSE(FolderTree::PathOf(rootKey, rootKey, platform));
    EXPECT_FALSE(FolderTree::PathOf({}, rootKey, platform)) << "nothing is selected";
  }
}

}  // namespace
