#include <QDir>
#include <QTextBlock>
#include <QTextLayout>

#include "frame/frmPathSelect.h"
#include "frame/frmPreferences.h"
#include "frame/frmStart.h"
#include "images/frmImageViewer.h"
#include "shared/Limits.h"
#include "shared/ScriptedPrograms.h"
#include "shared/StencilFormsTest.h"
#include "stencils/LoadStencilTrees.h"
#include "toolkit/FontNames.h"

using Qt::StringLiterals::operator""_s;

namespace {

class PreferencesFormTest : public StencilFormsTest {
 protected:
  PreferencesFormTest() {
    mPublic::recPreferences = StandardPreferences();
    EXPECT_TRUE(mPublic::WritePreferences());
    main->activateWindow();
    OpenDialog();
  }

  void OpenDialog() {
    main->picRight->Press(2);
    form = static_cast<frmPreferences *>(mForms::Find(u"frmPreferences"_s));
    ASSERT_NE(form, nullptr);
    DoEvents();
  }
  void Click(const char *names) {
    for (const QString &name : Words(names)) form->findChild<QAbstractButton *>(name)->click();
  }
  // A font of the system that isn't the one in use.
  void ChooseOtherFont() {
    form->optEditorWindowProperties_1->click();
    form->lstFontNames->setCurrentRow(form->lstFontNames->count() - 1);
    form->cboFontsize->setCurrentText(u"24"_s);
  }
  // Over a drive of the test's own.
  void OpenPaths(int tab) {
    form->tbsOptions->setCurrentIndex(tab);
    Click(tab == 4 ? "optSelfStencilsPath_1 cmdSelectPath"
                   : "optTemporaryDataPath_1 cmdSelectOtherTemporaryPath");
    paths = Default<frmPathSelect>();
    paths->drvDrive->addItem(folder.path());
    paths->drvDrive->setCurrentText(folder.path());
  }
  // Opens folder after folder below the root and selects the last one.
  QTreeWidgetItem *GoTo(const char *names) {
    QTreeWidgetItem *node = paths->trwPaths->topLevelItem(0);
    for (const QString &name : Words(names)) {
      node->setExpanded(true);
      int child = 0;
      while (child < node->childCount() && node->child(child)->text(0) != name) ++child;
      EXPECT_LT(child, node->childCount()) << qPrintable(name);
      node = node->child(child);
    }
    paths->trwPaths->setCurrentItem(node);
    return node;
  }
  static QByteArray Stored() { return FileBytes(mPublic::PreferencesPath()); }
  static QString Font(const QWidget *widget) {
    return u"%1 %2"_s.arg(widget->font().family()).arg(widget->font().pointSizeF());
  }

  frmPreferences *form = nullptr;
  frmPathSelect *paths = nullptr;
};

TEST_F(PreferencesFormTest, CtrlTabGoesRoundThePages) {
  EXPECT_TRUE(form->isVisible() && form->isModal());
  for (const int tab : {1, 2, 3, 4, 5, 6, 7, 1}) {
    EXPECT_TRUE(form->findChild<QWidget *>(u"fraSample%1"_s.arg(tab))->isVisible()) << tab;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  }
}

TEST_F(PreferencesFormTest, EveryControlIsReachedByItsOptionAndIsStored) {
  const auto type = [this] {
    for (const auto &[box, text] : {std::pair(form->txtApplictationPath, "viewer"),
                                    {form->txtFileExtension, "php"},
                                    {form->txtFileBinding, "bound"},
                                    {form->txtTabulatorCount, "3"},
                                    {form->txtOtherStencilsPath, "/s"},
                                    {form->txtOtherTemporaryPath, "/t"}}) {
      QTest::keyClicks(box, QLatin1String(text));
    }
  };
  type();  // into grey boxes
  Click("optOtherPreViewer optOtherFileBinding_1 optOtherImageSettings optUseOtherAppProperties");
  Click("optSelfStencilsPath_1 optTemporaryDataPath_1 optEditorWindowProperties_1");
  type();
  QTest::keyClicks(form->txtJavaPath_0, u"/javac"_s);
  QTest::keyClicks(form->txtJavaPath_1, u"/appletviewer"_s);
  Click("optImageHeight_1 optImageWidth_2 optShapeColor_3 optAppFontSize_3");
  Click("chkShowFilenames chkShowStartWindow chkForceDatabaseLoading");
  form->cboFontsize->setCurrentText(u"24"_s);
  form->lstFontNames->clearSelection();
  form->cmdOk->click();
  const QByteArray stored = Stored();
  EXPECT_EQ(stored.size(), 3557);
  EXPECT_EQ(
      stored.simplified().toPercentEncoding(" /"),
      "%00%00%FF%FF%01%00%00%00%02%00%00%00%01%00%00%00%FF%FFviewer %03%00%00%FF%FF%00%00%FF%FF"
      "/s %03%00%00%00%00%00%00%00%FF%FF%00%00 %18%00%2B%00%00%00/t %FF%FFphp bound /javac "
      "/appletviewer");
  EXPECT_EQ(main->trwStencils->font().pointSize(), 14);
  OpenDialog();
  form->cmdOk->click();
  EXPECT_EQ(Stored(), stored) << "shown as it was stored";
  OpenDialog();
  Click("optOtherFileBinding_0 optUseAppStandard optSelfStencilsPath_0");
  type();
  EXPECT_EQ(form->txtFileBinding->text() + form->txtOtherStencilsPath->text(), u"bound/s"_s);
  form->cmdOk->click();
  EXPECT_EQ(main->trwStencils->font().pointSize(), 8);
}

TEST_F(PreferencesFormTest, EditorFontsFollowWithColoursAndHistoryKept) {
  form->cmdCancel->click();
  const RichTextBox &text = *Open(u"a.html"_s, "<b>one</b>")->txthtml;
  Type(mEditors::Active(), u"x"_s);
  mEditors::Active()->txthtml->SetColour(1, 3, 0xff0000);
  mEditors::Active()->txthtml->ShowColours();
  OpenDialog();
  ChooseOtherFont();
  const QByteArray before = Stored();
  form->cmdCancel->click();
  EXPECT_EQ(Stored() + Font(&text).toLatin1(), before + "Courier New 10") << "all as it was";
  OpenDialog();
  ChooseOtherFont();
  form->txtTabulatorCount->setText(u"3"_s);
  const QString chosen = FontNames().last() + u" 24"_s;
  form->cmdOk->click();
  EXPECT_EQ(Font(&text), chosen);
  EXPECT_EQ(Font(mEditors::Active()->rtfLineNumber), chosen);
  EXPECT_EQ(text.document()->firstBlock().layout()->formats().size(), 1) << "still coloured";
  text.document()->undo();
  EXPECT_EQ(text.Text(), u"<b>one</b>"_s);
  RichTextBox *next = Open(u"b.html"_s, "")->txthtml;
  QTest::keyClick(next, Qt::Key_Tab);
  EXPECT_EQ(Font(next) + next->Text(), chosen + u"   "_s);
  OpenDialog();
  Click("optEditorWindowProperties_0 cmdOk");
  EXPECT_EQ(Font(&text), u"Courier New 10"_s);
  EXPECT_TRUE(text.document()->isRedoAvailable());
}

TEST_F(PreferencesFormTest, TheFolderOfSelfBuiltStencilsIsReadAtOnce) {
  PutStencils(stencils, Words("aaaa aabb"));
  for (const auto &[path, nodes] :
       {std::pair(u' ' + folder.path(), 3), {u"/no/such/folder"_s, 1}}) {
    if (!mForms::Find(u"frmPreferences"_s)) OpenDialog();
    form->optSelfStencilsPath_1->click();
    form->txtOtherStencilsPath->setText(path);
    form->cmdOk->click();
    EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), nodes) << qPrintable(path);
  }
}

TEST_F(PreferencesFormTest, PreviewAndJavaStartWhatIsChosen) {
  ScriptedPrograms &programs = ScriptedPrograms::Install();
  programs.toFile = Programs::Application{u"browser"_s};
  const QString file = Open(u"A.java"_s, "class A {}")->Caption();
  const auto started = [&] {
    QStringList words = std::exchange(programs.opened, {});
    for (const auto &command : std::exchange(programs.started, {})) {
      words << command.program << command.arguments;
    }
    return words.join(u'|');
  };
  form->optOtherPreViewer->click();
  form->txtApplictationPath->setText(u" viewer -x "_s);
  form->txtJavaPath_0->setText(u"/my/javac"_s);
  form->cmdOk->click();
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), u"viewer|-x|"_s + file);
  dialogs.answers = {Dialogs::Answer::Ok};
  main->mnuJavaCompile->trigger();
  EXPECT_TRUE(started().startsWith(u"/my/javac|"));

  OpenDialog();
  form->optOtherFileBinding_1->click();
  form->txtFileExtension->setText(u"JAVA"_s);
  form->txtFileBinding->setText(u"bound"_s);
  form->cmdOk->click();
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), u"bound|"_s + file);

  OpenDialog();
  Click("optOtherFileBinding_0 optStandartWebBrowser optTemporaryDataPath_1");
  form->txtOtherTemporaryPath->setText(folder.path());
  form->txtJavaPath_1->setText(u"/my/appletviewer"_s);
  form->cmdOk->click();
  mEditors::OpenWindow()->SetCaption(u"<unsaved>"_s);
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), u"browser "_s + Path(u"0001.html"_s));
  Open(u"a.html"_s, "");
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(started(), u"/my/appletviewer|"_s + Path(u"a.html"_s));
  Programs::Set(nullptr);
}

TEST_F(PreferencesFormTest, TheNextScanHasTheChosenThumbnails) {
  Click("optOtherImageSettings optImageHeight_1 optImageWidth_2 optShapeColor_2 cmdOk");
  Write(u"note.txt"_s, "");
  main->mnuViewImageBrowsingWindow->trigger();
  auto *browser = Default<frmImageViewer>();
  browser->drvImageDrive->addItem(folder.path());
  browser->drvImageDrive->setCurrentIndex(browser->drvImageDrive->count() - 1);
  Q_EMIT browser->drvImageDrive->activated(browser->drvImageDrive->currentIndex());
  browser->cmdSetImagePath->click();
  ThumbnailCanvas &canvas = *browser->picImageBrowserInnenFrame;
  const auto drawn = [&canvas] { return canvas.grab(canvas.CellRect(1)).toImage(); };
  canvas.clearFocus();
  EXPECT_EQ(canvas.Grid().cell, QSize(150, 75));
  QImage empty = drawn();
  empty.fill(empty.pixel(75, 37));
  EXPECT_EQ(drawn(), empty) << "neither frame nor name";
  canvas.Select(0);
  EXPECT_EQ(drawn().pixelColor(0, 37), QColor(0, 0, 255));
  OpenDialog();
  Click("chkShowFilenames cmdOk");
  browser->cmdSetImagePath->click();
  EXPECT_NE(drawn(), empty);
}

TEST_F(PreferencesFormTest, TheSplashFollows) {
  Click("chkShowStartWindow cmdOk");
  EXPECT_TRUE(Default<frmStart>()->IsUnloaded());
}

TEST_F(PreferencesFormTest, ARecordOfAnyBytesOpensAndIsWrittenSound) {
  form->cmdCancel->click();
  for (const char byte : {'\x7F', '\xFF', '\0', ' '}) {
    PutFile(mPublic::PreferencesPath(), QByteArray(3557, byte));
    OpenDialog();
    Open(u"a.html"_s, "")->close();
    form->cmdOk->click();
    mPublic::ReadPreferences();
    const Preferences &record = mPublic::recPreferences;
    EXPECT_NE(record.StandardImageSettings, record.OtherImageSettings);
    EXPECT_TRUE(record.EditorFontSize == 10 && record.ShapeColor <= 3 && record.AppFontSize <= 3);
  }
}

TEST_F(PreferencesFormTest, ARecordThatCannotBeWrittenStaysWhole) {
  const QByteArray before = Stored();
  form->chkShowStartWindow->toggle();
  dialogs.answers = {Dialogs::Answer::Ok};
  {
    const FullDisk full(1000);
    form->cmdOk->click();
  }
  EXPECT_EQ(Stored(), before);
  EXPECT_TRUE(dialogs.messages.value(0).startsWith(u"tagwright|"_s + mPublic::PreferencesPath()));
  EXPECT_TRUE(form->isVisible());
  form->cmdOk->click();
  EXPECT_NE(Stored(), before);
}

TEST_F(PreferencesFormTest, SelectButtonsTakeOnlyWhatFits) {
  form->optOtherPreViewer->click();
  const QString script = Write(u"view"_s, ""), javac = Write(u"javac"_s, "");
  QFile::setPermissions(javac, QFile::ReadOwner | QFile::ExeOwner);
  dialogs.files = {script, javac, std::nullopt};
  dialogs.answers = {Dialogs::Answer::Ok};
  QString chosen;
  for (int press = 0; press < 3; ++press) {
    form->cmdSelectApplication->click();
    chosen += form->txtApplictationPath->text() + u'|';
  }
  EXPECT_EQ(chosen, u'|' + javac + u"||"_s);
  EXPECT_EQ(dialogs.messages.join(u'#'),
            u"Wrong File Type|The File you have selected is not an executable one!|0"_s);
  EXPECT_TRUE(form->optStandartWebBrowser->isChecked());

  dialogs.files = {javac, script, std::nullopt, javac};
  Click("cmdSelectJava_0 cmdSelectJava_0 cmdSelectJava_0 cmdSelectJava_1");
  EXPECT_EQ(form->txtJavaPath_0->text() + form->txtJavaPath_1->text(), javac);
  const Dialogs::FileRequest &last = dialogs.requests.last();
  EXPECT_EQ(last.title + last.filter, u"Select Path for appletviewerappletviewer|appletviewer"_s);
}

TEST_F(PreferencesFormTest, TheFolderGoesToThePageInView) {
  QDir(folder.path()).mkdir(u"in"_s);
  for (const auto &[tab, box] :
       {std::pair(4, form->txtOtherStencilsPath), {5, form->txtOtherTemporaryPath}}) {
    OpenPaths(tab);
    GoTo("in");
    paths->cmdSelectThisPath->click();
    EXPECT_EQ(box->text(), Path(u"in"_s));
    OpenPaths(tab);
    paths->cmdCancel->click();
    EXPECT_EQ(box->text(), QString()) << "a folder chosen before is thrown away";
  }
  OpenPaths(4);
  dialogs.answers = {Dialogs::Answer::Ok, Dialogs::Answer::Ok};
  paths->trwPaths->clearSelection();
  paths->cmdSelectThisPath->click();
  GoTo("");
  paths->cmdSelectThisPath->click();
  EXPECT_EQ(dialogs.messages,
            QStringList(2, u"Path Selection Alert!|Please select a valid path!|0"_s));
  EXPECT_FALSE(paths->IsUnloaded()) << "neither nothing nor a drive can be selected";
}

TEST_F(PreferencesFormTest, FoldersAndLinksToThemAreReadInOrderWhenTheyAreOpened) {
  for (const char *name : {"in", "*", "B", ".hidden"})
    QDir(folder.path()).mkdir(QLatin1String(name));
  QFile::link(folder.path(), Path(u"circle"_s));
  QFile::link(Write(u"file"_s, ""), Path(u"toFile"_s));
  QFile::link(u"self"_s, Path(u"self"_s));
  OpenPaths(4);
  EXPECT_EQ(GoTo("circle circle")->childCount(), 1) << "not read yet";
  const QTreeWidgetItem *node = GoTo("circle circle in")->parent();
  QStringList names;
  for (int child = 0; child < node->childCount(); ++child) names << node->child(child)->text(0);
  EXPECT_EQ(names.join(u'|'), u"*|.hidden|B|circle|in"_s);
  paths->cmdSelectThisPath->click();
  EXPECT_EQ(form->txtOtherStencilsPath->text(), Path(u"circle/circle/in"_s));
}

}  // namespace
