#include "assistants/AssistantTest.h"

using Qt::StringLiterals::operator""_s;

class FormatStripTest : public AssistantTest {};

TEST_F(FormatStripTest, ButtonsWriteAroundTheSelection) {
  const auto written = [this](int button) {
    Select();
    QTest::mouseClick(main->picButtons, Qt::LeftButton, {},
                      main->picButtons->CellRect(button).center());
    return text->Text().mid(4).chopped(6);
  };
  QString pairs, fonts;
  for (int button = 2; button <= 9; ++button) pairs += written(button);
  EXPECT_EQ(pairs,
            u"<b>two</b><i>two</i><u>two</u><strike>two</strike><p>two</p><p align=\"left\">two</p>"
            u"<p align=\"right\">two</p><p align=\"center\">two</p>");
  EXPECT_EQ(main->focusWidget(), text);
  main->cboFontStyle->clear();
  main->cboFontStyle->addItem(u"A %1"_s);
  main->picColor->setPalette(QPalette(QColor(255, 15, 16)));
  for (int size = 0; size < 7; ++size) {
    main->cboFontsize->setCurrentIndex(size);
    fonts += written(1).replace(
        u"<font face=\"A %1,Helvetica\"><font color=\"#FFF010\">two</font></font>"_s, u"*"_s);
  }
  EXPECT_EQ(fonts,
            u"<font size=-2>*</font>&nbsp;<font size=-1>*</font>&nbsp;*&nbsp;"
            u"<font size=+1>*</font>&nbsp;<font size=+2>*</font>&nbsp;"
            u"<font size=+3>*</font>&nbsp;<font size=+4>*</font>&nbsp;");
}

// The names of a dialog's controls that the Tab key reaches, in order.
static QStringList TabOrder(const QWidget &dialog) {
  QStringList names;
  for (QWidget *control = dialog.nextInFocusChain(); control != &dialog;
       control = control->nextInFocusChain()) {
    if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled() && control->isVisible()) {
      names << control->objectName();
    }
  }
  return names;
}

TEST_F(FormatStripTest, EachAssistantStartsAtItsFirstControlAndEndsWithItsButtons) {
  QString opened;
  for (int button = 10; button <= 17; ++button) {
    for (const char *end : {"cmdOk", "cmdCancel"}) {
      Select();
      main->picButtons->Press(button);
      DoEvents();
      QPointer<QWidget> dialog = QApplication::activeModalWidget();
      ASSERT_TRUE(dialog) << button;
      opened += dialog->objectName() + u' ';
      const QStringList order = TabOrder(*dialog);
      EXPECT_EQ(dialog->focusWidget()->objectName(), order.first());
      EXPECT_EQ(order.mid(order.size() - 2).join(u' '), u"cmdOk cmdCancel") << button;
      auto *ending = dialog->findChild<QPushButton *>(QLatin1String(end));
      ending->setFocus();
      ending->click();
      DoEvents();
      EXPECT_FALSE(dialog && dialog->isVisible()) << button;
    }
    EXPECT_EQ(text->Text(), u"one two three") << "after Cancel";
  }
  EXPECT_EQ(opened.replace(QRegularExpression(u"frmInsert(\\w+) frmInsert\\1 "_s), u"\\1 "_s),
            u"Link Image HorRule List List Table Frame frmMetaTags frmMetaTags ");
  Unload(*mEditors::Active());
  for (QAction *command : main->findChildren<QAction *>()) {
    if (command->objectName().startsWith(u"mnuAss"_s)) command->trigger();
  }
  for (int button = 1; button <= 17; ++button) main->picButtons->Press(button);
  DoEvents();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "without a document";
}
