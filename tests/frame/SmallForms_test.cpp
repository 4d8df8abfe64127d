#include "frame/frmInfo.h"
#include "frame/frmLanguage.h"
#include "shared/FormsTest.h"

using Qt::StringLiterals::operator""_s;

namespace {

using SmallFormsTest = FormsTest;

TEST_F(SmallFormsTest, TheAboutTextRuns) {
  main->picBottom->Press(1);
  auto *form = static_cast<frmInfo *>(mForms::Find(u"frmInfo"_s));
  for (int ticks = 0; ticks < 5; ++ticks) QMetaObject::invokeMethod(form->timTimer, "timeout");
  EXPECT_EQ(form->lblScroll->y(), -5);
  dialogs.answers = {Dialogs::Answer::Ok};
  form->lblSysInfo->click();
  EXPECT_EQ(dialogs.messages.value(0),
            u"tagwright|Systeminformationen sind momentan nicht verfügbar|0"_s);
  form->lblOk->click();
  EXPECT_EQ(mForms::Find(u"frmInfo"_s), nullptr);
}

TEST_F(SmallFormsTest, LanguageTextsAreShownAndStored) {
  auto *form = Default<frmLanguage>();
  QTest::keyClicks(form->txtDeutsch, u"eins"_s);
  QTest::keyClick(form->txtDeutsch, Qt::Key_Return);
  QTest::keyClicks(form->txtEnglish, u"one"_s);
  form->cmdNavigation_0->click();
  EXPECT_EQ(form->windowTitle(), u"Spracheinstellungen/ Lanuage Settings     ITEM: 1/1"_s);
  EXPECT_EQ(FileBytes(mFolders::InProgramFolder(u"lang.dat"_s)).simplified(),
            QByteArray("eins one \0\0", 11));
}

}  // namespace
