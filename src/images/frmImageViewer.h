#pragma once

#include <QPointer>

#include "images/ThumbnailCanvas.h"
#include "toolkit/mForms.h"
#include "ui_frmImageViewer.h"

/// Shows the images of a folder as thumbnails, and the selected one larger.
class frmImageViewer : public DialogForm, public Ui::frmImageViewer {
  Q_OBJECT

 public:
  frmImageViewer();
  void Load() override;
  void Unloaded() override;

  /// The path of the image that was selected last; empty before the first one.
  QString SelectedImage() const { return selected_; }

  /// Whether thumbnails are being made.
  bool Scanning() const { return !cmdSetImagePath->isEnabled(); }

  QStringList lstFileNames;  ///< the files that have a cell, in that order

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool DrawNoImage();
  void StartTree(const QString &root);
  void SetFolder(const QString &folder);
  void ShowTab(int tab);
  void trwDirectories_Expand(QTreeWidgetItem *node);
  void drvImageDrive_Change();
  void filOpenImage_Click(int row);
  void cmdSetImagePath_Click();
  void SetScanning(bool scanning);
  void PrepareCanvas(int files);
  void SizeCanvas();
  void ScrollTo(int index);
  void ShowImage(const QString &path);
  void cmdShowImage_Click();

  QImage picNoImage_;
  QString folder_;         // of the file list
  QString scannedFolder_;  // of the canvas
  QString selected_;
  QStringList files_;  // of the file list
  int canvasHeight_ = 0;
};
