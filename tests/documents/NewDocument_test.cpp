#include <QDate>
#include <QLocale>

#include "documents/frmNewEditorWindow.h"
#include "shared/FormsTest.h"

TEST(NewDocumentTextTest, PagesAndClassesHaveTheirTexts) {
  const QString page =
      "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html40/strict.dtd"
      "\">\r\n<html>\r\n\t<head>\r\n\t\t<meta http-equiv=\"Content-Type\" content=\"text/html; "
      "charset=iso-8859-1\">\r\n\t\t<meta name=\"GENERATOR\" content=\"nimbara works tagwright - "
      "hypertext authoring bench v1.100\">\r\n\r\n\t\t<title>####Insert site title####</title>\r\n"
      "\t</head>\r\n\t<body>\r\n\r\n\t</body>\r\n</html>";
  EXPECT_EQ(NewDocumentText(NewDocumentType::HtmlStrict, {}), page);
  EXPECT_EQ(NewDocumentText(NewDocumentType::Java, "21/11/2026"),
            "/**\r\n*  Filename:    <unsaved>\r\n*  Date:        21/11/2026\r\n*  Version:     \r\n"
            "*  Author:      \r\n*  Description: \r\n*               \r\n*  Generator:   nimbara "
            "works tagwright - hypertext authoring bench \r\n*/\r\n\r\nimport java.*;\r\n\r\n"
            "public class <unsaved> {\r\n    public static void main(String argv[]) {\r\n"
            "        \r\n    }\r\n}");
}

struct NewDocumentTest : FormsTest {
  NewDocumentTest() { main->mnuFileNewFile->trigger(); }
  frmNewEditorWindow *dialog = Default<frmNewEditorWindow>();
};

TEST_F(NewDocumentTest, OkWithoutAClickOpensABlankPageIfThereIsASlot) {
  dialog->cmdOk->click();
  EXPECT_TRUE(dialog->IsUnloaded() && !mPublic::aEditorState[1].changed);
  EXPECT_EQ(mEditors::Active()->Caption() + mEditors::Active()->txthtml->Text(), "<unsaved>");
  for (auto &state : mPublic::aEditorState) state.open = true;
  FileCommands::NewFile();
  Default<frmNewEditorWindow>()->cmdOk->click();
  EXPECT_EQ(main->mdiArea->subWindowList().size(), 1);
}

TEST_F(NewDocumentTest, MouseAndKeyboardChooseAPicture) {
  QTest::mouseClick(dialog->imgNewEditorWindowType_1, Qt::LeftButton);
  const QPoint picture = dialog->imgNewEditorWindowType_1->pos();
  EXPECT_EQ(dialog->shpSelectionBorder->geometry(), QRect(picture - QPoint(38, 6), QSize(108, 73)));
  QTest::keyClick(dialog->imgNewEditorWindowType_1, Qt::Key_Down);
  EXPECT_EQ(dialog->chosen(), NewDocumentType::AppletPage);
  QTest::mouseDClick(dialog->imgNewEditorWindowType_5, Qt::LeftButton);
  const QString date = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
  EXPECT_TRUE(mEditors::Active()->txthtml->Text().contains("*  Date:        " + date + "\r\n"));
}
