#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "images/ImageFolder.h"
#include "images/ThumbnailGrid.h"
#include "images/ThumbnailText.h"
#include "shared/Files.h"

using Qt::StringLiterals::operator""_s;

namespace {

TEST(ThumbnailGridTest, ColumnsHeightAndCells) {
  struct Case {
    int heightIndex, widthIndex, canvasWidth, files, columns, canvasHeight;
    QRect last;  // cell of the last file
  };
  for (const auto &c : {Case{0, 0, 539, 20, 9, 286, {4 + 54, 4 + 2 * 54, 50, 50}},
                        {0, 0, 540, 20, 10, 274, {4 + 9 * 54, 4 + 54, 50, 50}},
                        {2, 1, 400, 7, 5, 382, {4 + 79, 4 + 154, 75, 150}},
                        {3, 3, 20, 20000, 1, 6080166, {4, 4 + 19999 * 304, 300, 300}},
                        {9, -1, 540, 1, 10, 172, {4, 4, 50, 50}}}) {
    const auto grid = ThumbnailGrid::For(c.heightIndex, c.widthIndex, c.canvasWidth);
    EXPECT_EQ(grid.columns, c.columns);
    EXPECT_EQ(grid.CanvasHeight(c.files), c.canvasHeight);
    EXPECT_EQ(grid.Cell(c.files - 1), c.last);
    EXPECT_EQ(grid.IndexAt(c.last.bottomRight()), c.files - 1);
    EXPECT_EQ(grid.IndexAt(c.last.bottomRight() + QPoint(1, 0)), -1);
    EXPECT_EQ(grid.IndexAt(c.last.topLeft() - QPoint(0, 1)), -1);
  }
}

TEST(ThumbnailGridTest, PicturesStayInTheirCell) {
  for (const auto &[picture, shown] : {std::pair(QSize(2000, 1500), QSize(120, 90)),
                                       {{16, 16}, {90, 90}},
                                       {{3000, 1000}, {146, 48}},
                                       {{1, 20000}, {1, 130}},
                                       {{20000, 1}, {146, 1}},
                                       {{0, 7}, {}}}) {
    EXPECT_EQ(FitThumbnail(picture, {150, 150}, {146, 130}), shown) << picture.width();
  }
}

TEST(ThumbnailTextTest, NamesSizesAndPaths) {
  const QString name = u"A Name of Twenty.JPG"_s, path(33, u'p');
  const QStringList texts{ThumbnailName(name, 0),  ThumbnailName(name, 1),
                          ThumbnailName(name, 2),  ThumbnailName(u"NAME.GIF"_s, 0),
                          InOneLine(u"a\nb\tc"_s), FileSizeText(1023),
                          FileSizeText(1024),      ImageStatusText({640, 480}, 2000)};
  EXPECT_EQ(texts.join(u'|'),
            u"a name o...|a name of tw...|A Name of Twenty.JPG|NAME.GIF|a b c|1023 bytes|1 kb|"
            "Height/Width: 480x640   Size: 1.953125 kb"_s);
  EXPECT_EQ(ShownImagePath(path), path);
  EXPECT_EQ(ShownImagePath(u"/x/"_s + path), u"..."_s + path);
}

TEST(ImageFolderTest, ReadsWhatTheUserMaySee) {
  const QTemporaryDir folder;
  const auto path = [&folder](const QString &name) { return folder.filePath(name); };
  for (const QString &name : {u"Zoo"_s, u"alps"_s, u".hidden"_s, u"Temporary"_s})
    QDir().mkdir(path(name));
  for (const QString &name : {u"b.png"_s, u"A.gif"_s, u"two\nlines.jpg"_s, u".dot.png"_s})
    PutFile(path(name), "");
  QFile::link(folder.path(), path(u"circle"_s));
  QFile::link(path(u"b.png"_s), path(u"linked.png"_s));
  QFile::link(path(u"nowhere"_s), path(u"broken.png"_s));
  ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe.png"_s)).constData(), 0600), 0);
  for (const QString &way : {folder.path(), path(u"circle/circle"_s)}) {
    EXPECT_EQ(ImageFolder::Folders(way).join(u'|'), u".hidden|Zoo|alps|circle"_s);
    EXPECT_EQ(ImageFolder::Files(way).join(u'|'), u"A.gif|b.png|linked.png|two\nlines.jpg"_s);
  }
  EXPECT_TRUE(ImageFolder::Files(path(u"missing"_s)).isEmpty());
  for (const QString &name : {u"logo.JPG"_s, u"ico"_s}) EXPECT_TRUE(ImageFolder::IsImageName(name));
  for (const QString &name : {u"pg"_s, u"jpg.bak"_s}) EXPECT_FALSE(ImageFolder::IsImageName(name));
  EXPECT_EQ(ImageFolder::Path(u"/"_s, u"a"_s) + ImageFolder::Path(u"/b"_s, u"a"_s), u"/a/b/a"_s);
}

}  // namespace
