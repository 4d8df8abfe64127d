#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "base/Drives.h"
#include "images/ImageFolder.h"
#include "images/ThumbnailGrid.h"
#include "images/ThumbnailText.h"
#include "shared/Files.h"
#include "shared/Limits.h"

namespace {

TEST(ThumbnailGridTest, ColumnsHeightAndCells) {
  struct Case {
    int heightIndex, widthIndex, canvasWidth, files;
    int columns, canvasHeight;
    QRect last;  // cell of the last file
  };
  for (const auto &c : {Case{0, 0, 539, 20, 9, 286, {4 + 54, 4 + 2 * 54, 50, 50}},
                        {0, 0, 540, 20, 10, 274, {4 + 9 * 54, 4 + 54, 50, 50}},
                        {2, 1, 400, 7, 5, 382, {4 + 79, 4 + 154, 75, 150}},
                        {3, 3, 1000, 1, 3, 268, {4, 4, 300, 300}},
                        {3, 3, 20, 20000, 1, 6080166, {4, 4 + 19999 * 304, 300, 300}},
                        {9, -1, 540, 0, 10, 166, {}}}) {
    const auto grid = ThumbnailGrid::For(c.heightIndex, c.widthIndex, c.canvasWidth);
    EXPECT_EQ(grid.columns, c.columns);
    EXPECT_EQ(grid.CanvasHeight(c.files), c.canvasHeight);
    if (c.files == 0) continue;
    EXPECT_EQ(grid.Cell(c.files - 1), c.last);
    EXPECT_EQ(grid.IndexAt(c.last.topLeft()), c.files - 1);
    EXPECT_EQ(grid.IndexAt(c.last.bottomRight()), c.files - 1);
    EXPECT_EQ(grid.IndexAt(c.last.bottomRight() + QPoint(1, 0)), -1);
    EXPECT_EQ(grid.IndexAt(c.last.topLeft() - QPoint(0, 1)), -1);
  }
  const auto grid = ThumbnailGrid::For(0, 0, 590);  // room for no eleventh column
  EXPECT_EQ(grid.IndexAt({4 + 10 * 54 + 1, 10}), -1);
  EXPECT_EQ(grid.IndexAt({-1, 10}), -1);
}

TEST(ThumbnailGridTest, PicturesStayInTheirCell) {
  struct Case {
    QSize picture, shown;
  };
  for (const auto &[picture, shown] : {Case{{2000, 1500}, {120, 90}},
                                       {{1500, 2000}, {90, 120}},
                                       {{16, 16}, {90, 90}},
                                       {{3000, 1000}, {146, 48}},
                                       {{1, 20000}, {1, 130}},
                                       {{20000, 1}, {146, 1}},
                                       {{0, 7}, {}}}) {
    EXPECT_EQ(FitThumbnail(picture, {150, 150}, {146, 130}), shown) << picture.width();
  }
  EXPECT_EQ(FitInto({10, 20}, {100, 100}), QSize(50, 100));
}

TEST(ThumbnailTextTest, NamesSizesAndPaths) {
  const QString name = QStringLiteral("A Name of Twenty.JPG");
  EXPECT_EQ(ThumbnailName(name, 0), QStringLiteral("a name o..."));
  EXPECT_EQ(ThumbnailName(name, 1), QStringLiteral("a name of tw..."));
  EXPECT_EQ(ThumbnailName(name, 2), name);
  EXPECT_EQ(ThumbnailName(QStringLiteral("NAME.GIF"), 0), QStringLiteral("NAME.GIF"));
  EXPECT_EQ(ThumbnailName(QString(36, u'X'), 3), QString(35, u'x') + QStringLiteral("..."));
  EXPECT_EQ(InOneLine(QStringLiteral("a\nb\tc")), QStringLiteral("a b c"));
  EXPECT_EQ(FileSizeText(0), QStringLiteral("0 bytes"));
  EXPECT_EQ(FileSizeText(1023), QStringLiteral("1023 bytes"));
  EXPECT_EQ(FileSizeText(1024), QStringLiteral("1 kb"));
  EXPECT_EQ(ImageStatusText({640, 480}, 2000),
            QStringLiteral("Height/Width: 480x640   Size: 1.953125 kb"));
  EXPECT_EQ(ShownImagePath(QString(33, u'p')), QString(33, u'p'));
  EXPECT_EQ(ShownImagePath(QStringLiteral("/x/") + QString(33, u'p')),
            QStringLiteral("...") + QString(33, u'p'));
}

TEST(ImageFolderTest, ReadsWhatTheUserMaySee) {
  const QTemporaryDir folder;
  const auto path = [&folder](const char *name) {
    return folder.filePath(QString::fromUtf8(name));
  };
  for (const char *name : {"Zoo", "alps", ".hidden", "Temporary", "locked"})
    QDir().mkdir(path(name));
  for (const char *name : {"b.png", "A.gif", "two\nlines.jpg", ".dot.png"}) PutFile(path(name), "");
  PutFile(path("alps/inside.png"), "");
  QFile::link(folder.path(), path("circle"));
  QFile::link(path("b.png"), path("linked.png"));
  QFile::link(path("nowhere"), path("broken.png"));
  ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
  const auto names = [](std::initializer_list<const char *> list) {
    QStringList strings;
    for (const char *name : list) strings << QString::fromUtf8(name);
    return strings;
  };
  EXPECT_EQ(ImageFolder::Folders(folder.path()),
            names({".hidden", "Zoo", "alps", "circle", "locked"}));
  EXPECT_EQ(ImageFolder::Files(folder.path()),
            names({"A.gif", "b.png", "linked.png", "two\nlines.jpg"}));
  EXPECT_EQ(ImageFolder::Files(path("circle/circle/alps")), names({"inside.png"}));
  QFile::setPermissions(path("locked"), {});
  {
    const WithoutSuperuser user;
    EXPECT_TRUE(ImageFolder::Folders(path("locked")).isEmpty());
    EXPECT_TRUE(ImageFolder::Files(path("locked")).isEmpty());
  }
  EXPECT_TRUE(ImageFolder::Files(path("missing")).isEmpty());
  for (const char *image :
       {"logo.JPG", "x.jpeg", "a.jif", "b.Wmf", "c.cur", "ico", "two\nlines.png"}) {
    EXPECT_TRUE(ImageFolder::IsImageName(QString::fromUtf8(image))) << image;
  }
  for (const char *other : {"", "pg", "a.txt", "jpg.bak", "a.jp2"}) {
    EXPECT_FALSE(ImageFolder::IsImageName(QString::fromUtf8(other))) << other;
  }
  EXPECT_EQ(ImageFolder::Path(QStringLiteral("/"), QStringLiteral("a")), QStringLiteral("/a"));
  EXPECT_EQ(ImageFolder::Path(QStringLiteral("/b"), QStringLiteral("a")), QStringLiteral("/b/a"));
  EXPECT_EQ(DrivesAmong(names({"/run/media/me/STICK", "/", "/home", "/mnt/b", "/media/cd"})),
            names({"/", "/media/cd", "/mnt/b", "/run/media/me/STICK"}));
}

}  // namespace
