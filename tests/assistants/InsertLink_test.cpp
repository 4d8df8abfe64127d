#include "assistants/AssistantTest.h"
#include "assistants/frmInsertHorRule.h"
#include "assistants/frmInsertLink.h"

using Qt::StringLiterals::operator""_s;

class InsertLinkTest : public AssistantTest {};

TEST_F(InsertLinkTest, TheFieldIsInsertedAsItStands) {
  auto *form = Show<frmInsertLink>(main->mnuAssistantsInsertHyperlink);
  EXPECT_TRUE(form->txtSchema->text().startsWith(u"<a href=\"http"_s));
  form->optLinkType_5->click();
  EXPECT_TRUE(form->txtSchema->text().startsWith(u"<a href=\"file"_s));
  form->cmdTake->click();
  EXPECT_EQ(form->txtLink_0->text(), form->txtSchema->text());
  form->txtLink_0->setText(u" <a> "_s);
  QTest::keyClick(form->txtLink_0, Qt::Key_Return);
  EXPECT_EQ(text->Text(), u"one  <a>  three");
  EXPECT_EQ(Show<frmInsertLink>(main->mnuAssistantsInsertHyperlink), form) << "it was only hidden";
}

TEST_F(InsertLinkTest, ARuleStandsInFrontOfTheSelection) {
  auto *form = Show<frmInsertHorRule>(main->mnuAssistantsInsertHorRule);
  form->optAlign_1->click();
  form->chkNoShade->click();
  form->txtSize->setText(u"3"_s);
  form->txtWidth->setText(u"80 or so"_s);
  QTest::keyClick(form->txtWidth, Qt::Key_Return);
  EXPECT_EQ(text->Text(), u"one <hr WIDTH=\"80%\" Size=3 align=center Noshade>two three");
  EXPECT_EQ(text->SelStart(), text->TextLength() - 6);
}
