// The bars and the drawn strips of the main window, and what a press on a strip does.

#include "base/mFolders.h"
#include "documents/TextOptions.h"
#include "frame/PixelFile.h"
#include "frame/RedrawToolStripCells.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"

namespace {

const QStringList fileToolTips{
    QStringLiteral("New File"),    QStringLiteral("Open File"),
    QStringLiteral("Save File"),   QStringLiteral("Save all open files with known file path"),
    QStringLiteral("Print"),       QStringLiteral("Cut"),
    QStringLiteral("Copy"),        QStringLiteral("Paste"),
    QStringLiteral("Find Phrase"), QStringLiteral("Preview in selected Browser or Application")};
const QStringList windowToolTips{
    QStringLiteral("Self Stencils Building Window"), QStringLiteral("Properties Window"),
    QStringLiteral("Image Browser Window"), QStringLiteral("Memo Pad Window"),
    QStringLiteral("Stencels Browser Window")};
const QStringList javaToolTips{QStringLiteral("Compile"), QStringLiteral("Applet Viewer")};
const QStringList helpToolTips{QStringLiteral("Info ..."), QStringLiteral("Open Help Manual")};
const QStringList formatToolTips{QStringLiteral("Insert Font Settings"),
                                 QStringLiteral("Bold"),
                                 QStringLiteral("Italic"),
                                 QStringLiteral("Underlined"),
                                 QStringLiteral("Striketrough"),
                                 QStringLiteral("Next Line"),
                                 QStringLiteral("Left aligned"),
                                 QStringLiteral("Right aligned"),
                                 QStringLiteral("Centered"),
                                 QStringLiteral("Insert Link"),
                                 QStringLiteral("Insert Image"),
                                 QStringLiteral("Horicontal Rule"),
                                 QStringLiteral("Insert unsorted list"),
                                 QStringLiteral("Insert sorted list"),
                                 QStringLiteral("Insert table"),
                                 QStringLiteral("Insert Frame"),
                                 QStringLiteral("Insert Meta Tags")};
const QStringList textToolTips{QStringLiteral("Highlight Borders Tags"),
                               QStringLiteral("Highlight Header Tags"),
                               QStringLiteral("Highlight Body Tags"),
                               QStringLiteral("Normal Font Size"),
                               QStringLiteral("Larger Font Size"),
                               QStringLiteral("Smaller Font Size"),
                               QStringLiteral("Faintness Font Look"),
                               QStringLiteral("Stronger Font Look"),
                               QStringLiteral("Font Name")};

}  // namespace

void mdiMain::FillBars() {
  const auto strip = [this](QToolBar *bar, const char *name, const char *spokenName,
                            const QStringList &toolTips) {
    auto *made = new ToolStrip(bar->orientation(), toolTips, this);
    made->setObjectName(QLatin1String(name));
    made->setAccessibleName(QLatin1String(spokenName));
    bar->addWidget(made);
    return made;
  };
  picColor = new QFrame(this);
  picColor->setObjectName(QStringLiteral("picColor"));
  picColor->setFrameShape(QFrame::Panel);
  picColor->setFrameShadow(QFrame::Sunken);
  picColor->setFixedSize(ToolStrip::Cell, ToolStrip::Cell);
  picColor->setAutoFillBackground(true);
  picColor->setPalette(QPalette(Qt::black));
  picFontColor = new QToolButton(this);
  picFontColor->setObjectName(QStringLiteral("picFontColor"));
  picFontColor->setText(QStringLiteral("A"));
  picFontColor->setAccessibleName(QStringLiteral("Font colour"));
  picFontColor->setFocusPolicy(Qt::StrongFocus);
  cboFontStyle = new QComboBox(this);
  cboFontStyle->setObjectName(QStringLiteral("cboFontStyle"));
  cboFontStyle->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboFontStyle->setMinimumContentsLength(16);
  cboFontsize = new QComboBox(this);
  cboFontsize->setObjectName(QStringLiteral("cboFontsize"));
  cbrTop->addWidget(picColor);
  cbrTop->addWidget(picFontColor);
  picButtons = strip(cbrTop, "picButtons", "Format", formatToolTips);
  cbrTop->addSeparator();
  cbrTop->addWidget(cboFontStyle);
  cbrTop->addWidget(cboFontsize);
  cbrTop->addSeparator();
  picHtmlTextOptions = strip(cbrTop, "picHtmlTextOptions", "Text look", textToolTips);
  picLeftArrow = strip(cbrTop, "picLeftArrow", "Arrow", {});
  picLeft = strip(barLeft, "picLeft", "File and edit", fileToolTips);
  picJava = strip(cbrLeft, "picJava", "Java", javaToolTips);
  picRight = strip(cbrLeft, "picRight", "Windows", windowToolTips);
  picBottom = strip(barBottom, "picBottom", "Help", helpToolTips);
}

void mdiMain::ConnectStrips() {
  const auto connectTo = [this](ToolStrip *strip, const QList<QAction *> &commands) {
    connect(strip, &ToolStrip::ButtonUp, this,
            [commands](int button) { commands[button - 1]->trigger(); });
  };
  connectTo(picLeft, {mnuFileNewFile, mnuFileOpen, mnuFileSave, mnuFileSaveAll, mnuFilePrint,
                      mnuEditCut, mnuEditCopy, mnuEditPaste, mnuEditSearch, mnuFileShowPreview});
  connectTo(picRight, {mnuViewSelfStencilsWindow, mnuOptionsPreferences, mnuViewImageBrowsingWindow,
                       mnuViewMemoPad, mnuViewStencilsWindow});
  connectTo(picJava, {mnuJavaCompile, mnuJavaAppletViewer});
  connectTo(picBottom, {mnuInfoAbout, mnuInfoHelpManual});
  connect(picHtmlTextOptions, &ToolStrip::ButtonUp, this,
          [this](int button) { TextOptions::Press(*picHtmlTextOptions, button); });
}

void mdiMain::DrawStrips() {
  struct Artwork {
    const char *file;
    ToolStrip *strip;
    bool pumpInside;
  };
  const Artwork artworks[] = {
      {"File0001.dat", picButtons, false},
      {"File0002.dat", picLeft, false},
      {"File0003.dat", picBottom, false},
      {"File0004.dat", picRight, false},
      {"File0005.dat", picHtmlTextOptions, false},
      {"File0007.dat", picLeftArrow, true},
      {"File0009.dat", picJava, true},
  };
  for (const Artwork &artwork : artworks) {
    ForEachPixel(mFolders::InProgramFolder(QLatin1String(artwork.file)),
                 [&artwork](const PixelRecord &pixel) {
                   artwork.strip->PSet(pixel.x, pixel.y, pixel.colour);
                   if (artwork.pumpInside) DoEventsInLoop();
                 });
    DoEvents();
  }
}

void RedrawToolStripCells() {
  const mdiMain &main = *Default<mdiMain>();
  for (ToolStrip *strip : {main.picButtons, main.picLeft, main.picJava, main.picBottom,
                           main.picRight, main.picHtmlTextOptions}) {
    if (strip->MarkedButton() == 0) continue;
    strip->ClearMark();
    DoEventsInLoop();
  }
}
