#include <QTabBar>
#include <set>

#include "assistants/AssistantTest.h"
#include "assistants/frmInsertFrame.h"

using Qt::StringLiterals::operator""_s;

class InsertFrameTest : public AssistantTest {
 protected:
  QRadioButton *Picture(int index) const {
    return form->findChild<QRadioButton *>(u"picFrame_%1"_s.arg(index));
  }
  // The labels and file boxes in sight, and the tabs.
  QString Rows() const {
    QStringList rows;
    static const QRegularExpression names(u"FrameSourceDescription_"_s);
    for (const QWidget *widget : form->findChildren<QWidget *>(names)) {
      if (widget->isVisible()) rows << widget->property("text").toString();
    }
    const QTabBar *tabs = form->tabFrameAttributes;
    for (int tab = 0; tab < tabs->count(); ++tab) rows << tabs->tabText(tab);
    return rows.join(u'|');
  }
  // The attributes of each frame, as they are generated.
  QString Attributes() {
    form->cmdOk->click();
    QStringList frames = text->Text().split(u"<FRAME "_s).sliced(1);
    for (QString &frame : frames) frame = frame.section(u'>', 0, 0).section(u'"', 4);
    return frames.join(u'\n');
  }

  frmInsertFrame *form = Show<frmInsertFrame>(main->mnuAssistantsInsertFrameset);
};

TEST_F(InsertFrameTest, TheLayoutGivesTheRowsAndTabsWithoutAJump) {
  EXPECT_EQ(Rows(), u"Upper Frame|UpperFrame.html|Bottom Frame|BottomFrame.html|Upper|Bottom");
  const QSize size = form->size();
  Picture(24)->click();
  EXPECT_EQ(Rows(),
            u"Upper Left Frame|UpperLeftFrame.html|Upper Right Frame|UpperRightFrame.html|"
            u"Bottom Left Frame|BottomLeftFrame.html|Bottom Right Frame|BottomRightFrame.html|"
            u"Left|Right|Bottom Left|Bottom Right");
  Picture(24)->setFocus();
  QTest::keyClick(Picture(24), Qt::Key_Right);
  EXPECT_EQ(Rows(), u"Main Frame|MainFrame.html|Main Frame");
  QTest::mouseClick(Picture(12), Qt::LeftButton);
  DoEvents();
  EXPECT_EQ(form->findChild<QFrame *>(u"shpSelection"_s)->geometry(), Picture(12)->geometry());
  EXPECT_EQ(form->size(), size);
}

TEST_F(InsertFrameTest, AttributesAreStoredWhenTheTabTurns) {
  QTabBar *tabs = form->tabFrameAttributes;
  form->optScrolling_2->setChecked(true);
  form->optResize_1->setChecked(true);
  form->chkFrameBorder->setChecked(true);
  form->txtMarginwidth->setText(u" 2.5 "_s);
  form->txtMarginheight->setText(u"7 pixels"_s);
  tabs->setCurrentIndex(1);
  form->txtMarginheight->setText(u"40000"_s);
  form->txtMarginwidth->setText(u"-3"_s);
  tabs->setCurrentIndex(0);
  tabs->setCurrentIndex(1);
  tabs->setCurrentIndex(0);
  form->txtMarginwidth->setText(u"99"_s);
  tabs->setCurrentIndex(0);
  EXPECT_EQ(Attributes(),
            u" scrolling=auto frameborder=0 marginwidth=2 marginheight=7 noresize\n"
            u" scrolling=yes frameborder=1 marginwidth=-3 marginheight=0");
}

TEST_F(InsertFrameTest, AnotherLayoutForgetsWhatWasStoredButNotWhatIsShown) {
  form->chkFrameBorder->setChecked(true);
  form->txtMarginwidth->setText(u"5"_s);
  form->tabFrameAttributes->setCurrentIndex(1);
  form->optScrolling_1->setChecked(true);
  Picture(25)->click();
  EXPECT_EQ(frameSourceTable[1].marginwidth, 5) << "layout 25 leaves the table alone";
  form->txtMarginwidth->setText(u"6"_s);
  Picture(1)->click();
  form->tabFrameAttributes->setCurrentIndex(2);
  EXPECT_EQ(Attributes().section(u'\n', 0, 1),
            u" scrolling=no frameborder=1 marginwidth=0 marginheight=0\n"
            u" scrolling=yes frameborder=1 marginwidth=0 marginheight=0");
}

TEST_F(InsertFrameTest, TheFilesAreWrittenAsTheyStand) {
  form->txtFrameSourceDescription_0->setText(u"  a \"%1\" <b>.html  "_s);
  QTest::keyClick(form, Qt::Key_Return);
  EXPECT_TRUE(text->Text().startsWith(u"one     <FRAMESET rows=\"20%, 80%\">\r\n"_s));
  EXPECT_TRUE(text->Text().contains(u" src=\"a \"%1\" <b>.html\" scrolling="_s));
}

TEST_F(InsertFrameTest, PicturesAreSharpAtAnyScale) {
  constexpr double scale = 1.25;
  QImage image(Picture(12)->size() * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  Picture(12)->render(&image);
  std::set<QRgb> colours;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    colours.insert(image.pixel(i % image.width(), i / image.width()));
  }
  EXPECT_LE(colours.size(), 3u) << "lines, frames and the ground";
}
