#include "shared/FormsTest.h"

namespace {

using FormatStripTest = FormsTest;

TEST_F(FormatStripTest, ButtonsWriteAroundTheSelection) {
  main->picButtons->Press(2);  // no document: nothing to do
  RichTextBox &text = *Open(QStringLiteral("page.html"), "abc")->txthtml;
  main->cboFontStyle->clear();
  main->cboFontStyle->addItem(QStringLiteral("Serif"));
  main->picColor->setPalette(QPalette(QColor(255, 10, 0)));
  const QString font = QStringLiteral("<font face=\"Serif,Helvetica\"><font color=\"#FFA000\">");
  struct Case {
    int button, size, length;
    QString after;
    qsizetype caret;
  };
  for (const auto &[button, size, length, after, caret] : {
           Case{2, 2, 0, QStringLiteral("<b></b>abc"), 3},
           {9, 2, 3, QStringLiteral("<p align=\"center\">abc</p>"), 25},
           {1, 2, 3, font + QStringLiteral("abc</font></font>&nbsp;"), font.size() + 23},
           {1, 6, 0,
            QStringLiteral("<font size=+4>") + font +
                QStringLiteral("</font></font></font>&nbsp;abc"),
            font.size() + 14},
       }) {
    main->cboFontsize->setCurrentIndex(size);
    text.SetSelStart(0);
    text.SetSelLength(length);
    QTest::mouseClick(main->picButtons, Qt::LeftButton, {},
                      main->picButtons->CellRect(button).center());
    EXPECT_EQ(text.Text(), after);
    EXPECT_EQ(text.SelStart(), caret) << qPrintable(after);
    EXPECT_EQ(text.SelLength(), 0);
    EXPECT_EQ(main->focusWidget(), &text);
    text.undo();
    EXPECT_EQ(text.Text(), QStringLiteral("abc")) << "one step takes it back";
  }
}

// The names of a dialog's controls that the Tab key reaches, in order.
QStringList TabOrder(const QWidget &dialog) {
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
  Open(QStringLiteral("page.html"), "");
  for (int button = 10; button <= 17; ++button) {
    for (int time = 1; time <= 2; ++time) {
      main->picButtons->Press(button);
      DoEvents();
      QWidget *dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr) << button;
      const QStringList order = TabOrder(*dialog);
      ASSERT_NE(dialog->focusWidget(), nullptr) << qPrintable(dialog->objectName());
      EXPECT_EQ(dialog->focusWidget()->objectName(), order.first());
      EXPECT_EQ(order.mid(order.size() - 2).join(u' '), QStringLiteral("cmdOk cmdCancel"))
          << qPrintable(dialog->objectName());
      auto *ok = dialog->findChild<QPushButton *>(QStringLiteral("cmdOk"));
      ok->setFocus();
      ok->click();
      DoEvents();
    }
  }
}

}  // namespace
