#include "frame/frmPreferences.h"

#include <QFontInfo>
#include <QPointer>
#include <QScreen>
#include <QShortcut>

#include "base/mText.h"
#include "documents/mEditors.h"
#include "frame/ApplyPreferences.h"
#include "frame/PanelFont.h"
#include "frame/frmPathSelect.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "stencils/LoadStencilTrees.h"
#include "toolkit/ChosenOption.h"
#include "toolkit/Dialogs.h"
#include "toolkit/FontNames.h"
#include "toolkit/UntrappedError.h"

namespace {

const QStringList fontSizes{
    QStringLiteral("8"),  QStringLiteral("9"),  QStringLiteral("10"), QStringLiteral("11"),
    QStringLiteral("12"), QStringLiteral("14"), QStringLiteral("16"), QStringLiteral("18"),
    QStringLiteral("20"), QStringLiteral("22"), QStringLiteral("24"), QStringLiteral("26"),
    QStringLiteral("28"), QStringLiteral("36"), QStringLiteral("48"), QStringLiteral("72")};

template <class Options>
void SetOption(const Options &options, int index) {
  if (index != PreferencesChoices::None) options[index]->setChecked(true);
}

void SetPair(QRadioButton *standard, QRadioButton *other, bool isOther) {
  (isOther ? other : standard)->setChecked(true);
}

// A path in a caption: its ampersands are no mark of a key.
QString Caption(const QString &text) {
  return mPlatform::WithTemporaryFolder(text, mPlatform::Current())
      .replace(u'&', QLatin1String("&&"));
}

}  // namespace

frmPreferences::frmPreferences() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  optImageHeight_ = {optImageHeight_0, optImageHeight_1, optImageHeight_2, optImageHeight_3};
  optImageWidth_ = {optImageWidth_0, optImageWidth_1, optImageWidth_2, optImageWidth_3};
  optShapeColor_ = {optShapeColor_0, optShapeColor_1, optShapeColor_2, optShapeColor_3};
  optAppFontSize_ = {optAppFontSize_0, optAppFontSize_1, optAppFontSize_2, optAppFontSize_3};
  txtJavaPath_ = {txtJavaPath_0, txtJavaPath_1};
  optTemporaryDataPath_0->setText(Caption(optTemporaryDataPath_0->text()));
  cdgOtherPreviewApp.Filter = QStringLiteral("All files *.*|*.*");

  auto *nextTab = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
  connect(nextTab, &QShortcut::activated, this, [this] {
    tbsOptions->setCurrentIndex((tbsOptions->currentIndex() + 1) % tbsOptions->count());
  });
  ConnectOptions();
  connect(lstFontNames, &QListWidget::itemSelectionChanged, this,
          &frmPreferences::lstFontNames_Click);
  connect(cboFontsize, &QComboBox::currentIndexChanged, this, &frmPreferences::cboFontsize_Click);
  connect(cmdSelectApplication, &QPushButton::clicked, this,
          &frmPreferences::cmdSelectApplication_Click);
  connect(cmdSelectJava_0, &QPushButton::clicked, this, [this] { cmdSelectJava_Click(0); });
  connect(cmdSelectJava_1, &QPushButton::clicked, this, [this] { cmdSelectJava_Click(1); });
  const auto selectPath = [] { Default<frmPathSelect>()->show(); };
  connect(cmdSelectPath, &QPushButton::clicked, this, selectPath);
  connect(cmdSelectOtherTemporaryPath, &QPushButton::clicked, this, selectPath);
  connect(cmdOk, &QPushButton::clicked, this, &frmPreferences::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

// The controls that each option brings to life and its counterpart greys. A frame takes what stands
// in it along.
void frmPreferences::ConnectOptions() {
  const std::pair<QRadioButton *, std::vector<QWidget *>> dependents[] = {
      {optOtherPreViewer, {txtApplictationPath, cmdSelectApplication}},
      {optOtherFileBinding_1,
       {lblFileExtension_0, txtFileExtension, lblFileExtension_1, txtFileBinding,
        lblNoteFileBinding}},
      {optOtherImageSettings, {fraOtherImageSettings}},
      {optUseOtherAppProperties, {fraOtherAppProperties}},
      {optEditorWindowProperties_1,
       {fraFontStyle, fraFontSize, lblActualFontCaption, lblActualFont, fraPreview,
        lblTabulatorCount, txtTabulatorCount}},
      {optSelfStencilsPath_1, {txtOtherStencilsPath, cmdSelectPath}},
      {optTemporaryDataPath_1, {txtOtherTemporaryPath, cmdSelectOtherTemporaryPath}},
  };
  for (const auto &[option, controls] : dependents) {
    const auto enable = [controls = controls](bool on) {
      for (QWidget *control : controls) control->setEnabled(on);
    };
    enable(option->isChecked());
    connect(option, &QRadioButton::toggled, this, enable);
  }
}

void frmPreferences::Load() {
  mPublic::ReadPreferences();
  ShowChoices(ChoicesOf(mPublic::recPreferences));
  tbsOptions->setCurrentIndex(0);
  adjustSize();
  move(screen()->availableGeometry().center() - rect().center());
}

void frmPreferences::ShowChoices(const PreferencesChoices &choices) {
  SetPair(optStandartWebBrowser, optOtherPreViewer, choices.otherPreviewer);
  txtApplictationPath->setText(choices.applicationPath);
  SetPair(optOtherFileBinding_0, optOtherFileBinding_1, choices.fileBinding);
  txtFileExtension->setText(choices.fileExtension);
  txtFileBinding->setText(choices.fileBindingCommand);
  SetPair(optStandardImageSettings, optOtherImageSettings, choices.otherImageSettings);
  SetOption(optImageHeight_, choices.imageHeight);
  SetOption(optImageWidth_, choices.imageWidth);
  SetOption(optShapeColor_, choices.shapeColor);
  chkShowFilenames->setChecked(choices.showFilenames);
  chkShowImageBorder->setChecked(choices.showImageBorder);
  chkShowStartWindow->setChecked(choices.showStartWindow);
  chkForceDatabaseLoading->setChecked(choices.forceDatabaseLoading);
  SetPair(optUseAppStandard, optUseOtherAppProperties, choices.otherAppFont);
  SetOption(optAppFontSize_, choices.appFontSize);
  SetPair(optEditorWindowProperties_0, optEditorWindowProperties_1, choices.otherEditorSettings);
  ShowFontChoices(choices);
  SetPair(optSelfStencilsPath_0, optSelfStencilsPath_1, choices.otherStencilsFolder);
  txtOtherStencilsPath->setText(choices.stencilsFolder);
  SetPair(optTemporaryDataPath_0, optTemporaryDataPath_1, choices.otherTemporaryFolder);
  txtOtherTemporaryPath->setText(choices.temporaryFolder);
  txtJavaPath_0->setText(choices.compilerPath);
  txtJavaPath_1->setText(choices.appletViewerPath);
}

// A font that isn't installed is named all the same, and the one that stands in for it is selected,
// so that the text keeps its looks; of a size that the list lacks none is.
void frmPreferences::ShowFontChoices(const PreferencesChoices &choices) {
  lstFontNames->addItems(FontNames());
  cboFontsize->addItems(fontSizes);
  auto found = lstFontNames->findItems(choices.fontName, Qt::MatchExactly);
  if (found.isEmpty() && !choices.fontName.isEmpty()) {
    const QString standIn = QFontInfo(QFont(choices.fontName)).family();
    found = lstFontNames->findItems(standIn, Qt::MatchExactly);
  }
  if (!found.isEmpty()) lstFontNames->setCurrentItem(found.constFirst());
  ShowFont(choices.fontName);
  cboFontsize->setCurrentIndex(fontSizes.indexOf(choices.fontSize));
  txtTabulatorCount->setText(choices.tabulatorCount);
}

PreferencesChoices frmPreferences::Choices() const {
  return {
      .otherPreviewer = optOtherPreViewer->isChecked(),
      .applicationPath = txtApplictationPath->text(),
      .fileBinding = optOtherFileBinding_1->isChecked(),
      .fileExtension = txtFileExtension->text(),
      .fileBindingCommand = txtFileBinding->text(),
      .otherImageSettings = optOtherImageSettings->isChecked(),
      .imageHeight = ChosenOption(optImageHeight_),
      .imageWidth = ChosenOption(optImageWidth_),
      .shapeColor = ChosenOption(optShapeColor_),
      .showFilenames = chkShowFilenames->isChecked(),
      .showImageBorder = chkShowImageBorder->isChecked(),
      .showStartWindow = chkShowStartWindow->isChecked(),
      .forceDatabaseLoading = chkForceDatabaseLoading->isChecked(),
      .otherAppFont = optUseOtherAppProperties->isChecked(),
      .appFontSize = ChosenOption(optAppFontSize_),
      .otherEditorSettings = optEditorWindowProperties_1->isChecked(),
      .fontName = SelectedFontName(),
      .fontSize = cboFontsize->currentText(),
      .tabulatorCount = txtTabulatorCount->text(),
      .otherStencilsFolder = optSelfStencilsPath_1->isChecked(),
      .stencilsFolder = txtOtherStencilsPath->text(),
      .otherTemporaryFolder = optTemporaryDataPath_1->isChecked(),
      .temporaryFolder = txtOtherTemporaryPath->text(),
      .compilerPath = txtJavaPath_0->text(),
      .appletViewerPath = txtJavaPath_1->text(),
  };
}

// ---- fonts

QString frmPreferences::SelectedFontName() const {
  const auto selected = lstFontNames->selectedItems();
  return selected.isEmpty() ? QString() : selected.constFirst()->text();
}

void frmPreferences::ShowFont(const QString &name) {
  if (name.isEmpty()) return;
  QFont font = lblPreview->font();
  font.setFamily(name);
  lblPreview->setFont(font);
  lblActualFont->setText(name);
}

void frmPreferences::lstFontNames_Click() {
  ShowFont(mText::Trim(SelectedFontName()));
}

void frmPreferences::cboFontsize_Click() {
  SetFontSize(*lblPreview, mText::Val(cboFontsize->currentText()));
}

// ---- select buttons

void frmPreferences::cmdSelectApplication_Click() {
  if (!cdgOtherPreviewApp.ShowOpen() || cdgOtherPreviewApp.FileTitle().isEmpty()) {
    txtApplictationPath->clear();
    optStandartWebBrowser->setChecked(true);
  } else if (IsApplication(cdgOtherPreviewApp.FileName, mPlatform::Current())) {
    txtApplictationPath->setText(cdgOtherPreviewApp.FileName);
  } else {
    Dialogs::Current().Message(
        QStringLiteral("The File you have selected is not an executable one!"),
        Dialogs::Buttons::Ok, Dialogs::Icon::Exclamation, QStringLiteral("Wrong File Type"));
  }
}

void frmPreferences::cmdSelectJava_Click(int index) {
  const Platform &platform = mPlatform::Current();
  const QString program = index == 0 ? platform.javaCompiler : platform.appletViewer;
  cdgSelectJava.DialogTitle = QStringLiteral("Select Path for ") + program;
  cdgSelectJava.Filter = program + u'|' + program;
  cdgSelectJava.FileName = program;
  if (!cdgSelectJava.ShowOpen() || cdgSelectJava.FileTitle() != program) return;
  txtJavaPath_[index]->setText(cdgSelectJava.FileName);
}

// ---- OK

void frmPreferences::cmdOk_Click() {
  // Loading the tree pumps events, and a second press must not begin all over.
  cmdOk->setEnabled(false);
  mPublic::recPreferences = RecordOf(Choices());
  mEditors::UseFont(mPublic::recPreferences);
  QString error;
  if (!mPublic::WritePreferences(&error)) {
    ShowUntrappedError(mPublic::PreferencesPath(), error);
    cmdOk->setEnabled(true);
    return;
  }
  ApplyPreferences();
  const QPointer<frmPreferences> self(this);
  LoadStencilTrees(false, true);
  if (self) Unload(*this);
}
