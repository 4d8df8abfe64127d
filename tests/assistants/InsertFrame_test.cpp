#include <QTabBar>
#include <set>

#include "assistants/frmInsertFrame.h"
#include "shared/FormsTest.h"

namespace {

class InsertFrameTest : public FormsTest {
 protected:
  InsertFrameTest() {
    text = Open(QStringLiteral("page.html"), "one two")->txthtml;
    OpenDialog();
  }
  void OpenDialog() {
    main->mnuAssistantsInsertFrameset->trigger();
    form = static_cast<frmInsertFrame *>(mForms::Find(QStringLiteral("frmInsertFrame")));
    ASSERT_NE(form, nullptr);
    DoEvents();
  }
  QRadioButton *Picture(int index) const {
    return form->findChild<QRadioButton *>(QStringLiteral("picFrame_%1").arg(index));
  }
  // The file boxes and labels in sight, and the tabs.
  QStringList Rows() const {
    QStringList rows;
    for (int slot = 0; slot < 5; ++slot) {
      const auto *label =
          form->findChild<QLabel *>(QStringLiteral("lblFrameSourceDescription_%1").arg(slot));
      const auto *box =
          form->findChild<QLineEdit *>(QStringLiteral("txtFrameSourceDescription_%1").arg(slot));
      EXPECT_EQ(label->isVisible(), box->isVisible());
      if (box->isVisible()) rows << label->text() + u'|' + box->text();
    }
    QStringList tabs;
    for (int tab = 0; tab < form->tabFrameAttributes->count(); ++tab) {
      tabs << form->tabFrameAttributes->tabText(tab);
    }
    return rows << tabs.join(u'|');
  }
  // Of each line that has one.
  QString Attributes() {
    form->cmdOk->click();
    QStringList attributes;
    for (const QString &line : text->Text().split(QStringLiteral("\r\n"))) {
      if (line.contains(QStringLiteral("<FRAME "))) {
        attributes << line.section(u'"', 4).trimmed();
      }
    }
    return attributes.join(u'\n');
  }

  RichTextBox *text;
  frmInsertFrame *form = nullptr;
};

TEST_F(InsertFrameTest, TheLayoutGivesTheRowsAndTabsWithoutAJump) {
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("Upper Frame|UpperFrame.html"),
                                 QStringLiteral("Bottom Frame|BottomFrame.html"),
                                 QStringLiteral("Upper|Bottom")}));
  const QSize size = form->size();
  Picture(24)->click();
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("Upper Left Frame|UpperLeftFrame.html"),
                                 QStringLiteral("Upper Right Frame|UpperRightFrame.html"),
                                 QStringLiteral("Bottom Left Frame|BottomLeftFrame.html"),
                                 QStringLiteral("Bottom Right Frame|BottomRightFrame.html"),
                                 QStringLiteral("Left|Right|Bottom Left|Bottom Right")}));
  Picture(24)->setFocus();
  QTest::keyClick(Picture(24), Qt::Key_Right);
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("Main Frame|MainFrame.html"),
                                 QStringLiteral("Main Frame")}));
  EXPECT_EQ(frameSourceTable.size(), 5u) << "as the layout before left it";
  QTest::mouseClick(Picture(12), Qt::LeftButton);
  EXPECT_EQ(Rows().size(), 6);
  DoEvents();
  const auto *outline = form->findChild<QFrame *>(QStringLiteral("shpSelection"));
  EXPECT_EQ(outline->geometry(), Picture(12)->geometry());
  EXPECT_EQ(form->size(), size);
}

TEST_F(InsertFrameTest, AttributesAreStoredWhenTheTabTurns) {
  form->optScrolling_2->setChecked(true);
  form->optResize_1->setChecked(true);
  form->chkFrameBorder->setChecked(true);
  form->txtMarginwidth->setText(QStringLiteral(" 2.5 "));
  form->txtMarginheight->setText(QStringLiteral("7 pixels"));
  QTest::mouseClick(form->tabFrameAttributes, Qt::LeftButton, {},
                    form->tabFrameAttributes->tabRect(1).center());
  EXPECT_TRUE(form->optScrolling_0->isChecked() && form->optResize_0->isChecked());
  EXPECT_FALSE(form->chkFrameBorder->isChecked());
  EXPECT_EQ(form->txtMarginwidth->text(), QStringLiteral("0"));
  form->chkFrameBorder->setChecked(true);
  form->txtMarginheight->setText(QStringLiteral("40000"));
  form->txtMarginwidth->setText(QStringLiteral("-3"));
  form->tabFrameAttributes->setCurrentIndex(0);
  EXPECT_TRUE(form->optScrolling_2->isChecked() && form->optResize_1->isChecked());
  EXPECT_EQ(form->txtMarginwidth->text(), QStringLiteral("2"));
  EXPECT_EQ(form->txtMarginheight->text(), QStringLiteral("7"));
  form->txtMarginwidth->setText(QStringLiteral("99"));
  QTest::mouseClick(form->tabFrameAttributes, Qt::LeftButton, {},
                    form->tabFrameAttributes->tabRect(0).center());
  EXPECT_EQ(Attributes(),
            QStringLiteral("scrolling=auto frameborder=0 marginwidth=2 marginheight=7 noresize>\n"
                           "scrolling=yes frameborder=0 marginwidth=-3 marginheight=0>"));
  EXPECT_EQ(frameSourceTable[1].marginheight, 7) << "outlives the dialog";
  OpenDialog();
  EXPECT_EQ(frameSourceTable[1].marginheight, 0) << "until it opens again";
}

TEST_F(InsertFrameTest, AnotherLayoutForgetsWhatWasStoredButNotWhatIsShown) {
  form->chkFrameBorder->setChecked(true);
  form->txtMarginwidth->setText(QStringLiteral("5"));
  form->tabFrameAttributes->setCurrentIndex(1);
  form->optScrolling_1->setChecked(true);
  form->txtMarginwidth->setText(QStringLiteral("6"));
  Picture(25)->click();
  EXPECT_EQ(form->txtMarginwidth->text(), QStringLiteral("0"));
  EXPECT_EQ(frameSourceTable[1].marginwidth, 5) << "layout 25 leaves the table alone";
  Picture(1)->click();
  EXPECT_TRUE(form->optScrolling_1->isChecked());
  form->tabFrameAttributes->setCurrentIndex(2);
  EXPECT_EQ(Attributes().section(u'\n', 0, 1),
            QStringLiteral("scrolling=no frameborder=1 marginwidth=0 marginheight=0>\n"
                           "scrolling=yes frameborder=1 marginwidth=0 marginheight=0>"));
}

TEST_F(InsertFrameTest, GenerateReplacesTheSelectionAlsoByNothing) {
  text->SetSelStart(4);
  text->SetSelLength(3);
  form->txtFrameSourceDescription_0->setText(QStringLiteral("  a \"%1\" <b>.html  "));
  QTest::keyClick(form, Qt::Key_Return);
  EXPECT_TRUE(text->Text().startsWith(QStringLiteral("one     <FRAMESET rows=\"20%, 80%\">\r\n")));
  EXPECT_TRUE(text->Text().endsWith(QStringLiteral("    </NOFRAMES>")));
  EXPECT_TRUE(text->Text().contains(QStringLiteral(" src=\"a \"%1\" <b>.html\" scrolling=")));
  EXPECT_EQ(text->SelStart(), text->Text().size());
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertFrame")), nullptr);
  text->SetText(QStringLiteral("one two"));
  for (const int index : {2, 3, 11}) {
    OpenDialog();
    Picture(index)->click();
    text->SetSelStart(text->Text().size() - 1);
    text->SetSelLength(1);
    form->cmdOk->click();
  }
  EXPECT_EQ(text->Text(), QStringLiteral("one "));
  OpenDialog();
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_EQ(text->Text(), QStringLiteral("one "));
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertFrame")), nullptr);
}

TEST_F(InsertFrameTest, PicturesAreSharpAtAnyScale) {
  for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
    QImage image(Picture(12)->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    Picture(12)->render(&image);
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
    }
    EXPECT_LE(colours.size(), 3u) << "lines, frames and the ground, at " << scale;
  }
}

}  // namespace
