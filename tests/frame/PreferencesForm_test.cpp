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

namespace {

class PreferencesFormTest : public StencilFormsTest {
 protected:
  PreferencesFormTest() {
    SetDataFolder(false);
    main->activateWindow();
    OpenDialog();
  }

  void OpenDialog() {
    main->picRight->Press(2);
    form = static_cast<frmPreferences *>(mForms::Find(QStringLiteral("frmPreferences")));
    ASSERT_NE(form, nullptr);
    DoEvents();
  }
  static QByteArray Stored() { return FileBytes(mPublic::PreferencesPath()); }
  static double Size(const QWidget *widget) { return widget->font().pointSizeF(); }
  // A font of the system that isn't the one in use.
  QString OtherFont() const {
    const auto families = FontNames();
    return families.last();
  }
  void ChooseFont(const QString &name, const QString &size) {
    form->optEditorWindowProperties_1->click();
    form->lstFontNames->setCurrentItem(
        form->lstFontNames->findItems(name, Qt::MatchExactly).value(0));
    form->cboFontsize->setCurrentText(size);
  }

  frmPreferences *form = nullptr;
};

TEST_F(PreferencesFormTest, OpensOnTheFirstPageAndCtrlTabGoesRound) {
  EXPECT_TRUE(form->isVisible() && form->isModal());
  EXPECT_EQ(form->windowTitle(), QStringLiteral("Properties"));
  QStringList captions;
  for (int tab = 0; tab < 7; ++tab) {
    EXPECT_EQ(form->tbsOptions->currentIndex(), tab);
    const auto *frame = form->findChild<QGroupBox *>(QStringLiteral("fraSample%1").arg(tab + 1));
    EXPECT_TRUE(frame->isVisible());
    captions << frame->title();
    form->activateWindow();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  }
  EXPECT_EQ(form->tbsOptions->currentIndex(), 0);
  EXPECT_EQ(captions.join(u'|'),
            QStringLiteral("Preview Application|Image Browser|Application|Editor Window|Self "
                           "Builded Stencils|Path for Temporary Data|Path for Java"));
  EXPECT_EQ(form->lblPreview->font().family(), QStringLiteral("Courier New"));
  EXPECT_EQ(form->optTemporaryDataPath_0->text(),
            QStringLiteral("Standard Path (%1)").arg(mPlatform::Current().temporaryFolder));
}

TEST_F(PreferencesFormTest, EachOptionGreysWhatDependsOnIt) {
  const struct {
    const char *standard, *other, *controls;
  } groups[] = {
      {"optStandartWebBrowser", "optOtherPreViewer", "txtApplictationPath cmdSelectApplication"},
      {"optOtherFileBinding_0", "optOtherFileBinding_1",
       "txtFileBinding txtFileExtension lblFileExtension_0 lblFileExtension_1 lblNoteFileBinding"},
      {"optStandardImageSettings", "optOtherImageSettings",
       "fraOtherImageSettings lblOtherImageSettings lblText_0 lblText_1 lblText_2 "
       "optImageHeight_0 optImageWidth_3 chkShowFilenames chkShowImageBorder optShapeColor_2"},
      {"optUseAppStandard", "optUseOtherAppProperties",
       "fraOtherAppProperties lblDescript optAppFontSize_0 optAppFontSize_3"},
      {"optEditorWindowProperties_0", "optEditorWindowProperties_1",
       "fraFontStyle lstFontNames lblActualFont cboFontsize lblPreview lblTabulatorCount "
       "txtTabulatorCount"},
      {"optSelfStencilsPath_0", "optSelfStencilsPath_1", "txtOtherStencilsPath cmdSelectPath"},
      {"optTemporaryDataPath_0", "optTemporaryDataPath_1",
       "txtOtherTemporaryPath cmdSelectOtherTemporaryPath"},
  };
  const auto child = [this](const QString &name) { return form->findChild<QWidget *>(name); };
  for (const auto &group : groups) {
    auto *standard = static_cast<QRadioButton *>(child(QLatin1String(group.standard)));
    auto *other = static_cast<QRadioButton *>(child(QLatin1String(group.other)));
    EXPECT_TRUE(standard->isChecked());
    for (const bool on : {false, true, false}) {
      (on ? other : standard)->click();
      for (const QString &name : Words(group.controls)) {
        EXPECT_EQ(child(name)->isEnabled(), on) << qPrintable(name);
      }
    }
  }
}

TEST_F(PreferencesFormTest, PanelFontsFollowAtOnce) {
  form->optUseOtherAppProperties->click();
  form->optAppFontSize_3->click();
  form->cmdOk->click();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmPreferences")), nullptr);
  for (const QWidget *panel :
       std::initializer_list<QWidget *>{main->trwOpenFiles, main->trwStencils,
                                        main->trwSelfBuildedStencils, main->lblTagDescription}) {
    EXPECT_EQ(Size(panel), 14);
  }
  EXPECT_EQ(Size(main->lblWindowTitelOpenFiles), 12);
  OpenDialog();
  EXPECT_TRUE(form->optAppFontSize_3->isChecked());
  form->optUseAppStandard->click();
  form->cmdOk->click();
  EXPECT_EQ(Size(main->trwStencils), 8);
}

TEST_F(PreferencesFormTest, EditorFontsFollowWithColoursAndHistoryKept) {
  form->cmdCancel->click();
  frmHTMLChild *first = Open(QStringLiteral("a.html"), "<b>one</b>\r\ntwo");
  frmHTMLChild *second = Open(QStringLiteral("b.html"), "three");
  Type(first, QStringLiteral("x"));
  first->txthtml->SetColour(1, 3, 0xff0000);
  first->txthtml->ShowColours();
  const auto spans = first->txthtml->ColoursOfLine(0);
  ASSERT_EQ(spans.size(), 1u);
  OpenDialog();
  ChooseFont(OtherFont(), QStringLiteral("24"));
  EXPECT_EQ(form->lblActualFont->text(), OtherFont());
  EXPECT_EQ(form->lblPreview->font().family(), OtherFont());
  EXPECT_EQ(Size(form->lblPreview), 24);
  form->cmdOk->click();
  for (const frmHTMLChild *editor : {first, second}) {
    for (const RichTextBox *box : {editor->txthtml, editor->rtfLineNumber}) {
      EXPECT_EQ(box->font().family(), OtherFont());
      EXPECT_EQ(box->font().pointSize(), 24);
    }
    EXPECT_EQ(editor->txthtml->SelStart(), editor->txthtml->TextLength());
  }
  EXPECT_EQ(first->txthtml->ColoursOfLine(0).size(), 1u);
  EXPECT_EQ(first->txthtml->document()->firstBlock().layout()->formats().size(), 1) << "still seen";
  first->txthtml->undo();
  EXPECT_EQ(first->txthtml->Text(), QStringLiteral("<b>one</b>\r\ntwo"));
  EXPECT_EQ(Open(QStringLiteral("c.html"), "")->txthtml->font().pointSize(), 24);
  OpenDialog();
  EXPECT_EQ(form->lstFontNames->currentItem()->text(), OtherFont());
  EXPECT_EQ(form->cboFontsize->currentText(), QStringLiteral("24"));
  form->optEditorWindowProperties_0->click();
  form->cmdOk->click();
  EXPECT_EQ(first->rtfLineNumber->font().family(), QStringLiteral("Courier New"));
  EXPECT_EQ(first->txthtml->font().pointSize(), 10);
  first->txthtml->redo();
  EXPECT_TRUE(first->txthtml->Text().startsWith(u'x'));
}

TEST_F(PreferencesFormTest, TheTabulatorCountIsThatOfTheTabKey) {
  const std::pair<const char *, int> counts[] = {{"7", 7}, {"99999", 0}, {"two", 0}, {"2.5", 2}};
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "");
  for (const auto &[typed, blanks] : counts) {
    if (!mForms::Find(QStringLiteral("frmPreferences"))) OpenDialog();
    form->optEditorWindowProperties_1->click();
    form->txtTabulatorCount->setText(QLatin1String(typed));
    form->cmdOk->click();
    editor->txthtml->SetText({});
    QTest::keyClick(editor->txthtml, Qt::Key_Tab);
    EXPECT_EQ(editor->txthtml->Text(), QString(blanks, u' ')) << typed;
  }
}

TEST_F(PreferencesFormTest, TheFolderOfSelfBuiltStencilsIsReadAtOnce) {
  PutStencils(stencils, Words("aaaa aabb"));
  LoadStencilTrees(false, true);
  const int before = main->trwSelfBuildedStencils->NodeCount();
  form->optSelfStencilsPath_1->click();
  form->txtOtherStencilsPath->setText(u' ' + folder.path());
  form->cmdOk->click();
  EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), 3);
  EXPECT_EQ(StencilFiles::ResolveDataFile(StencilFiles::QuickBar), bar);
  OpenDialog();
  form->txtOtherStencilsPath->setText(QStringLiteral(" "));
  form->cmdOk->click();
  EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), before);
  OpenDialog();
  EXPECT_TRUE(form->optSelfStencilsPath_0->isChecked());
  form->optSelfStencilsPath_1->click();
  form->txtOtherStencilsPath->setText(QStringLiteral("/no/such/folder"));
  form->cmdOk->click();
  EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), 1) << "the root alone";
}

TEST_F(PreferencesFormTest, TheSplashFollows) {
  form->chkShowStartWindow->setChecked(false);
  form->cmdOk->click();
  const auto *splash = Default<frmStart>();
  EXPECT_TRUE(splash->IsUnloaded());
}

TEST_F(PreferencesFormTest, PreviewAndJavaStartWhatIsChosen) {
  ScriptedPrograms &programs = ScriptedPrograms::Install();
  programs.toFile = Programs::Application{QStringLiteral("browser")};
  frmHTMLChild *editor = Open(QStringLiteral("A.java"), "class A {}");
  const QString file = editor->Caption();
  const auto started = [&] {
    QStringList words = std::exchange(programs.opened, {});
    for (const auto &command : std::exchange(programs.started, {})) {
      words << command.program << command.arguments;
    }
    return words.join(u'|');
  };
  form->optOtherPreViewer->click();
  form->txtApplictationPath->setText(QStringLiteral(" viewer -x "));
  form->txtJavaPath_0->setText(QStringLiteral("/my/javac"));
  form->cmdOk->click();
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), QStringLiteral("viewer|-x|") + file);
  dialogs.answers = {Dialogs::Answer::Ok};
  main->mnuJavaCompile->trigger();
  EXPECT_TRUE(started().startsWith(QStringLiteral("/my/javac|")));

  OpenDialog();
  form->optOtherFileBinding_1->click();
  form->txtFileExtension->setText(QStringLiteral("JAVA"));
  form->txtFileBinding->setText(QStringLiteral("bound"));
  form->cmdOk->click();
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), QStringLiteral("bound|") + file);

  OpenDialog();
  form->optOtherFileBinding_0->click();
  form->optStandartWebBrowser->click();
  form->optTemporaryDataPath_1->click();
  form->txtOtherTemporaryPath->setText(folder.path());
  form->txtJavaPath_1->setText(QStringLiteral("/my/appletviewer"));
  form->cmdOk->click();
  editor = mEditors::OpenWindow();
  editor->SetCaption(QStringLiteral("<unsaved>"));
  editor->txthtml->SetText(QStringLiteral("text"));
  main->mnuFileShowPreview->trigger();
  EXPECT_EQ(started(), QStringLiteral("browser ") + Path(QStringLiteral("0001.html")));
  Open(QStringLiteral("a.html"), "");
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(started(), QStringLiteral("/my/appletviewer|") + Path(QStringLiteral("a.html")));
  Programs::Set(nullptr);
}

TEST_F(PreferencesFormTest, TheNextScanHasTheChosenThumbnails) {
  form->optOtherImageSettings->click();
  form->optImageHeight_1->click();
  form->optImageWidth_2->click();
  form->optShapeColor_2->click();
  form->chkShowFilenames->setChecked(false);
  form->chkShowImageBorder->setChecked(false);
  form->cmdOk->click();
  Write(QStringLiteral("note.txt"), "");
  main->mnuViewImageBrowsingWindow->trigger();
  auto *browser = static_cast<frmImageViewer *>(mForms::Find(QStringLiteral("frmImageViewer")));
  browser->drvImageDrive->addItem(folder.path());
  browser->drvImageDrive->setCurrentIndex(browser->drvImageDrive->count() - 1);
  Q_EMIT browser->drvImageDrive->activated(browser->drvImageDrive->currentIndex());
  browser->cmdSetImagePath->click();
  ThumbnailCanvas &canvas = *browser->picImageBrowserInnenFrame;
  ASSERT_EQ(canvas.Count(), 1);
  canvas.clearFocus();
  EXPECT_EQ(canvas.Grid().cell, QSize(150, 75));
  const auto drawn = [&canvas] { return canvas.grab(canvas.CellRect(1)).toImage(); };
  const QImage bare = drawn();
  QImage empty = bare;
  empty.fill(bare.pixel(75, 37));
  EXPECT_EQ(bare, empty) << "neither frame nor name";
  canvas.Select(0);
  EXPECT_EQ(drawn().pixelColor(0, 37), QColor(0, 0, 255));
  OpenDialog();
  form->chkShowFilenames->setChecked(true);
  form->cmdOk->click();
  browser->cmdSetImagePath->click();
  EXPECT_NE(drawn(), empty);
}

TEST_F(PreferencesFormTest, CancelLeavesEverythingAsItWas) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "text");
  const QByteArray before = Stored();
  ChooseFont(OtherFont(), QStringLiteral("24"));
  form->chkShowStartWindow->toggle();
  form->cmdCancel->click();
  EXPECT_EQ(Stored(), before);
  EXPECT_EQ(editor->txthtml->font().pointSize(), 10);
  OpenDialog();
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_EQ(Stored(), before);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmPreferences")), nullptr);
}

TEST_F(PreferencesFormTest, ARecordOfAnyBytesOpensAndIsWrittenSound) {
  form->cmdCancel->click();
  for (const char byte : {'\x7F', '\xFF', '\0'}) {
    PutFile(mPublic::PreferencesPath(), QByteArray(3557, byte));
    OpenDialog();
    form->cmdOk->click();
    Preferences record;
    ASSERT_TRUE(ReadPreferencesFile(mPublic::PreferencesPath(), record));
    EXPECT_NE(record.StandardImageSettings, record.OtherImageSettings);
    EXPECT_EQ(record.EditorFontSize, 10);
    EXPECT_LE(record.AppFontSize, 3);
  }
}

TEST_F(PreferencesFormTest, ARecordThatCannotBeWrittenStaysWhole) {
  const QByteArray before = Stored();
  form->chkShowStartWindow->toggle();
  dialogs.answers = {Dialogs::Answer::Ok, Dialogs::Answer::Ok};
  {
    const FullDisk full(1000);
    form->cmdOk->click();
  }
  EXPECT_EQ(Stored(), before);
  QFile::setPermissions(mPublic::PreferencesPath(), QFile::ReadOwner | QFile::ReadOther);
  {
    const WithoutSuperuser user;
    form->cmdOk->click();
  }
  QFile::setPermissions(mPublic::PreferencesPath(), QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_EQ(Stored(), before);
  ASSERT_EQ(dialogs.messages.size(), 2);
  for (const QString &message : dialogs.messages) {
    EXPECT_TRUE(
        message.startsWith(QStringLiteral("tagwright|") + mPublic::PreferencesPath() + u'\n'))
        << qPrintable(message);
  }
  EXPECT_TRUE(form->isVisible() && form->cmdOk->isEnabled());
  form->cmdOk->click();
  EXPECT_NE(Stored(), before);
}

TEST_F(PreferencesFormTest, SelectButtonsTakeOnlyWhatFits) {
  form->optOtherPreViewer->click();
  const QString script = Write(QStringLiteral("view"), "#!/bin/sh\n");
  const QString javac = Write(QStringLiteral("javac"), "x");
  dialogs.files = {script, javac, std::nullopt};
  dialogs.answers = {Dialogs::Answer::Ok};
  form->cmdSelectApplication->click();
  EXPECT_EQ(form->txtApplictationPath->text(), QString());
  EXPECT_EQ(dialogs.messages,
            QStringList(QStringLiteral("Wrong File Type|The File you have selected is not an "
                                       "executable one!|0")));
  QFile::setPermissions(javac, QFile::ReadOwner | QFile::ExeOwner);
  form->cmdSelectApplication->click();
  EXPECT_EQ(form->txtApplictationPath->text(), javac);
  form->cmdSelectApplication->click();
  EXPECT_EQ(form->txtApplictationPath->text(), QString());
  EXPECT_TRUE(form->optStandartWebBrowser->isChecked() && !form->cmdSelectApplication->isEnabled());

  dialogs.requests.clear();
  dialogs.files = {javac, script, std::nullopt, javac};
  for (int press = 0; press < 3; ++press) form->cmdSelectJava_0->click();
  EXPECT_EQ(form->txtJavaPath_0->text(), javac);
  form->cmdSelectJava_1->click();
  EXPECT_EQ(form->txtJavaPath_1->text(), QString());
  const Dialogs::FileRequest &last = dialogs.requests.last();
  EXPECT_EQ(last.title, QStringLiteral("Select Path for appletviewer"));
  EXPECT_EQ(last.filter, QStringLiteral("appletviewer|appletviewer"));
  EXPECT_EQ(last.fileName, QStringLiteral("appletviewer"));
}

// ---- path selection

class PathSelectTest : public PreferencesFormTest {
 protected:
  void OpenPaths(int tab) {
    form->tbsOptions->setCurrentIndex(tab);
    (tab == 4 ? form->optSelfStencilsPath_1 : form->optTemporaryDataPath_1)->setChecked(true);
    (tab == 4 ? form->cmdSelectPath : form->cmdSelectOtherTemporaryPath)->click();
    paths = static_cast<frmPathSelect *>(mForms::Find(QStringLiteral("frmPathSelect")));
    ASSERT_NE(paths, nullptr);
  }
  // Opens folder after folder below the root and selects the last one.
  QTreeWidgetItem *GoTo(const QString &path) {
    QTreeWidgetItem *node = paths->trwPaths->topLevelItem(0);
    for (const QString &name : path.split(u'/', Qt::SkipEmptyParts)) {
      node->setExpanded(true);
      QTreeWidgetItem *found = nullptr;
      for (int i = 0; i < node->childCount(); ++i) {
        if (node->child(i)->text(0) == name) found = node->child(i);
      }
      if (!found) return nullptr;
      node = found;
    }
    paths->trwPaths->setCurrentItem(node);
    return node;
  }

  frmPathSelect *paths = nullptr;
};

TEST_F(PathSelectTest, TheFolderGoesToThePageInView) {
  const QString current = QDir::currentPath();
  const std::pair<int, QLineEdit *> pages[] = {{4, form->txtOtherStencilsPath},
                                               {5, form->txtOtherTemporaryPath}};
  for (const auto &[tab, box] : pages) {
    OpenPaths(tab);
    ASSERT_TRUE(GoTo(folder.path()));
    paths->cmdSelectThisPath->click();
    EXPECT_EQ(box->text(), folder.path());
    OpenPaths(tab);
    QTest::keyClick(paths, Qt::Key_Escape);
    EXPECT_EQ(box->text(), folder.path());
    OpenPaths(tab);
    paths->cmdCancel->click();
    EXPECT_EQ(box->text(), QString()) << "a folder chosen before is thrown away";
  }
  EXPECT_EQ(QDir::currentPath(), current);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmPathSelect")), nullptr);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(PathSelectTest, ADriveOrNothingCannotBeSelected) {
  OpenPaths(4);
  EXPECT_EQ(paths->drvDrive->currentText(), QStringLiteral("/"));
  EXPECT_TRUE(paths->trwPaths->topLevelItem(0)->isExpanded());
  dialogs.answers = {Dialogs::Answer::Ok, Dialogs::Answer::Ok};
  paths->trwPaths->clearSelection();
  paths->cmdSelectThisPath->click();
  GoTo(QStringLiteral("/"));
  paths->cmdSelectThisPath->click();
  EXPECT_EQ(dialogs.messages.join(u'#'),
            QStringLiteral("Path Selection Alert!|Please select a valid path!|0#Path Selection "
                           "Alert!|Please select a valid path!|0"));
  EXPECT_FALSE(paths->IsUnloaded());
}

TEST_F(PathSelectTest, FoldersAreReadWhenTheyAreOpened) {
  QDir(folder.path()).mkpath(QStringLiteral("inner/deep"));
  QDir(folder.path()).mkpath(QStringLiteral("*"));
  QFile::link(folder.path(), Path(QStringLiteral("circle")));
  OpenPaths(4);
  QTreeWidgetItem *node = GoTo(folder.path());
  ASSERT_EQ(node->childCount(), 1);
  EXPECT_EQ(node->child(0)->text(0), QStringLiteral("*")) << "not read yet";
  node->setExpanded(true);
  EXPECT_EQ(node->childCount(), 3);
  QDir(folder.path()).mkpath(QStringLiteral("later"));
  node->setExpanded(false);
  node->setExpanded(true);
  EXPECT_EQ(node->childCount(), 3) << "a folder named like a placeholder is none";
  node->child(0)->setExpanded(true);
  EXPECT_EQ(node->child(0)->childCount(), 0);
  ASSERT_TRUE(GoTo(folder.path() + QStringLiteral("/circle/circle/inner/deep")));
  paths->cmdSelectThisPath->click();
  EXPECT_EQ(form->txtOtherStencilsPath->text(),
            folder.path() + QStringLiteral("/circle/circle/inner/deep"));
}

}  // namespace
