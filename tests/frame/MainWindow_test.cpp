#include <QClipboard>
#include <QGuiApplication>

#include "shared/FormsTest.h"
#include "toolkit/twips.h"

using Qt::StringLiterals::operator""_s;

namespace {

struct MainWindowTest : FormsTest {
  MainWindowTest() { main->activateWindow(); }
};

TEST_F(MainWindowTest, EditCommandsWorkOnTheActiveDocumentByMenuAndStrip) {
  main->mnuEditPaste->trigger();  // where no document is
  RichTextBox *text = Open(u"a.html"_s, "one\r\ntwo")->txthtml;
  text->SetSelStart(2);
  text->SetSelLength(4);
  main->picLeft->Press(7);
  main->picLeft->Press(6);
  EXPECT_EQ(text->Text() + QGuiApplication::clipboard()->text(), u"onwoe\nt"_s);
  main->mnuEditPaste->trigger();
  EXPECT_EQ(text->Text(), u"one\r\ntwo"_s);
  main->mnuEditClearClipboard->trigger();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().isEmpty());
}

TEST_F(MainWindowTest, SizingButtonsWidenNarrowAndHideThePanel) {
  QWidget *panel = main->picRightWindows;
  const int width = panel->width(), area = main->mdiArea->width();
  main->cmdSizing_0->click();
  EXPECT_EQ(panel->width(), width + twips(1000));
  main->cmdSizing_1->click();
  main->cmdSizing_2->click();
  EXPECT_EQ(main->mdiArea->width(), area + width) << "the documents get the panel's room";
  EXPECT_FALSE(main->cmdSizing_0->isEnabled() || main->cmdSizing_1->isEnabled());
  main->cmdSizing_2->click();
  EXPECT_EQ(panel->width(), width);
  for (int press = 0; press < 40; ++press) main->cmdSizing_0->click();
  EXPECT_GE(main->mdiArea->width(), 150) << "the documents keep some room";
}

TEST_F(MainWindowTest, F6GoesRoundAndEscapeReturnsToTheText) {
  main->resize(1280, 800);
  RichTextBox *text = Open(u"a.html"_s, "x")->txthtml;
  text->setFocus();
  QList<QWidget *> round;
  do {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    round << QApplication::focusWidget();
  } while (round.last() != text && round.size() < 20);
  EXPECT_EQ(QSet<QWidget *>(round.begin(), round.end()).size(), 10) << "all but the tree behind";
  QTest::keyClick(text, Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(main->picTagDescription->hasFocus());
  for (QWidget *stop : round) {
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Escape);
    EXPECT_TRUE(text->hasFocus()) << qPrintable(stop->objectName());
  }
}

TEST_F(MainWindowTest, AMoveOverTheTextTakesTheMarkFromAStrip) {
  RichTextBox *text = Open(u"a.html"_s, "x")->txthtml;
  QTest::mouseMove(main->picJava, QPoint(5, 5));
  ASSERT_EQ(main->picJava->MarkedButton(), 1);
  for (const int place : {5, 9}) QTest::mouseMove(text->viewport(), QPoint(place, place));
  DoEvents();
  EXPECT_EQ(main->picJava->MarkedButton(), 0);
}

}  // namespace
