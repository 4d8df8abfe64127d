#include "assistants/frmInsertList.h"
#include "shared/FormsTest.h"
#include "toolkit/ToolStrip.h"

namespace {

class InsertListTest : public FormsTest {
 protected:
  frmInsertList *OpenList() {
    main->mnuAssistantsInsertList->trigger();
    return static_cast<frmInsertList *>(mForms::Find(QStringLiteral("frmInsertList")));
  }
};

TEST_F(InsertListTest, WritesTheListAndComesBackUnsorted) {
  EXPECT_EQ(OpenList(), nullptr) << "without a document";
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two three")->txthtml;
  text.SetSelStart(4);
  text.SetSelLength(3);
  frmInsertList *form = OpenList();
  EXPECT_TRUE(form->isModal());
  form->optListType_1->click();
  form->optNumberingStyle_4->click();
  form->txtStartValue->setText(QStringLiteral("3"));
  form->chkCompact->click();
  form->txtNoOfItems->setText(QStringLiteral("1"));
  QTest::keyClick(form->txtNoOfItems, Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(text.Text(), QStringLiteral("one <ol  compact  start=\"3\">\r\n\t<li>\r\n\t</li>\r\n"
                                        "</ol> three"));
  EXPECT_EQ(text.SelLength(), 0);
  EXPECT_EQ(text.Piece(text.SelStart() - 5, 11), QStringLiteral("</ol> three"));
  text.undo();
  EXPECT_EQ(text.Text(), QStringLiteral("one two three"));

  EXPECT_EQ(OpenList(), form);
  EXPECT_TRUE(form->optListType_0->isChecked());
  EXPECT_TRUE(form->fraBulletType->isVisible());
  EXPECT_TRUE(form->optNumberingStyle_4->isChecked());
  EXPECT_TRUE(form->chkCompact->isChecked());
  EXPECT_EQ(form->txtStartValue->text() + form->txtNoOfItems->text(), QStringLiteral("31"));
  form->cmdCancel->click();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertList")), nullptr);
  EXPECT_EQ(text.Text(), QStringLiteral("one two three"));

  Q_EMIT main->picButtons->ButtonUp(14);
  form = Default<frmInsertList>();
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(form->optListType_1->isChecked());
  Q_EMIT main->picButtons->ButtonUp(13);
  EXPECT_TRUE(form->optListType_0->isChecked());
}

TEST_F(InsertListTest, TheKindDecidesWhatIsShownAndTheSizeStays) {
  RichTextBox &text = *Open(QStringLiteral("page.html"), "")->txthtml;
  frmInsertList *form = OpenList();
  DoEvents();
  const QSize size = form->size();
  form->optBulletType_2->click();
  const std::array kinds{form->optListType_0, form->optListType_1, form->optListType_2,
                         form->optListType_3, form->optListType_4};
  const char *const tags[] = {"<ul type=\"disc\">", "<ol  type=\"I\" start=\"1\">", "<dl>",
                              "<menu>", "<dir>"};
  for (int kind = 4; kind >= 0; --kind) {
    OpenList();
    kinds[size_t(kind)]->click();
    DoEvents();
    EXPECT_EQ(form->fraBulletType->isVisible(), kind == 0);
    EXPECT_EQ(form->fraNumberingStyle->isVisible(), kind == 1);
    EXPECT_EQ(form->size(), size);
    form->cmdOk->click();
    EXPECT_TRUE(text.Text().contains(QLatin1String(tags[kind]))) << kind;
  }
}

}  // namespace
