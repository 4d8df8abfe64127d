#include <QClipboard>
#include <QGuiApplication>

#include "shared/FormsTest.h"
#include "toolkit/twips.h"

namespace {

class MainWindowTest : public FormsTest {
 protected:
  MainWindowTest() {
    main->resize(1280, 800);
    main->activateWindow();
    DoEvents();
  }
};

TEST_F(MainWindowTest, EditCommandsWorkOnTheActiveDocumentByMenuAndStrip) {
  QClipboard &clipboard = *QGuiApplication::clipboard();
  clipboard.setText(QStringLiteral("kept"));
  main->mnuEditCut->trigger();
  main->mnuEditPaste->trigger();
  EXPECT_EQ(clipboard.text(), QStringLiteral("kept"));
  RichTextBox *text = Open(QStringLiteral("a.html"), "one\r\ntwo")->txthtml;
  text->SetSelStart(2);
  text->SetSelLength(4);
  main->picLeft->setFocus();
  main->picLeft->Press(7);
  EXPECT_EQ(clipboard.text(), QStringLiteral("e\nt"));
  main->picLeft->Press(6);
  EXPECT_EQ(text->Text(), QStringLiteral("onwo"));
  EXPECT_TRUE(text->hasFocus());
  main->mnuEditPaste->trigger();
  EXPECT_EQ(text->Text(), QStringLiteral("one\r\ntwo"));
  main->mnuEditSelectAll->trigger();
  EXPECT_EQ(text->SelLength(), 0);
  main->mnuEditClearClipboard->trigger();
  EXPECT_TRUE(clipboard.text().isEmpty());
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
}

TEST_F(MainWindowTest, SizingButtonsWidenNarrowAndHideThePanel) {
  QWidget *panel = main->picRightWindows;
  const int width = panel->width();
  main->cmdSizing_0->click();
  EXPECT_EQ(panel->width(), width + twips(1000));
  main->cmdSizing_1->click();
  EXPECT_EQ(panel->width(), width);
  const int area = main->mdiArea->width();
  main->cmdSizing_2->click();
  EXPECT_FALSE(panel->isVisible());
  EXPECT_EQ(main->mdiArea->width(), area + width) << "the documents get the panel's room";
  EXPECT_FALSE(main->cmdSizing_0->isEnabled() || main->cmdSizing_1->isEnabled());
  EXPECT_EQ(main->cmdSizing_2->text(), QStringLiteral("6"));
  EXPECT_TRUE(main->rect().contains(
      QRect(main->cmdSizing_2->mapTo(main.data(), QPoint()), main->cmdSizing_2->size())));
  main->cmdSizing_2->click();
  EXPECT_TRUE(panel->isVisible() && main->cmdSizing_0->isEnabled());
  EXPECT_EQ(panel->width(), width);
  for (int press = 0; press < 40; ++press) main->cmdSizing_0->click();
  EXPECT_GE(main->mdiArea->width(), 150) << "the documents keep some room";
  for (int press = 0; press < 40; ++press) main->cmdSizing_1->click();
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(main->cmdTagDescriptionLarge->x(), panel->width() - 49);
}

TEST_F(MainWindowTest, TheTitleOfThePartInUseIsMarked) {
  const auto marked = [this](QLabel *title) {
    return title->backgroundRole() == QPalette::Highlight;
  };
  main->trwOpenFiles->setFocus();
  EXPECT_TRUE(marked(main->lblWindowTitelOpenFiles));
  main->trwStencils->setFocus();
  EXPECT_TRUE(marked(main->lblWindowTitelStencilWindow));
  EXPECT_FALSE(marked(main->lblWindowTitelOpenFiles));
  main->cboFontStyle->setFocus();
  EXPECT_FALSE(marked(main->lblWindowTitelStencilWindow));
  QTest::mouseClick(main->lblWindowTitelTagDescription, Qt::LeftButton);
  EXPECT_TRUE(marked(main->lblWindowTitelTagDescription));
}

TEST_F(MainWindowTest, F6GoesRoundAndEscapeReturnsToTheText) {
  RichTextBox *text = Open(QStringLiteral("a.html"), "x")->txthtml;
  text->setFocus();
  QList<QWidget *> round;
  do {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    round << QApplication::focusWidget();
  } while (round.last() != text && round.size() < 20);
  EXPECT_EQ(round,
            (QList<QWidget *>{main->picButtons, main->picHtmlTextOptions, main->picLeft,
                              main->picJava, main->picRight, main->picBottom, main->trwStencils,
                              main->trwOpenFiles, main->picTagDescription, text}));
  QTest::keyClick(text, Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(main->picTagDescription->hasFocus());
  for (QWidget *stop : round) {
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Escape);
    EXPECT_TRUE(text->hasFocus()) << qPrintable(stop->objectName());
  }
}

TEST_F(MainWindowTest, AMoveOverTheTextTakesTheMarkFromAStrip) {
  RichTextBox *text = Open(QStringLiteral("a.html"), "x")->txthtml;
  QTest::mouseMove(main->picJava, QPoint(5, 5));
  ASSERT_EQ(main->picJava->MarkedButton(), 1);
  QTest::mouseMove(text->viewport(), QPoint(5, 5));
  QTest::mouseMove(text->viewport(), QPoint(9, 9));
  DoEvents();
  EXPECT_EQ(main->picJava->MarkedButton(), 0);
}

}  // namespace
