#include "assistants/frmMetaTags.h"
#include "shared/FormsTest.h"

namespace {

using MetaTagsTest = FormsTest;

TEST_F(MetaTagsTest, TickedRowsGoInFrontOfTheSelection) {
  main->mnuAssistantsInsertMetaTag->trigger();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmMetaTags")), nullptr) << "without a document";
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two")->txthtml;
  text.SetSelStart(4);
  text.SetSelLength(3);
  main->mnuAssistantsInsertMetaTag->trigger();
  auto *form = Default<frmMetaTags>();
  EXPECT_TRUE(form->isVisible() && form->isModal());
  for (QLineEdit *box : form->txtMetaTags)
    EXPECT_EQ(box->isEnabled(), box == form->txtMetaTags[10]) << qPrintable(box->objectName());
  EXPECT_TRUE(form->txtSeconds->isEnabled());
  for (const int row : {9, 8, 7, 2, 0}) {
    form->chkMetaTags[row]->click();
    EXPECT_TRUE(form->txtMetaTags[row]->isEnabled());
  }
  form->chkMetaTags[2]->click();
  EXPECT_FALSE(form->txtMetaTags[2]->isEnabled());
  form->txtSeconds->setText(QStringLiteral(" 5"));
  form->txtMetaTags[7]->setText(QStringLiteral("T "));
  form->txtMetaTags[9]->setText(QStringLiteral("V"));
  form->txtMetaTags[10]->setText(QStringLiteral("E"));
  QTest::keyClick(form->txtSeconds, Qt::Key_Return);
  const QString block = QLatin1String(
      "<meta name=\"author\" content=\"\">\r\n"
      "<meta http-equiv=\"refresh\" content=\"5,T\">\r\n"
      "<meta name=\"editor\" content=\"nimbara works (tm) tagwright - hypertext authoring bench "
      "(c)\">\r\n"
      "<meta http-equiv=\"Set-Cookie\" cookievalue=\"V\" ;expires=\"E\"; path=/\">\r\n");
  EXPECT_EQ(text.Text(), QStringLiteral("one ") + block + QStringLiteral("two"));
  EXPECT_EQ(text.SelStart(), 4 + block.size());
  EXPECT_EQ(text.SelLength(), 0);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmMetaTags")), nullptr);
  main->mnuAssistantsInsertMetaTag->trigger();
  EXPECT_FALSE(Default<frmMetaTags>()->chkMetaTags[0]->isChecked());
  Default<frmMetaTags>()->chkMetaTags[0]->click();
  QTest::keyClick(Default<frmMetaTags>(), Qt::Key_Escape);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmMetaTags")), nullptr);
  EXPECT_TRUE(text.Text().startsWith(QLatin1String("one <meta name=\"author\"")));
}

}  // namespace
