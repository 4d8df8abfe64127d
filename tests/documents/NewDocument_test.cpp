#include <QDate>
#include <QLocale>

#include "documents/frmNewEditorWindow.h"
#include "shared/FormsTest.h"

namespace {

using NewDocumentTest = FormsTest;

TEST_F(NewDocumentTest, OkWithoutAClickOpensABlankPage) {
  main->mnuFileNewFile->trigger();
  auto *dialog = Default<frmNewEditorWindow>();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->parentWidget(), main);
  dialog->cmdOk->click();
  EXPECT_TRUE(dialog->IsUnloaded());
  EXPECT_EQ(mEditors::Active()->Caption(), QStringLiteral("<unsaved>"));
  EXPECT_EQ(mEditors::Active()->txthtml->Text(), QString());
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(main->trwOpenFiles->NodeByKey(QStringLiteral("aacc"))->childCount(), 1);
}

TEST_F(NewDocumentTest, ADoubleClickOpensThePicturesType) {
  FileCommands::NewFile();
  auto *dialog = Default<frmNewEditorWindow>();
  QTest::mouseClick(dialog->imgNewEditorWindowType_1, Qt::LeftButton);
  EXPECT_EQ(dialog->chosen(), NewDocumentType::HtmlStrict);
  const QPoint picture = dialog->imgNewEditorWindowType_1->pos();
  EXPECT_EQ(dialog->shpSelectionBorder->geometry(), QRect(picture - QPoint(38, 6), QSize(108, 73)));
  QTest::mouseDClick(dialog->imgNewEditorWindowType_5, Qt::LeftButton);
  const QString date = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
  const QString text = mEditors::Active()->txthtml->Text();
  EXPECT_TRUE(
      text.startsWith(QStringLiteral("/**\r\n*  Filename:    <unsaved>\r\n*  Date:        ") +
                      date + QStringLiteral("\r\n*  Version:     \r\n")));
}

TEST_F(NewDocumentTest, TheKeyboardReachesEveryPicture) {
  FileCommands::NewFile();
  auto *dialog = Default<frmNewEditorWindow>();
  dialog->imgNewEditorWindowType_0->setFocus();
  QTest::keyClick(dialog->imgNewEditorWindowType_0, Qt::Key_Right);
  QTest::keyClick(dialog->imgNewEditorWindowType_1, Qt::Key_Down);
  EXPECT_EQ(dialog->chosen(), NewDocumentType::AppletPage);
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_TRUE(dialog->IsUnloaded());
  EXPECT_FALSE(mPublic::AnyEditorOpen());
}

TEST_F(NewDocumentTest, WithAllSlotsTakenOkClosesTheDialogAndNothingElse) {
  for (auto &state : mPublic::aEditorState) state.open = true;
  FileCommands::NewFile();
  auto *dialog = Default<frmNewEditorWindow>();
  dialog->cmdOk->click();
  EXPECT_TRUE(dialog->IsUnloaded());
  EXPECT_TRUE(main->mdiArea->subWindowList().isEmpty());
}

}  // namespace
