#include <QDir>
#include <QMouseEvent>
#include <QTimer>

#include "images/frmImageSinglePreview.h"
#include "images/frmImageViewer.h"
#include "shared/FormsTest.h"
#include "shared/Pictures.h"

namespace {

class ImageViewerTest : public FormsTest {
 protected:
  ImageViewerTest() {
    OpenViewer();
    QDir(folder.path()).mkdir(QStringLiteral("images"));
    images = folder.filePath(QStringLiteral("images/"));
  }
  ~ImageViewerTest() override {
    mPublic::recPreferences = StandardPreferences();
    mPublic::WritePreferences();
  }
  void OpenViewer() {
    main->mnuViewImageBrowsingWindow->trigger();
    form = static_cast<frmImageViewer *>(mForms::Find(QStringLiteral("frmImageViewer")));
    ASSERT_NE(form, nullptr);
    DoEvents();
  }
  void PutImage(const QString &name, const QByteArray &bytes) { PutFile(images + name, bytes); }
  void PutImages(int count) {
    const QByteArray bytes = Encoded({40, 30}, "PNG");
    for (int i = 0; i < count; ++i)
      PutImage(QStringLiteral("%1.png").arg(i, 5, 10, QLatin1Char('0')), bytes);
  }
  // As the user does it, from the drive down.
  void ChooseFolder() {
    QTreeWidgetItem *node = form->trwDirectories->Node(1);
    QString path;
    for (const QString &name : QDir(images).absolutePath().split(u'/', Qt::SkipEmptyParts)) {
      path += u'/' + name;
      form->trwDirectories->expandItem(node);
      node = form->trwDirectories->NodeByKey(path);
      ASSERT_NE(node, nullptr) << qPrintable(path);
    }
    form->trwDirectories->scrollToItem(node);
    QTest::mouseClick(form->trwDirectories->viewport(), Qt::LeftButton, {},
                      form->trwDirectories->visualItemRect(node).center());
  }
  void Scan() {
    ChooseFolder();
    form->cmdSetImagePath->click();
  }
  void SetSizes(int index) {
    mPublic::ReadPreferences();
    mPublic::recPreferences.ImageHeight = index;
    mPublic::recPreferences.ImageWidth = index;
    mPublic::WritePreferences();
  }
  ThumbnailCanvas &Canvas() const { return *form->picImageBrowserInnenFrame; }
  void Press(int index) {
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, Canvas().Grid().Cell(index).center());
  }
  // The colour in the middle of a cell, once what is missing has been decoded.
  QColor Middle(int index) {
    const QPoint middle = Canvas().Grid().Cell(index).center();
    for (int turn = 0; turn < 100; ++turn) DoEvents();
    form->scrImageViewer->setValue(middle.y() - 50);
    Canvas().grab(QRect(middle, QSize(1, 1)));
    for (int turn = 0; turn < 100; ++turn) DoEvents();
    return Canvas().grab(QRect(middle, QSize(1, 1))).toImage().pixelColor(0, 0);
  }

  QPointer<frmImageViewer> form;
  QString images;
};

TEST_F(ImageViewerTest, AScanShowsEveryFileInACell) {
  const QColor empty = form->palette().color(QPalette::Base);
  struct Case {
    const char *name;
    QByteArray bytes;
    bool readable;
    QColor middle;
  };
  const Case cases[] = {
      {"0.jpeg", Encoded({40, 30}, "JPG"), true, QColor(0, 0, 254)},
      {"1 two\nlines.PNG", Encoded({40, 30}, "PNG"), true, Qt::blue},
      {"2.txt", "text", true, empty},
      {"3.bmp", "no picture", false, {}},
      {"4.gif", Encoded({40, 30}, "BMP"), true, Qt::blue},
      {"5.bmp", BmpHeader(60000), false, {}},
      {"6.png", "", false, {}},
      {"7.png", Encoded({1, 20000}, "PNG"), true, {}},
      {"8.ico", Icon(1, {16, 32}), true, Qt::blue},
  };
  for (const Case &c : cases) PutImage(QString::fromUtf8(c.name), c.bytes);
  Scan();
  ASSERT_EQ(form->lstFileNames.size(), 9);
  for (int index = 0; index < 9; ++index) {
    const Case &c = cases[index];
    EXPECT_EQ(form->lstFileNames[index], QString::fromUtf8(c.name));
    EXPECT_EQ(Canvas().IsReadable(index), c.readable) << c.name;
    if (c.middle.isValid()) {
      EXPECT_EQ(Middle(index).name(), c.middle.name()) << c.name;
    }
  }
  EXPECT_TRUE(form->pgbProgress->isHidden());
  EXPECT_TRUE(form->cmdSetImagePath->isEnabled() && form->filOpenImage->isEnabled());
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ImageViewerTest, AClickShowsTheImageAndItsMeasures) {
  const QByteArray turned = TurnedJpeg({60, 40});
  PutImage(QStringLiteral("a.jpg"), turned);
  PutImage(QStringLiteral("b.png"), "no picture");
  Scan();
  const auto *shape = form->findChild<QFrame *>(QStringLiteral("shpThumbnailSelection"));
  QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, Canvas().Grid().Cell(2).center());
  QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_TRUE(shape->isHidden() && form->SelectedImage().isEmpty()) << "no file there";
  Press(0);
  EXPECT_EQ(form->SelectedImage(), images + QStringLiteral("a.jpg"));
  EXPECT_EQ(shape->geometry(), QRect(4, 4, 50, 50));
  EXPECT_EQ(Canvas().grab().toImage().pixelColor(4, 20), QColor(Qt::red));
  EXPECT_EQ(form->lblStatus->text(),
            QStringLiteral("Height/Width: 60x40   Size: %1 bytes").arg(turned.size()));
  EXPECT_TRUE(form->lblImagePath->text().startsWith(QStringLiteral("...")));
  EXPECT_EQ(form->lblImagePath->text().size(), 36);
  const QSize shown = form->picImagePreviewing->pixmap(Qt::ReturnByValue).size();
  EXPECT_EQ(shown.height(), form->picImagePreviewing->height());
  EXPECT_NEAR(shown.width(), shown.height() * 2 / 3, 1);
  QTest::mouseClick(form->picStencilsTab, Qt::LeftButton, {},
                    form->picStencilsTab->CellRect(2).center());
  EXPECT_TRUE(form->filOpenImage->isVisible() && !form->picImagePreviewFrame->isVisible());
  QTest::keyClick(form->filOpenImage, Qt::Key_Down);
  QTest::keyClick(form->filOpenImage, Qt::Key_Down);
  EXPECT_EQ(form->lblStatus->text(), QStringLiteral("Height/Width: 0x0   Size: 10 bytes"));
  EXPECT_EQ(shape->geometry(), QRect(58, 4, 50, 50));
  const auto move = [this](QPointF place) {
    QMouseEvent event(QEvent::MouseMove, place, place, Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&Canvas(), &event);
  };
  move({20, 20});
  EXPECT_EQ(Canvas().toolTip(), images + QStringLiteral("a.jpg"));
  move({20, 120});
  EXPECT_TRUE(Canvas().toolTip().isEmpty());
}

TEST_F(ImageViewerTest, TheKeyboardReachesEveryCell) {
  SetSizes(2);
  PutImages(40);
  Scan();
  const int columns = Canvas().Grid().columns;
  Canvas().setFocus(Qt::TabFocusReason);
  const auto key = [this](Qt::Key key) { QTest::keyClick(&Canvas(), key); };
  key(Qt::Key_Left);
  EXPECT_EQ(Canvas().CurrentCell(), 1) << "nothing lies before the first";
  key(Qt::Key_Down);
  key(Qt::Key_Right);
  EXPECT_TRUE(form->SelectedImage().isEmpty());
  key(Qt::Key_Space);
  EXPECT_EQ(form->SelectedImage(), images + Canvas().CellName(columns + 2));
  key(Qt::Key_End);
  EXPECT_EQ(Canvas().CurrentCell(), 40);
  EXPECT_TRUE(Canvas().visibleRegion().contains(Canvas().CellRect(40).center()));
  key(Qt::Key_Home);
  EXPECT_EQ(form->scrImageViewer->value(), 0);
}

TEST_F(ImageViewerTest, ThumbnailsBeyondTheMemoryAreDecodedWhenSeen) {
  SetSizes(3);
  PutImages(12);
  Canvas().SetMemory(5 * 240 * 180 * 4);
  Scan();
  EXPECT_GT(form->scrImageViewer->maximum(), 0);
  QFile::remove(images + QStringLiteral("00006.png"));
  EXPECT_EQ(Middle(0).name(), QColor(Qt::blue).name());
  EXPECT_EQ(Middle(11).name(), QColor(Qt::blue).name());
  EXPECT_EQ(Canvas().y(), -form->scrImageViewer->value());
  EXPECT_TRUE(Canvas().IsReadable(6));
  Middle(6);
  EXPECT_FALSE(Canvas().IsReadable(6)) << "gone since it was scanned";
}

TEST_F(ImageViewerTest, AScanEndsCleanlyInTheMiddle) {
  PutImages(30);
  ChooseFolder();
  QTimer::singleShot(0, form, [this] { QFile::remove(images + QStringLiteral("00020.png")); });
  form->cmdSetImagePath->click();
  EXPECT_EQ(Canvas().Count(), 30);
  EXPECT_FALSE(Canvas().IsReadable(20)) << "vanished";
  QTimer::singleShot(0, form, [this] {
    EXPECT_TRUE(form->Scanning() && form->pgbProgress->isVisible());
    EXPECT_FALSE(form->trwDirectories->isEnabled() || form->drvImageDrive->isEnabled());
    form->cmdSetImagePath->click();
    Press(0);
    EXPECT_EQ(form->SelectedImage(), images + QStringLiteral("00000.png"));
    form->close();
  });
  form->cmdSetImagePath->click();
  EXPECT_TRUE(form->IsUnloaded());
  EXPECT_LT(Canvas().Count(), 30);
  DoEvents();
  OpenViewer();
  ChooseFolder();
  dialogs.answers = {Dialogs::Answer::Yes};
  QTimer::singleShot(0, main, [this] { main->mnuFileQuit->trigger(); });
  form->cmdSetImagePath->click();
  EXPECT_EQ(ended, 1);
  EXPECT_LT(Canvas().Count(), 30);
}

TEST_F(ImageViewerTest, TheFolderIsChosenInATree) {
  QDir(images).mkpath(QStringLiteral("Temporary"));
  QDir(images).mkpath(QStringLiteral("b/inner"));
  ChooseFolder();
  EXPECT_EQ(form->lblImageBrowserPath->text(), QDir(images).absolutePath());
  QTreeWidgetItem *node = form->trwDirectories->SelectedNode();
  EXPECT_EQ(node->child(0)->text(0), QStringLiteral("*")) << "not read yet";
  node->setExpanded(true);
  ASSERT_EQ(node->childCount(), 1);
  EXPECT_EQ(node->child(0)->text(0), QStringLiteral("b"));
  ASSERT_TRUE(QFile::link(QStringLiteral("."), images + QStringLiteral("b/inner/round")));
  form->trwDirectories->setCurrentItem(node);
  for (int levels : {2, 3, 4}) {
    QTest::keyClick(form->trwDirectories, Qt::Key_Asterisk);
    const QTreeWidgetItem *closed = node;
    for (; closed->isExpanded(); closed = closed->child(0)) --levels;
    EXPECT_EQ(levels, 0) << "no more than was there, however long the way is";
  }
  form->cmdSetImagePath->click();
  EXPECT_EQ(Canvas().Count(), 0);
  EXPECT_TRUE(form->pgbProgress->isHidden() && !form->scrImageViewer->isEnabled());
  form->drvImageDrive->addItem(QStringLiteral("/no such drive"));
  form->drvImageDrive->setCurrentIndex(form->drvImageDrive->count() - 1);
  Q_EMIT form->drvImageDrive->activated(form->drvImageDrive->count() - 1);
  EXPECT_EQ(form->lblImageBrowserPath->text(), QDir(images).absolutePath());
  form->drvImageDrive->setCurrentIndex(0);
  Q_EMIT form->drvImageDrive->activated(0);
  EXPECT_EQ(form->lblImageBrowserPath->text(), QStringLiteral("/"));
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(ImageViewerTest, ThePreviewIsAsLargeAsItsImageAsks) {
  PutImage(QStringLiteral("a.png"), Encoded({3000, 2000}, "PNG"));
  const auto open = [this] {
    form->cmdShowImage->click();
    return static_cast<frmImageSinglePreview *>(
        mForms::Find(QStringLiteral("frmImageSinglePreview")));
  };
  auto *preview = open();
  EXPECT_TRUE(preview->isModal() && preview->isVisible());
  EXPECT_LT(preview->width(), 300) << "nothing is selected";
  preview->cmdClose->click();
  Scan();
  Press(0);
  preview = open();
  const int button = preview->cmdClose->height();
  EXPECT_EQ(preview->picImage->geometry(), QRect(0, button + 6, 3000, 2000));
  EXPECT_EQ(preview->size(), QSize(3020, button + 4000 + 13));
  EXPECT_EQ(preview->lblImagePathName->x(), preview->cmdClose->width() + 4);
  EXPECT_EQ(preview->lblImagePathName->text(), images + QStringLiteral("a.png"));
  Unload(*form);
  EXPECT_TRUE(preview->IsUnloaded());
}

}  // namespace
