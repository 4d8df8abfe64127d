#pragma once

#include <QComboBox>
#include <QFrame>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVector>
#include <array>

#include "toolkit/ColourDialog.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/ToolStrip.h"
#include "toolkit/mForms.h"
#include "ui_mdiMain.h"

class StencilPanel;

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
  QToolButton *picFontColor;
  QPushButton *cmdTagDescriptionLarge;
  QTimer *timloadStencils;
  CommonDialog cdgFileOpen;
  CommonDialog cdgFileSave;
  ColourDialog cdgColorWindow;

  /// The pictures of the trees: 1 and 3 are the root of the open files with and without documents,
  /// 2 a document group, 4 the root of a stencil tree (1-based).
  static const QVector<QIcon> &TreeImages();

  void Load() override;
  bool QueryUnload(UnloadMode mode) override;
  void Unloaded() override;

  /// Marks one of the panel's titles as active: 1 open files, 2 stencils, 4 description, else none.
  void SetTitlebarColor(int value);

 protected:
  void showEvent(QShowEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

 private:
  struct PanelTitle {
    int value;
    QLabel *label;
    QObjectList contents;
  };

  void FillBars();
  void ConnectMenus();
  void ConnectStrips();
  void SetUpPanel();
  void SetUpFocusRound();
  void AddTreeRoots();
  void DrawStrips();
  void SetPanelWidth(int width);
  void ShowPanel(bool show);
  void PlaceLargeButton();
  void PlaceStencilWindow();
  void PlaceDescription();
  void cmdSizing_Click(int index);
  void timloadStencils_Timer();
  void mnuFileQuit_Click();

  StencilPanel *stencilPanel_;
  std::array<QToolButton *, 3> cmdSizing_;
  std::array<PanelTitle, 3> titles_;
  int shownPanelWidth_ = 0;  ///< pixels, while the panel is hidden
};

/// What the process was started with: all of its command line behind the program, one file name.
void SetCommandLine(const QString &commandLine);
