#include "images/frmImageViewer.h"

#include <QFileInfo>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <array>

#include "base/Drives.h"
#include "base/mFolders.h"
#include "frame/PanelFont.h"
#include "frame/PixelFile.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "images/ImageFolder.h"
#include "images/ThumbnailText.h"
#include "images/frmImageSinglePreview.h"
#include "toolkit/ArtColours.h"
#include "toolkit/DoEvents.h"
#include "toolkit/DrawnIcon.h"
#include "toolkit/LoadPicture.h"

namespace {

constexpr int noImageSide = 32;
const QString placeholder = QStringLiteral("*");

QColor ShapeColour() {
  const std::array<QColor, 4> colours{QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255),
                                      QColor(255, 255, 0)};
  return colours[std::min<size_t>(mPublic::recPreferences.ShapeColor, colours.size() - 1)];
}

// A picture between a measure below and one beside it.
void DrawDimensions(QPainter &painter) {
  painter.setPen(QPen(ArtColours::Outline, 1));
  painter.drawRect(QRectF(1.5, 1.5, 9, 7));
  painter.drawLine(QPointF(1.5, 12.5), QPointF(10.5, 12.5));
  painter.drawLine(QPointF(1.5, 11), QPointF(1.5, 14));
  painter.drawLine(QPointF(10.5, 11), QPointF(10.5, 14));
  painter.drawLine(QPointF(13.5, 1.5), QPointF(13.5, 8.5));
  painter.drawLine(QPointF(12, 1.5), QPointF(15, 1.5));
  painter.drawLine(QPointF(12, 8.5), QPointF(15, 8.5));
}

}  // namespace

frmImageViewer::frmImageViewer() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  auto *status = new QWidget(this);
  auto *layStatus = new QHBoxLayout(status);
  layStatus->setContentsMargins({});
  layStatus->addWidget(imgWhichImageDimensions);
  layStatus->addWidget(lblStatus);
  stbBottom->addWidget(status);
  stbBottom->addPermanentWidget(lblImagePath);
  imgWhichImageDimensions->setPixmap(DrawnIcon(16, DrawDimensions).pixmap(16));
  picStencilsTab->SetTabs(
      {{QStringLiteral("   html   \n  selection"), QStringLiteral("   html   \n selection")},
       {QStringLiteral("self builded\n    file list"),
        QStringLiteral("self builded\n    file list")}},
      2);
  picImageBrowserAussenFrame->setBackgroundRole(QPalette::Base);
  picImageBrowserAussenFrame->installEventFilter(this);
  // Nothing jumps when the bar comes and goes.
  QSizePolicy policy = pgbProgress->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  pgbProgress->setSizePolicy(policy);
  pgbProgress->hide();
  scrImageViewer->setEnabled(false);
  connect(drvImageDrive, &QComboBox::activated, this, &frmImageViewer::drvImageDrive_Change);
  connect(trwDirectories, &QTreeWidget::itemExpanded, this, &frmImageViewer::trwDirectories_Expand);
  connect(trwDirectories, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem *node) { SetFolder(node->data(0, Qt::UserRole).toString()); });
  connect(trwDirectories, &KeyedTree::KeyPressed, this, [this] {
    const QTreeWidgetItem *node = trwDirectories->SelectedNode();
    const QString folder = node ? node->data(0, Qt::UserRole).toString() : folder_;
    if (folder != folder_) SetFolder(folder);
  });
  connect(cmdSetImagePath, &QPushButton::clicked, this, &frmImageViewer::cmdSetImagePath_Click);
  connect(picStencilsTab, &DrawnTabStrip::TabPressed, this, &frmImageViewer::ShowTab);
  connect(filOpenImage, &QListWidget::itemClicked, this,
          [this](QListWidgetItem *item) { filOpenImage_Click(filOpenImage->row(item)); });
  connect(filOpenImage, &QListWidget::currentRowChanged, this, [this](int row) {
    if (QGuiApplication::mouseButtons() == Qt::NoButton) filOpenImage_Click(row);
  });
  connect(picImageBrowserInnenFrame, &ThumbnailCanvas::CellPressed, this, [this](int index) {
    picImageBrowserInnenFrame->Select(index);
    ShowImage(picImageBrowserInnenFrame->PathOf(index));
  });
  connect(picImageBrowserInnenFrame, &ThumbnailCanvas::CurrentMoved, this,
          &frmImageViewer::ScrollTo);
  const auto scroll = [this](int value) { picImageBrowserInnenFrame->move(0, -value); };
  connect(scrImageViewer, &QScrollBar::valueChanged, this, scroll);
  connect(scrImageViewer, &QScrollBar::sliderMoved, this, scroll);
  connect(cmdShowImage, &QPushButton::clicked, this, &frmImageViewer::cmdShowImage_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmImageViewer::Load() {
  SetPanelFont(*filOpenImage);
  SetPanelFont(*trwDirectories);
  picImageBrowserInnenFrame->SetShapeColour(ShapeColour());
  drvImageDrive->addItems(Drives());
  ShowTab(1);
  if (!DrawNoImage()) return;
  StartTree(drvImageDrive->itemText(0));
}

void frmImageViewer::Unloaded() {
  mForms::UnloadDefaults({"frmImageSinglePreview"});
}

// False if the form was unloaded while it waited.
bool frmImageViewer::DrawNoImage() {
  const QPointer<frmImageViewer> self(this);
  QImage drawn(noImageSide, noImageSide, QImage::Format_ARGB32_Premultiplied);
  drawn.fill(Qt::transparent);
  ForEachPixel(mFolders::InProgramFolder(QStringLiteral("File0006.dat")),
               [&drawn](const PixelRecord &pixel) {
                 const qint32 colour = pixel.colour;
                 if (drawn.valid(pixel.x, pixel.y)) {
                   drawn.setPixelColor(
                       pixel.x, pixel.y,
                       QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF));
                 }
                 DoEventsInLoop();
               });
  if (!self || IsUnloaded()) return false;
  picNoImage_ = drawn;
  return true;
}

// ---- choosing a folder

void frmImageViewer::StartTree(const QString &root) {
  trwDirectories->ClearNodes();
  QTreeWidgetItem *node = trwDirectories->Add({}, root, root);
  node->setData(0, Qt::UserRole, root);
  node->setIcon(0, style()->standardIcon(QStyle::SP_DriveHDIcon));
  new QTreeWidgetItem(node, {placeholder});
  node->setExpanded(true);
  SetFolder(root);
}

// The placeholder is no keyed node; it makes the folder expandable until it is read.
void frmImageViewer::trwDirectories_Expand(QTreeWidgetItem *node) {
  QTreeWidgetItem *first = node->child(0);
  if (!first || first->data(0, Qt::UserRole).isValid()) return;
  delete first;
  const QString folder = node->data(0, Qt::UserRole).toString();
  const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
  for (const QString &name : ImageFolder::Folders(folder)) {
    const QString path = ImageFolder::Path(folder, name);
    auto child = std::make_unique<QTreeWidgetItem>();
    child->setText(0, InOneLine(name));
    child->setIcon(0, closed);
    child->setData(0, Qt::UserRole, path);
    new QTreeWidgetItem(child.get(), {placeholder});
    trwDirectories->Add(folder, std::move(child), path);
  }
}

void frmImageViewer::SetFolder(const QString &folder) {
  folder_ = folder;
  lblImageBrowserPath->setText(InOneLine(folder));
  files_ = ImageFolder::Files(folder);
  QStringList shown;
  for (const QString &name : files_) shown << InOneLine(name);
  const QSignalBlocker quiet(filOpenImage);
  filOpenImage->clear();
  filOpenImage->addItems(shown);
}

// A drive that can't be read is passed over.
void frmImageViewer::drvImageDrive_Change() {
  const QString root = drvImageDrive->currentText();
  if (QFileInfo(root).isDir() && QFileInfo(root).isReadable()) StartTree(root);
}

void frmImageViewer::ShowTab(int tab) {
  picStencilsTab->SetActiveTab(tab);
  picImagePreviewFrame->setVisible(tab == 1);
  filOpenImage->setVisible(tab == 2);
}

// ---- the scan

void frmImageViewer::cmdSetImagePath_Click() {
  const QPointer<frmImageViewer> self(this);
  SetScanning(true);
  PrepareCanvas(int(files_.size()));
  pgbProgress->setMaximum(int(files_.size()));
  pgbProgress->setVisible(true);
  for (int index = 0; index < files_.size(); ++index) {
    pgbProgress->setValue(index);
    picImageBrowserInnenFrame->Add(ImageFolder::Path(scannedFolder_, files_[index]));
    lstFileNames << files_[index];
    DoEventsInLoop();
    if (!self || IsUnloaded() || mPublic::bAppClosing) return;
  }
  pgbProgress->hide();
  SetScanning(false);
}

void frmImageViewer::SetScanning(bool scanning) {
  const std::array<QWidget *, 4> controls{cmdSetImagePath, trwDirectories, drvImageDrive,
                                          filOpenImage};
  for (QWidget *control : controls) control->setEnabled(!scanning);
}

void frmImageViewer::PrepareCanvas(int files) {
  mPublic::ReadPreferences();
  const Preferences &preferences = mPublic::recPreferences;
  const ThumbnailGrid grid = ThumbnailGrid::For(preferences.ImageHeight, preferences.ImageWidth,
                                                picImageBrowserAussenFrame->contentsRect().width());
  ThumbnailCanvas::Look look{
      .grid = grid,
      .widthIndex = preferences.ImageWidth,
      .frames = preferences.ShowImageBorder == 1 || preferences.StandardImageSettings,
      .names = preferences.ShowFilenames == 1 || preferences.StandardImageSettings,
      .unreadable = picNoImage_,
      .other = {}};
  if (auto other = LoadPicture(mFolders::InProgramFolder(QStringLiteral("NoImage.bmp")))) {
    look.other = *std::move(other);
  }
  picImageBrowserInnenFrame->Clear(std::move(look));
  lstFileNames.clear();
  scannedFolder_ = folder_;
  canvasHeight_ = grid.CanvasHeight(files);
  scrImageViewer->setValue(0);
  SizeCanvas();
}

void frmImageViewer::SizeCanvas() {
  const QSize frame = picImageBrowserAussenFrame->contentsRect().size();
  picImageBrowserInnenFrame->resize(frame.width(), canvasHeight_);
  const int hidden = std::max(0, canvasHeight_ - frame.height());
  scrImageViewer->setMaximum(hidden);
  scrImageViewer->setPageStep(frame.height());
  scrImageViewer->setSingleStep(picImageBrowserInnenFrame->Grid().RowHeight());
  scrImageViewer->setEnabled(hidden > 0);
}

void frmImageViewer::ScrollTo(int index) {
  const ThumbnailGrid &grid = picImageBrowserInnenFrame->Grid();
  const QRect cell = grid.Cell(index).adjusted(0, -ThumbnailGrid::Gap, 0, ThumbnailGrid::Gap);
  QScrollBar &bar = *scrImageViewer;
  bar.setValue(std::min(std::max(bar.value(), cell.bottom() + 1 - bar.pageStep()), cell.top()));
}

bool frmImageViewer::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Resize) SizeCanvas();
  if (event->type() == QEvent::Wheel) return QCoreApplication::sendEvent(scrImageViewer, event);
  return DialogForm::eventFilter(watched, event);
}

// ---- the selected image

void frmImageViewer::filOpenImage_Click(int row) {
  if (row < 0) return;
  if (scannedFolder_ == folder_ && lstFileNames.value(row) == files_[row]) {
    picImageBrowserInnenFrame->Select(row);
  }
  ShowImage(ImageFolder::Path(folder_, files_[row]));
}

void frmImageViewer::ShowImage(const QString &path) {
  selected_ = path;
  const QSize room = picImagePreviewing->size();
  const qreal ratio = devicePixelRatioF();
  const auto loaded =
      LoadScaledPicture(path, [&](QSize size) { return FitInto(size, room) * ratio; });
  QPixmap picture;
  if (loaded) {
    picture = QPixmap::fromImage(loaded->picture);
    picture.setDevicePixelRatio(ratio);
  }
  picImagePreviewing->setPixmap(picture);
  const QSize size = loaded ? loaded->size : QSize(0, 0);
  lblStatus->setText(ImageStatusText(size, QFileInfo(path).size()));
  lblImagePath->setText(ShownImagePath(InOneLine(path)));
  lblImagePath->setToolTip(path.toHtmlEscaped());
}

void frmImageViewer::cmdShowImage_Click() {
  Default<frmImageSinglePreview>()->show();
}
