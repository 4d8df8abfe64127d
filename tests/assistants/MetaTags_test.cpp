#include "assistants/AssistantTest.h"
#include "assistants/frmMetaTags.h"

using Qt::StringLiterals::operator""_s;

class MetaTagsTest : public AssistantTest {};

TEST_F(MetaTagsTest, TickedRowsGoInFrontOfTheSelection) {
  auto *form = Show<frmMetaTags>(main->mnuAssistantsInsertMetaTag);
  for (size_t row = 0; row < 10; ++row) {
    EXPECT_FALSE(form->txtMetaTags[row]->isEnabled()) << row;
    form->chkMetaTags[row]->click();
    EXPECT_TRUE(form->txtMetaTags[row]->isEnabled()) << row;
    if (row != 8) form->txtMetaTags[row]->setText(u" %1\" "_s);  // which has a text
  }
  form->txtSeconds->setText(u" 5 "_s);
  form->txtMetaTags[10]->setText(u"E "_s);
  QTest::keyClick(form->txtSeconds, Qt::Key_Return);
  EXPECT_EQ(text->Text(),
            u"one <meta name=\"author\" content=\"%1\"\">\r\n"
            u"<meta name=\"description\" content=\"%1\"\"> \r\n"
            u"<meta name=\"keywords\" content=\"%1\"\">\r\n"
            u"<meta name=\"date\" content=\"%1\"\">\r\n"
            u"<meta name=\"robots\" content=\"%1\"\">\r\n"
            u"<meta name=\"charset\" content=\"%1\"\">\r\n"
            u"<meta http-equiv=\"expires\" content=\"%1\"\">\r\n"
            u"<meta http-equiv=\"refresh\" content=\"5,%1\"\">\r\n"
            u"<meta name=\"editor\" content=\"nimbara works (tm) tagwright - hypertext authoring "
            u"bench (c)\">\r\n"
            u"<meta http-equiv=\"Set-Cookie\" cookievalue=\"%1\"\" ;expires=\"E\"; path=/\">\r\n"
            u"two three");
  Select();
  form = Show<frmMetaTags>(main->mnuAssistantsInsertMetaTag);
  form->chkMetaTags[7]->click();
  form->cmdOk->click();
  EXPECT_EQ(text->Text(), u"one <meta http-equiv=\"refresh\" content=\",\">\r\ntwo three");
}
