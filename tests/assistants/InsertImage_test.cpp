#include "assistants/AssistantTest.h"
#include "assistants/frmInsertImage.h"

using Qt::StringLiterals::operator""_s;

class InsertImageTest : public AssistantTest {
 protected:
  // Whether the choice of dimensions, a measure, the text and the border are enabled.
  QString Enabled() const {
    QString enabled;
    for (const QWidget *control : QWidgetList{form->optImageDimensions_1, form->txtHeight,
                                              form->txtAlternativeText, form->optBorder_1}) {
      enabled += QString::number(control->isEnabled());
    }
    return enabled;
  }
  void Choose(const std::optional<QString> &path) {
    dialogs.files = {path};
    form->cmdSelectImage->click();
  }

  frmInsertImage *form = Show<frmInsertImage>(main->mnuAssistantsInsertImage);
};

TEST_F(InsertImageTest, AFileIsShownMeasuredAndInserted) {
  Choose(std::nullopt);
  EXPECT_EQ(Enabled(), u"0000");
  EXPECT_TRUE(QImage(7, 5, QImage::Format_Mono).save(Path(u"a b.png"_s)));
  Choose(Path(u"a b.png"_s));
  EXPECT_EQ(Enabled(), u"1111");
  Choose(Write(u"no.png"_s, "no picture"));
  EXPECT_EQ(form->optImageDimensions_0->text(), u"Normal Sized  (Height: 5 Width: 7)");
  form->optImageDimensions_0->click();
  EXPECT_EQ(Enabled(), u"1000") << "text and border go with the typed measures";
  form->optImageDimensions_1->click();
  EXPECT_EQ(Enabled(), u"1111");
  form->optImageDimensions_0->click();
  form->cmdOk->click();
  EXPECT_EQ(text->Text(), u"one <img src=\"%1\" height=\"5\" width=\"7\" border=0> three"_s.arg(
                              Path(u"no.png"_s)));
}

TEST_F(InsertImageTest, AnAddressHasTheMeasuresOfTheEmptyBoxOrThoseTyped) {
  const QSize empty = form->picSelectedImage->size();
  Choose(Path(u"gone.png"_s));
  form->optImageSource_1->click();
  form->optImageSource_0->click();
  EXPECT_EQ(Enabled(), u"0000") << "until a picture is chosen anew";
  EXPECT_TRUE(form->cmdSelectImage->isEnabled() && !form->txtReferenceToURL->isEnabled());
  form->optImageSource_1->click();
  EXPECT_TRUE(!form->cmdSelectImage->isEnabled() && form->txtReferenceToURL->isEnabled());
  form->txtReferenceToURL->setText(u" "_s);
  EXPECT_EQ(Enabled(), u"0000");
  form->txtReferenceToURL->setText(u"x.gif"_s);
  EXPECT_EQ(Enabled(), u"1111");
  form->cmdOk->click();
  EXPECT_EQ(text->Text(), u"one <img src=\"x.gif\" height=\"%1\" width=\"%2\" border=0> three"_s
                              .arg(empty.height())
                              .arg(empty.width()));
  Select();
  form = Show<frmInsertImage>(main->mnuAssistantsInsertImage);
  form->optImageSource_1->click();
  form->txtReferenceToURL->setText(u"y.gif"_s);
  form->optImageDimensions_1->click();
  form->optMeasurement_1->click();
  form->txtHeight->setText(u"50"_s);
  form->txtWidth->setText(u"60"_s);
  form->optBorder_1->click();
  form->txtBorderThick->setText(u"2"_s);
  form->txtAlternativeText->setText(u"y"_s);
  form->cmdOk->click();
  EXPECT_EQ(text->Text(),
            uR"(one <img src="y.gif" height="50%" width="60%" border=2 alt="y"> three)");
}
