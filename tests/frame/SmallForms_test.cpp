#include "frame/frmInfo.h"
#include "frame/frmLanguage.h"
#include "frame/frmSelectLanguage.h"
#include "shared/FormsTest.h"

namespace {

using SmallFormsTest = FormsTest;

TEST_F(SmallFormsTest, TheAboutTextStandsRunsAndBeginsAnew) {
  main->picBottom->Press(1);
  auto *form = static_cast<frmInfo *>(mForms::Find(QStringLiteral("frmInfo")));
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->size(), form->imgfrmInfo->size());
  form->resize(50, 50);
  EXPECT_EQ(form->size(), form->imgfrmInfo->size());
  EXPECT_TRUE(form->lblScroll->text().startsWith(mPublic::strAppTitle + u'\n'));
  EXPECT_TRUE(form->lblScroll->text().contains(
      QStringLiteral("\nthanks for using nimbara works products!\n")));
  const int end = form->picNameBelanglos->height() - form->lblScroll->height();
  ASSERT_LT(end, -50) << "there is something to scroll";
  const auto tick = [form] { QMetaObject::invokeMethod(form->timTimer, "timeout"); };
  EXPECT_EQ(form->timTimer->interval(), 5000);
  for (int round = 0; round < 2; ++round) {
    int lowest = 0;
    for (int ticks = 0; ticks < -end - 5; ++ticks) {
      tick();
      lowest = form->lblScroll->y();
      EXPECT_EQ(form->timTimer->interval(), 100);
    }
    EXPECT_EQ(lowest, end + 5);
    tick();
    EXPECT_EQ(form->lblScroll->y(), 0);
    EXPECT_EQ(form->timTimer->interval(), 5000);
    tick();
    EXPECT_EQ(form->lblScroll->y(), 0);
  }
  dialogs.answers = {Dialogs::Answer::Ok};
  form->lblSysInfo->click();
  EXPECT_EQ(dialogs.messages.value(0),
            QStringLiteral("tagwright|Systeminformationen sind momentan nicht verfügbar|0"));
  QTest::mouseClick(form->lblOk, Qt::LeftButton);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInfo")), nullptr);
}

TEST_F(SmallFormsTest, LoadingTheLanguageChoiceChoosesEnglish) {
  mPublic::iLanguage = 2;
  EXPECT_TRUE(Default<frmSelectLanguage>()->IsUnloaded());
  EXPECT_EQ(mPublic::iLanguage, 1);
  frmSelectLanguage choice;
  choice.cmdLanguage_1->click();
  EXPECT_EQ(mPublic::iLanguage, 2);
  EXPECT_TRUE(choice.IsUnloaded());
  mPublic::iLanguage = 1;
}

TEST_F(SmallFormsTest, LanguageTextsAreShownAndStored) {
  const QString path = mFolders::InProgramFolder(QStringLiteral("lang.dat"));
  QFile::remove(path);
  auto *form = Default<frmLanguage>();
  EXPECT_EQ(form->windowTitle(),
            QStringLiteral("Spracheinstellungen/ Lanuage Settings     ITEM: 1/0"));
  QTest::keyClicks(form->txtDeutsch, QStringLiteral("eins"));
  QTest::keyClick(form->txtDeutsch, Qt::Key_Return);
  QTest::keyClicks(form->txtDeutsch, QStringLiteral("zwei"));
  form->txtEnglish->SetText(QStringLiteral("one"));
  form->cmdNavigation_0->click();
  EXPECT_TRUE(form->windowTitle().endsWith(QStringLiteral("ITEM: 1/1")));
  const QByteArray bytes = FileBytes(path);
  EXPECT_EQ(bytes.size(), 4002);
  EXPECT_TRUE(bytes.startsWith("eins\r\nzwei "));
  QFile::remove(path);
}

}  // namespace
