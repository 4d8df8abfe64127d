#include "frame/mdiMain.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <utility>

#include "assistants/FormatStrip.h"
#include "assistants/ListText.h"
#include "assistants/OpenAssistant.h"
#include "assistants/frmColors.h"
#include "assistants/frmInsertFrame.h"
#include "assistants/frmInsertHorRule.h"
#include "assistants/frmInsertImage.h"
#include "assistants/frmInsertLink.h"
#include "assistants/frmInsertList.h"
#include "assistants/frmInsertTable.h"
#include "assistants/frmMetaTags.h"
#include "assistants/frmSpecialCharacters.h"
#include "base/mFolders.h"
#include "base/mText.h"
#include "documents/EditCommands.h"
#include "documents/FileCommands.h"
#include "documents/Journal.h"
#include "documents/OpenFilesTree.h"
#include "documents/Printing.h"
#include "documents/frmMemoPad.h"
#include "documents/frmSearch.h"
#include "documents/mEditors.h"
#include "frame/ApplyPreferences.h"
#include "frame/FocusRound.h"
#include "frame/WindowCommands.h"
#include "frame/frmInfo.h"
#include "frame/frmPreferences.h"
#include "frame/mPublic.h"
#include "images/frmImageViewer.h"
#include "java/JavaCommands.h"
#include "preview/PreviewCommands.h"
#include "stencils/LoadStencilTrees.h"
#include "stencils/StencilPanel.h"
#include "stencils/frmExport.h"
#include "stencils/frmQuickBar.h"
#include "stencils/frmQuickbarEditor.h"
#include "stencils/frmSelfStencilBuilder.h"
#include "stencils/frmStencils.h"
#include "toolkit/DoEvents.h"
#include "toolkit/FontNames.h"

namespace {

const QString caption =
    QStringLiteral("nimbara works tagwright - hypertext authoring bench  v1.100 ");
const QString fileFilter = QStringLiteral(
    "*.html|*.html|*.htm|*.htm|*.html and *.htm|*.html;*.htm|*.java|*.java|All files *.*|*.*");
constexpr int untilStencilsLoad = 4000;  // milliseconds
constexpr int untilMenuCloses = 200;     // milliseconds between two looks
constexpr QSize firstSize(1280, 800);
constexpr QSize windowFrame(16, 48);  // room for what the window manager puts round it
constexpr int panelWidth = 276;

QString commandLine;

// The first local file of a drop, or nothing.
QString FirstFile(const QMimeData &data) {
  const auto urls = data.urls();
  return urls.isEmpty() ? QString() : urls.constFirst().toLocalFile();
}

}  // namespace

void SetCommandLine(const QString &line) {
  commandLine = line;
}

mdiMain::mdiMain() {
  setupUi(this);
  setContextMenuPolicy(Qt::NoContextMenu);  // the toolkit's would hide the strips
  setCentralWidget(splClient);
  FillBars();
  SetUpPanel();
  stencilPanel_ = new StencilPanel(this);
  ConnectMenus();
  ConnectStrips();
  new FormatStrip(*this);
  SetUpFocusRound();
  cdgFileOpen.Filter = cdgFileSave.Filter = fileFilter;
  timloadStencils = new QTimer(this);
  timloadStencils->setObjectName(QStringLiteral("timloadStencils"));
  timloadStencils->setInterval(untilStencilsLoad);
  connect(timloadStencils, &QTimer::timeout, this, &mdiMain::timloadStencils_Timer);
  // The window that comes to the front after a close is the one used before it.
  mdiArea->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  connect(mdiArea, &QMdiArea::subWindowActivated, this, &mEditors::WindowActivated);
  new OpenFilesTreeHandlers(trwOpenFiles);
}

void mdiMain::ConnectMenus() {
  connect(mnuFileNewFile, &QAction::triggered, this, &FileCommands::NewFile);
  connect(mnuFileOpen, &QAction::triggered, this, &FileCommands::Open);
  connect(mnuFileSave, &QAction::triggered, this, &FileCommands::Save);
  connect(mnuFileSaveAs, &QAction::triggered, this, &FileCommands::SaveAs);
  connect(mnuFileSaveAll, &QAction::triggered, this, &FileCommands::SaveAll);
  connect(mnuFileShowPreview, &QAction::triggered, this, &ShowPreview);
  connect(mnuFilePrint, &QAction::triggered, this, &PrintCommand);
  connect(mnuFileQuit, &QAction::triggered, this, &mdiMain::mnuFileQuit_Click);
  connect(mnuEditCut, &QAction::triggered, this, &EditCommands::Cut);
  connect(mnuEditCopy, &QAction::triggered, this, &EditCommands::Copy);
  connect(mnuEditPaste, &QAction::triggered, this, &EditCommands::Paste);
  connect(mnuEditClearClipboard, &QAction::triggered, this, &EditCommands::ClearClipboard);
  connect(mnuEditSearch, &QAction::triggered, this, [] { Default<frmSearch>()->show(); });
  connect(mnuFileExportSelfBuilded, &QAction::triggered, this,
          [] { Default<frmExport>()->show(); });
  connect(mnuViewStencilsWindow, &QAction::triggered, this, [] {
    // It fills its tree while it is made, and may have been closed over that.
    if (auto *form = Default<frmStencils>(); !form->IsUnloaded()) form->show();
  });
  // The editor shows itself, and may be gone again by then.
  connect(mnuViewSelfStencilsWindow, &QAction::triggered, this,
          [] { Default<frmSelfStencilBuilder>(); });
  connect(mnuViewImageBrowsingWindow, &QAction::triggered, this, [] {
    // It draws a picture while it is made, and may have been closed over that.
    if (auto *form = Default<frmImageViewer>(); !form->IsUnloaded()) form->show();
  });
  connect(mnuViewQuickBar, &QAction::triggered, this, &frmQuickBar::Open);
  connect(mnuViewQuickBarEditor, &QAction::triggered, this,
          [] { Default<frmQuickbarEditor>()->show(); });
  connect(mnuViewMemoPad, &QAction::triggered, this, &ShowMemoPad);
  connect(mnuAssistantsInsertHyperlink, &QAction::triggered, this, &OpenAssistant<frmInsertLink>);
  connect(mnuAssistantsInsertImage, &QAction::triggered, this, &OpenAssistant<frmInsertImage>);
  connect(mnuAssistantsInsertHorRule, &QAction::triggered, this, &OpenAssistant<frmInsertHorRule>);
  connect(mnuAssistantsInsertList, &QAction::triggered, this,
          [] { frmInsertList::Open(ListText::Unsorted); });
  connect(mnuAssistantsInsertTable, &QAction::triggered, this, &OpenAssistant<frmInsertTable>);
  connect(mnuAssistantsInsertFrameset, &QAction::triggered, this, &OpenAssistant<frmInsertFrame>);
  connect(mnuAssistantsInsertMetaTag, &QAction::triggered, this, &OpenAssistant<frmMetaTags>);
  connect(mnuAssistantsColorSelection, &QAction::triggered, this, &OpenAssistant<frmColors>);
  connect(mnuAssitantsSpecialCharacters, &QAction::triggered, this,
          &OpenAssistant<frmSpecialCharacters>);
  connect(mnuOptionsPreferences, &QAction::triggered, this,
          [] { Default<frmPreferences>()->show(); });
  connect(mnuInfoAbout, &QAction::triggered, this, [] { Default<frmInfo>()->show(); });
  connect(mnuJavaCompile, &QAction::triggered, this, &JavaCommands::Compile);
  connect(mnuJavaAppletViewer, &QAction::triggered, this, &JavaCommands::AppletViewer);
  connect(mnuWindowCascade, &QAction::triggered, this, &WindowCommands::Cascade);
  connect(mnuWindowTileHoricontally, &QAction::triggered, this, &WindowCommands::TileHoricontally);
  connect(mnuWindowTileVertitally, &QAction::triggered, this, &WindowCommands::TileVertitally);
  connect(mnuWindowCloseAll, &QAction::triggered, this, &WindowCommands::CloseAll);
  connect(mnuWindowMinimized, &QAction::triggered, this, &WindowCommands::Minimized);
  connect(mnuWindowNormalSize, &QAction::triggered, this, &WindowCommands::NormalSize);
  connect(mnuWindowMaximized, &QAction::triggered, this, &WindowCommands::Maximized);
  connect(mnuWindowAllMinimized, &QAction::triggered, this, &WindowCommands::AllMinimized);
  connect(mnuInfoHelpManual, &QAction::triggered, this, &HelpManual);
}

void mdiMain::SetUpFocusRound() {
  const auto stop = [](QWidget *widget) { return [widget] { return widget; }; };
  new FocusRound(this, {[]() -> QWidget * {
                          frmHTMLChild *editor = mEditors::Active();
                          return editor ? editor->txthtml : nullptr;
                        },
                        stop(picButtons), stop(picHtmlTextOptions), stop(picLeft), stop(picJava),
                        stop(picRight), stop(picBottom), stop(trwStencils),
                        stop(trwSelfBuildedStencils), stop(trwOpenFiles), stop(picTagDescription)});
}

void mdiMain::Load() {
  const QRect available = screen()->availableGeometry();
  const QSize room = available.size() - windowFrame;
  setMinimumSize(minimumSize().boundedTo(room));  // or a small screen would cut the window
  resize(firstSize.boundedTo(room));
  splClient->setStretchFactor(0, 1);
  splClient->setSizes({width() - panelWidth, panelWidth});
  move(available.center() - rect().center());
  setWindowTitle(caption);
  mPublic::strAppTitle = QStringLiteral("tagwright © v1.100 ");
  cboFontsize->addItems({QStringLiteral(" 8 pt"), QStringLiteral("10 pt"), QStringLiteral("12 pt"),
                         QStringLiteral("14 pt"), QStringLiteral("18 pt"), QStringLiteral("24 pt"),
                         QStringLiteral("36 pt")});
  cboFontsize->setCurrentIndex(2);
  cboFontStyle->addItems(FontNames());
  cboFontStyle->setCurrentIndex(0);
  AddTreeRoots();
  SetTitlebarColor(0);
  DrawStrips();
  mPublic::aFormatColor.fill(128);
  ApplyPreferences();
  timloadStencils->start();
}

void mdiMain::timloadStencils_Timer() {
  // A window that is shown closes an open menu under the user's hand and leaves the keyboard there.
  if (QApplication::activePopupWidget()) {
    timloadStencils->start(untilMenuCloses);
    return;
  }
  timloadStencils->stop();
  LoadStencilTrees(true, true);
}

// Editor windows need the area's size, which the window has from its first show on, before it is
// seen.
void mdiMain::showEvent(QShowEvent *event) {
  FormOf::showEvent(event);
  const QString named = mText::Trim(std::exchange(commandLine, {}));
  const bool opensOne = !named.isEmpty() && QFileInfo(named).isFile();
  // First, so that the file that the user has asked for stands in front.
  if (auto *journal = Journal::Current()) journal->OpenLostDocuments(opensOne ? 1 : 0);
  if (opensOne) FileCommands::LoadFileIntoNewEditor(named);
}

void mdiMain::AddTreeRoots() {
  const QString root = QStringLiteral("aa");
  trwOpenFiles->ClearNodes();
  trwOpenFiles->SetImageList(TreeImages());
  trwOpenFiles->Add({}, QStringLiteral("Editor Windows"), root);
  trwOpenFiles->Add(root, QStringLiteral("Markup Documents"), QStringLiteral("aaaa"));
  trwOpenFiles->Add(root, QStringLiteral("Java Documents"), QStringLiteral("aabb"));
  trwOpenFiles->Add(root, QStringLiteral("Unsaved Documents"), QStringLiteral("aacc"));
  const auto stencilRoot = [&root](KeyedTree &tree, const QString &text) {
    tree.ClearNodes();
    tree.SetImageList(TreeImages());
    tree.SetImage(tree.Add({}, text, root), 4);
  };
  stencilRoot(*trwStencils, standardStencils);
  stencilRoot(*trwSelfBuildedStencils, selfBuildedStencils);
}

void mdiMain::dragEnterEvent(QDragEnterEvent *event) {
  if (!FirstFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void mdiMain::dropEvent(QDropEvent *event) {
  event->acceptProposedAction();
  FileCommands::OpenDroppedFile(FirstFile(*event->mimeData()));
}
