#include "assistants/frmInsertImage.h"
#include "shared/FormsTest.h"

namespace {

class InsertImageTest : public FormsTest {
 protected:
  InsertImageTest() {
    main->mnuAssistantsInsertImage->trigger();
    EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertImage")), nullptr) << "without a document";
    text = Open(QStringLiteral("page.html"), "one two three")->txthtml;
    text->SetSelStart(4);
    text->SetSelLength(3);
    main->mnuAssistantsInsertImage->trigger();
    form = Default<frmInsertImage>();
    EXPECT_TRUE(form->isVisible() && form->isModal());
    measures = {form->lblHeight,  form->txtHeight,          form->lblWidth,    form->txtWidth,
                form->lblAltText, form->txtAlternativeText, form->optBorder_0, form->optBorder_1};
    group = measures + QWidgetList{form->fraImageDimensions, form->optImageDimensions_0,
                                   form->optImageDimensions_1};
  }
  void Choose(const QString &path) {
    dialogs.files = {path};
    form->cmdSelectImage->click();
  }
  // A picture of 7 by 5.
  QString Png() const {
    const QString path = Path(QStringLiteral("a b.png"));
    QImage picture(7, 5, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(path));
    return path;
  }
  static bool AllEnabled(const QWidgetList &controls, bool enabled) {
    return std::all_of(controls.begin(), controls.end(),
                       [&](const QWidget *control) { return control->isEnabled() == enabled; });
  }
  // What stands in place of the selection once the form has closed.
  QString Generated() {
    form->cmdOk->click();
    EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertImage")), nullptr);
    const QString all = text->Text();
    EXPECT_TRUE(all.startsWith(QLatin1String("one ")) && all.endsWith(QLatin1String(" three")));
    EXPECT_EQ(text->SelStart(), all.size() - 6) << "the caret stands behind the tag";
    return all.mid(4, all.size() - 10);
  }

  RichTextBox *text;
  frmInsertImage *form;
  QWidgetList measures, group;
};

TEST_F(InsertImageTest, AFileIsShownMeasuredAndInserted) {
  EXPECT_TRUE(AllEnabled(group, false));
  dialogs.files = {std::nullopt};
  form->cmdSelectImage->click();
  EXPECT_TRUE(AllEnabled(group, false));
  EXPECT_EQ(form->optImageDimensions_0->text(), QStringLiteral("Normal Sized"));
  const QString path = Png();
  Choose(path);
  EXPECT_TRUE(AllEnabled(group, true));
  EXPECT_EQ(form->txtSelectImage->text(), path);
  EXPECT_EQ(form->picSelectedImage->pixmap().size(), QSize(7, 5));
  EXPECT_EQ(form->optImageDimensions_0->text(),
            QStringLiteral("Normal Sized  (Height: 5 Width: 7)"));
  Choose(Write(QStringLiteral("no.png"), "no picture"));
  EXPECT_EQ(form->picSelectedImage->pixmap().size(), QSize(7, 5));
  EXPECT_EQ(form->optImageDimensions_0->text(),
            QStringLiteral("Normal Sized  (Height: 5 Width: 7)"));
  EXPECT_EQ(Generated(), QStringLiteral("<img src=\"%1\" height=\"5\" width=\"7\" border=0>")
                             .arg(Path(QStringLiteral("no.png"))));
}

TEST_F(InsertImageTest, AnAddressHasTheMeasuresOfTheEmptyBoxOrThoseTyped) {
  const QSize empty = form->picSelectedImage->size();
  form->optImageSource_1->click();
  EXPECT_FALSE(form->cmdSelectImage->isEnabled());
  EXPECT_TRUE(AllEnabled(group, false));
  QTest::keyClicks(form->txtReferenceToURL, QStringLiteral(" "));
  EXPECT_TRUE(AllEnabled(group, false));
  QTest::keyClicks(form->txtReferenceToURL, QStringLiteral("x.gif"));
  EXPECT_TRUE(AllEnabled(group, true));
  EXPECT_EQ(Generated(), QStringLiteral("<img src=\"x.gif\" height=\"%1\" width=\"%2\" border=0>")
                             .arg(empty.height())
                             .arg(empty.width()));
  main->mnuAssistantsInsertImage->trigger();
  form = Default<frmInsertImage>();
  form->optImageSource_1->click();
  form->txtReferenceToURL->setText(QStringLiteral("y.gif"));
  form->optImageDimensions_1->click();
  form->optMeasurement_1->click();
  form->txtHeight->setText(QStringLiteral("50"));
  form->optBorder_1->click();
  form->txtBorderThick->setText(QStringLiteral("2"));
  form->txtAlternativeText->setText(QStringLiteral("y"));
  form->cmdOk->click();
  EXPECT_TRUE(text->Text().contains(
      QLatin1String(R"(<img src="y.gif" height="50%" width="0%" border=2 alt="y">)")));
}

TEST_F(InsertImageTest, ThePictureOwnSizeDisablesTextAndBorderToo) {
  Choose(Png());
  form->optImageDimensions_0->click();
  EXPECT_TRUE(AllEnabled(measures, false));
  EXPECT_TRUE(form->optMeasurement_1->isEnabled());
  form->activateWindow();
  DoEvents();
  form->optImageDimensions_0->setFocus();
  QTest::keyClick(form->optImageDimensions_0, Qt::Key_Down);
  EXPECT_TRUE(form->optImageDimensions_1->isChecked());
  EXPECT_TRUE(AllEnabled(measures, true));
  form->optImageSource_1->click();
  EXPECT_TRUE(AllEnabled(group, false)) << "there is no address yet";
  form->optImageSource_0->click();
  EXPECT_TRUE(form->cmdSelectImage->isEnabled());
  EXPECT_FALSE(form->txtReferenceToURL->isEnabled());
  EXPECT_TRUE(AllEnabled(group, false)) << "until a picture is chosen";
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_EQ(mForms::Find(QStringLiteral("frmInsertImage")), nullptr);
  EXPECT_EQ(text->Text(), QStringLiteral("one two three"));
}

}  // namespace
