#include "assistants/frmInsertHorRule.h"
#include "assistants/frmInsertLink.h"
#include "shared/FormsTest.h"

namespace {

class InsertLinkTest : public FormsTest {
 protected:
  InsertLinkTest() {
    main->mnuAssistantsInsertHyperlink->trigger();
    main->mnuAssistantsInsertHorRule->trigger();
    EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertLink")), nullptr) << "without a document";
    EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertHorRule")), nullptr);
    text = Open(QStringLiteral("page.html"), "one two three")->txthtml;
    Select(4, 3);
  }
  void Select(int start, int length) {
    text->SetSelStart(start);
    text->SetSelLength(length);
  }

  RichTextBox *text;
};

TEST_F(InsertLinkTest, TheFieldIsInsertedAsItStands) {
  main->mnuAssistantsInsertHyperlink->trigger();
  auto *form = Default<frmInsertLink>();
  EXPECT_TRUE(form->isVisible() && form->isModal());
  const QString first = form->txtSchema->text();
  EXPECT_TRUE(first.startsWith(QLatin1String("<a href=\"http://")));
  form->txtLink_0->setText(QStringLiteral("old"));
  form->activateWindow();
  DoEvents();
  form->optLinkType_0->setFocus();
  QTest::keyClick(form->optLinkType_0, Qt::Key_Down);
  EXPECT_TRUE(form->txtSchema->text().startsWith(QLatin1String("<a href=\"ftp://")));
  form->optLinkType_5->click();
  EXPECT_TRUE(form->txtSchema->text().startsWith(QLatin1String("<a href=\"file://")));
  EXPECT_EQ(form->txtLink_0->text(), QStringLiteral("old"));
  form->cmdTake->click();
  EXPECT_EQ(form->txtLink_0->text(), form->txtSchema->text());
  form->txtLink_0->setText(QStringLiteral(" <a> "));
  QTest::keyClick(form->txtLink_0, Qt::Key_Return);
  EXPECT_EQ(text->Text(), QStringLiteral("one  <a>  three"));
  EXPECT_EQ(text->SelStart(), 9);
  EXPECT_TRUE(form->isHidden());
  main->mnuAssistantsInsertHyperlink->trigger();
  EXPECT_TRUE(form->isVisible() && form->optLinkType_5->isChecked()) << "it was only hidden";
  form->txtLink_0->clear();
  Select(4, 5);
  form->cmdOk->click();
  EXPECT_EQ(text->Text(), QStringLiteral("one  three"));
  main->mnuAssistantsInsertHyperlink->trigger();
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertLink")), nullptr);
}

TEST_F(InsertLinkTest, ARuleStandsInFrontOfTheSelection) {
  const QString tag = QStringLiteral("<hr WIDTH=\"80%\" Size=0 align=center Noshade>");
  main->mnuAssistantsInsertHorRule->trigger();
  auto *form = Default<frmInsertHorRule>();
  EXPECT_TRUE(form->isVisible() && form->isModal() && form->optAlign_0->isChecked());
  form->optAlign_1->click();
  form->chkNoShade->click();
  QTest::keyClicks(form->txtWidth, QStringLiteral("80 or so"));
  QTest::keyClick(form->txtWidth, Qt::Key_Return);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertHorRule")), nullptr);
  EXPECT_EQ(text->Text(), QStringLiteral("one ") + tag + QStringLiteral("two three"));
  EXPECT_EQ(text->SelStart(), 4 + tag.size() + 3);
  EXPECT_EQ(text->SelLength(), 0);
  main->mnuAssistantsInsertHorRule->trigger();
  Default<frmInsertHorRule>()->cmdCancel->click();
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertHorRule")), nullptr);
}

}  // namespace
