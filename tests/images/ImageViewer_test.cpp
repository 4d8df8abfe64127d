#include <QDir>
#include <QTimer>

#include "images/frmImageSinglePreview.h"
#include "images/frmImageViewer.h"
#include "shared/FormsTest.h"
#include "shared/Pictures.h"

using Qt::StringLiterals::operator""_s;

namespace {

class ImageViewerTest : public FormsTest {
 protected:
  ImageViewerTest() { OpenViewer(); }

  // The test's own folder stands there as a drive.
  void OpenViewer() {
    main->mnuViewImageBrowsingWindow->trigger();
    form = static_cast<frmImageViewer *>(mForms::Find(u"frmImageViewer"_s));
    form->drvImageDrive->addItem(folder.path());
    DoEvents();
  }
  void PutImages(int count) {
    const QByteArray bytes = Encoded({40, 30}, "PNG");
    for (int i = 0; i < count; ++i) Write(u"%1.png"_s.arg(i, 5, 10, QLatin1Char('0')), bytes);
  }
  void ChooseDrive(const QString &drive) {
    form->drvImageDrive->setCurrentText(drive);
    Q_EMIT form->drvImageDrive->activated(form->drvImageDrive->currentIndex());
  }
  void Scan() {
    ChooseDrive(folder.path());
    form->cmdSetImagePath->click();
  }
  static void SetSizes(int index) {
    mPublic::recPreferences.ImageHeight = mPublic::recPreferences.ImageWidth = index;
    EXPECT_TRUE(mPublic::WritePreferences());
  }
  ThumbnailCanvas &Canvas() const { return *form->picImageBrowserInnenFrame; }
  void Press(int index) {
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, Canvas().Grid().Cell(index).center());
  }
  // The colour in the middle of a cell, once what is missing has been decoded.
  QString Middle(int index) {
    const QPoint middle = Canvas().Grid().Cell(index).center();
    for (int turn = 0; turn < 100; ++turn) DoEvents();
    form->scrImageViewer->setValue(middle.y() - 50);
    Canvas().grab(QRect(middle, QSize(1, 1)));
    for (int turn = 0; turn < 100; ++turn) DoEvents();
    return Canvas().grab(QRect(middle, QSize(1, 1))).toImage().pixelColor(0, 0).name();
  }

  QPointer<frmImageViewer> form;
};

TEST_F(ImageViewerTest, AScanShowsEveryFileInACell) {
  const std::tuple<QString, QByteArray, QString> cases[] = {
      {u"0.jpeg"_s, Encoded({40, 30}, "JPG"), u"#0000fe"_s},
      {u"1 two\nlines.PNG"_s, Encoded({40, 30}, "PNG"), u"#0000ff"_s},
      {u"2.txt"_s, "text", form->palette().color(QPalette::Base).name()},
      {u"3.bmp"_s, "no picture", {}},
      {u"4.bmp"_s, BmpHeader(60000), {}},
      {u"5.png"_s, "", {}}};
  for (const auto &[name, bytes, middle] : cases) Write(name, bytes);
  Scan();
  ASSERT_EQ(Canvas().Count(), 6);
  for (int index = 0; index < 6; ++index) {
    const auto &[name, bytes, middle] = cases[index];
    EXPECT_EQ(form->lstFileNames[index], name);
    EXPECT_EQ(Canvas().IsReadable(index) ? Middle(index) : QString(), middle) << index;
  }
  EXPECT_TRUE(form->pgbProgress->isHidden() && form->cmdSetImagePath->isEnabled());
}

TEST_F(ImageViewerTest, AClickShowsTheImageAndItsMeasures) {
  const QByteArray turned = TurnedJpeg({60, 40});
  const QString path = Write(u"a.jpg"_s, turned);
  Write(u"b.png"_s, "no picture");
  Scan();
  Press(2);
  EXPECT_TRUE(form->SelectedImage().isEmpty()) << "no file there";
  Press(0);
  EXPECT_EQ(form->SelectedImage(), path);
  EXPECT_EQ(Canvas().grab().toImage().pixelColor(4, 20), QColor(Qt::red));
  EXPECT_EQ(form->lblStatus->text(), u"Height/Width: 60x40   Size: %1 bytes"_s.arg(turned.size()));
  const QSize shown = form->picImagePreviewing->pixmap(Qt::ReturnByValue).size();
  EXPECT_EQ(shown.height(), form->picImagePreviewing->height());
  EXPECT_NEAR(shown.width(), shown.height() * 2 / 3, 1);
  QTest::keyClick(form->picStencilsTab, Qt::Key_Right);
  for (int press = 0; press < 2; ++press) QTest::keyClick(form->filOpenImage, Qt::Key_Down);
  EXPECT_EQ(form->lblStatus->text(), u"Height/Width: 0x0   Size: 10 bytes"_s);
}

TEST_F(ImageViewerTest, TheKeyboardReachesEveryCell) {
  SetSizes(2);
  PutImages(40);
  Scan();
  Canvas().setFocus(Qt::TabFocusReason);
  for (const auto key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_Right, Qt::Key_Space, Qt::Key_End}) {
    QTest::keyClick(&Canvas(), key);
  }
  EXPECT_EQ(form->SelectedImage(), Path(Canvas().CellName(Canvas().Grid().columns + 2)));
  EXPECT_EQ(Canvas().CurrentCell(), 40);
  EXPECT_TRUE(Canvas().visibleRegion().contains(Canvas().CellRect(40).center()));
}

TEST_F(ImageViewerTest, CellsWithoutFrameAndName) {
  Write(u"note.txt"_s, "");
  mPublic::recPreferences.StandardImageSettings = false;
  SetSizes(1);
  Scan();
  Canvas().clearFocus();
  const QImage drawn = Canvas().grab(Canvas().CellRect(1)).toImage();
  QImage empty = drawn;
  empty.fill(drawn.pixel(37, 20));
  EXPECT_EQ(drawn, empty);
}

TEST_F(ImageViewerTest, ThumbnailsBeyondTheMemoryAreDecodedWhenSeen) {
  SetSizes(3);
  PutImages(12);
  Canvas().SetMemory(5 * 240 * 180 * 4);
  Scan();
  QFile::remove(Path(u"00006.png"_s));
  EXPECT_EQ(Middle(0) + Middle(11), u"#0000ff#0000ff"_s);
  Middle(6);
  EXPECT_FALSE(Canvas().IsReadable(6)) << "gone since it was scanned";
}

TEST_F(ImageViewerTest, AScanEndsCleanlyInTheMiddle) {
  PutImages(30);
  QTimer::singleShot(0, form, [this] { QFile::remove(Path(u"00020.png"_s)); });
  Scan();
  EXPECT_EQ(Canvas().Count(), 30);
  EXPECT_FALSE(Canvas().IsReadable(20)) << "vanished";
  QTimer::singleShot(0, form, [this] {
    EXPECT_FALSE(form->trwDirectories->isEnabled() || form->drvImageDrive->isEnabled());
    form->cmdSetImagePath->click();
    Press(0);
    EXPECT_EQ(form->SelectedImage(), Path(u"00000.png"_s));
    form->close();
  });
  form->cmdSetImagePath->click();
  EXPECT_TRUE(form->IsUnloaded());
  EXPECT_LT(Canvas().Count(), 30);
  DoEvents();
  OpenViewer();
  dialogs.answers = {Dialogs::Answer::Yes};
  QTimer::singleShot(0, main, [this] { main->mnuFileQuit->trigger(); });
  Scan();
  EXPECT_EQ(ended, 1);
  EXPECT_LT(Canvas().Count(), 30);
}

TEST_F(ImageViewerTest, TheFolderIsChosenInATree) {
  QDir(folder.path()).mkpath(u"b/inner"_s);
  ChooseDrive(folder.path());
  QTreeWidgetItem *root = form->trwDirectories->Node(1), *node = root->child(0);
  EXPECT_EQ(node->child(0)->text(0), u"*"_s) << "not read yet";
  QTest::mouseClick(form->trwDirectories->viewport(), Qt::LeftButton, {},
                    form->trwDirectories->visualItemRect(node).center());
  EXPECT_EQ(form->lblImageBrowserPath->text(), Path(u"b"_s));
  ASSERT_TRUE(QFile::link(u"."_s, Path(u"b/inner/round"_s)));
  form->trwDirectories->setCurrentItem(node);
  for (int levels : {1, 2, 3}) {
    QTest::keyClick(form->trwDirectories, Qt::Key_Asterisk);
    for (const auto *closed = node; closed->isExpanded(); closed = closed->child(0)) --levels;
    EXPECT_EQ(levels, 0) << "no more than was there, however long the way is";
  }
  form->drvImageDrive->addItem(u"/no such drive"_s);
  ChooseDrive(u"/no such drive"_s);
  EXPECT_EQ(form->lblImageBrowserPath->text(), Path(u"b"_s));
}

TEST_F(ImageViewerTest, ThePreviewIsAsLargeAsItsImageAsks) {
  const QString path = Write(u"a.png"_s, Encoded({3000, 2000}, "PNG"));
  Scan();
  Press(0);
  form->cmdShowImage->click();
  const auto *preview = Default<frmImageSinglePreview>();
  const int button = preview->cmdClose->height();
  EXPECT_EQ(preview->picImage->geometry(), QRect(0, button + 6, 3000, 2000));
  EXPECT_EQ(preview->size(), QSize(3020, button + 4000 + 13));
  EXPECT_EQ(preview->lblImagePathName->text(), path);
  Unload(*form);
  EXPECT_TRUE(preview->IsUnloaded());
}

}  // namespace
