#include "assistants/AssistantTest.h"
#include "assistants/frmInsertList.h"

using Qt::StringLiterals::operator""_s;

class InsertListTest : public AssistantTest {
 protected:
  frmInsertList *OpenList() { return Show<frmInsertList>(main->mnuAssistantsInsertList); }
};

TEST_F(InsertListTest, WritesTheListAndComesBackUnsorted) {
  frmInsertList *form = OpenList();
  form->optListType_1->click();
  form->optNumberingStyle_4->click();
  form->txtStartValue->setText(u"3"_s);
  form->chkCompact->click();
  form->txtNoOfItems->setText(u"1"_s);
  QTest::keyClick(form->txtNoOfItems, Qt::Key_Return);
  EXPECT_EQ(text->Text(), u"one <ol  compact  start=\"3\">\r\n\t<li>\r\n\t</li>\r\n</ol> three");
  EXPECT_EQ(OpenList(), form);
  EXPECT_TRUE(form->optListType_0->isChecked() && form->fraBulletType->isVisible());
  EXPECT_TRUE(form->optNumberingStyle_4->isChecked() && form->chkCompact->isChecked());
  main->picButtons->Press(14);
  EXPECT_TRUE(form->optListType_1->isChecked());
  main->picButtons->Press(13);
  EXPECT_TRUE(form->optListType_0->isChecked());
}

TEST_F(InsertListTest, TheKindDecidesWhatIsShownAndTheSizeStays) {
  frmInsertList *form = OpenList();
  const QSize size = form->size();
  form->optBulletType_2->click();
  form->txtNoOfItems->clear();
  QString written;
  for (QRadioButton *kind : {form->optListType_4, form->optListType_3, form->optListType_2,
                             form->optListType_1, form->optListType_0}) {
    Select();
    OpenList();
    kind->click();
    DoEvents();
    written += QString::number(form->fraBulletType->isVisible()) +
               QString::number(form->fraNumberingStyle->isVisible());
    EXPECT_EQ(form->size(), size);
    form->cmdOk->click();
    written += text->Text().section(u'<', 1, 1).section(u'>', 0, 0) + u' ';
  }
  EXPECT_EQ(written, u"00dir 00menu 00dl 01ol  type=\"I\" start=\"1\" 10ul type=\"disc\" ");
}
