#pragma once

#include <QComboBox>
#include <QFrame>
#include <QMainWindow>
#include <QTimer>
#include <QVector>

#include "toolkit/CommonDialog.h"
#include "toolkit/ToolStrip.h"
#include "toolkit/mForms.h"
#include "ui_mdiMain.h"

/// The main window: the area of the editor windows, with bars and panels around it.
class mdiMain : public FormOf<QMainWindow>, public Ui::mdiMain {
  Q_OBJECT

 public:
  mdiMain();

  ToolStrip *picLeft;
  ToolStrip *picRight;
  ToolStrip *picJava;
  ToolStrip *picBottom;
  ToolStrip *picButtons;
  ToolStrip *picHtmlTextOptions;
  ToolStrip *picLeftArrow;
  QComboBox *cboFontStyle;
  QComboBox *cboFontsize;
  QFrame *picColor;
  QTimer *timloadStencils;
  CommonDialog cdgFileOpen;
  CommonDialog cdgFileSave;

  /// The pictures of the trees: 1 and 3 are the root of the open files with and without documents,
  /// 2 a document group, 4 the root of a stencil tree (1-based).
  static const QVector<QIcon> &TreeImages();

  void Load() override;
  bool QueryUnload(UnloadMode mode) override;
  void Unloaded() override;

  /// Marks one of the panel's titles as active: 1 open files, 2 stencils, 4 description, else none.
  void SetTitlebarColor(int title);

 protected:
  void showEvent(QShowEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

 private:
  void FillBars();
  void ConnectMenus();
  void AddTreeRoots();
  void DrawStrips();
  void timloadStencils_Timer();
  void mnuFileQuit_Click();
};

/// What the process was started with: all of its command line behind the program, one file name.
void SetCommandLine(const QString &commandLine);
