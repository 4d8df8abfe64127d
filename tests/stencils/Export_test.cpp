#include <QTimer>

#include "shared/Limits.h"
#include "shared/StencilFormsTest.h"
#include "stencils/frmExport.h"

using Qt::StringLiterals::operator""_s;

class ExportTest : public StencilFormsTest {
 protected:
  ExportTest() {
    PutStencils(stencils, Words("aaaa aabb"));
    form->show();
    dialogs.files = {out + u"  "_s};
    form->cmdSelectPath->click();
    dialogs.answers = {Dialogs::Answer::Ok};
  }
  // The two stencils as rows.
  static QByteArray Rows(const QByteArray &s) {
    const QByteArray row = QByteArray("Haaaa").leftJustified(100) + s + "<aaaa>" + s + "cap Haaaa" +
                           s + "help Haaaa" + s + "\r\n\r\n";
    return row + QByteArray(row).replace("aaaa", "aabb");
  }

  const QString out = Path(u"out.txt"_s);
  frmExport *form = Default<frmExport>();
};

TEST_F(ExportTest, RowsHaveTheSeparatorAndAreAppended) {
  form->txtSeparator->setText(u" |\u20AC\u2192 "_s);
  form->cmdOk->click();
  for (QRadioButton *option : {form->optSeparator_0, form->optSeparator_2, form->optSeparator_3}) {
    option->setChecked(true);
    form->cmdOk->click();
  }
  EXPECT_EQ(FileBytes(out), Rows("\t") + Rows(",\t") + Rows("\r\n") + Rows(" |\x80? "));
}

TEST_F(ExportTest, WithoutAColumnOrAStencilThereIsNoFile) {
  form->chkWhichDataColumns_3->setChecked(false);
  form->cmdOk->click();
  EXPECT_EQ(dialogs.messages.value(0), u"Export Alert|You must select one Column at least!|0");
  form->chkWhichDataColumns_3->setChecked(true);
  QFile::remove(stencils);
  form->cmdOk->click();
  EXPECT_FALSE(QFile::exists(out));
}

TEST_F(ExportTest, AFileThatRefusesARowIsToldOnceAndLeavesTheButtonDisabled) {
  {
    const FullDisk disk(150);
    form->cmdOk->click();
  }
  EXPECT_EQ(dialogs.messages.join(u' '), u"tagwright|%1\nFile too large|0"_s.arg(out));
  EXPECT_FALSE(form->cmdOk->isEnabled());
  EXPECT_EQ(FileBytes(out), Rows("\t").left(150));
}

TEST_F(ExportTest, ClosingEndsTheExport) {
  QTimer::singleShot(0, form, [this] { form->cmdCancel->click(); });
  form->cmdOk->click();
  EXPECT_FALSE(QFile::exists(out));
  EXPECT_EQ(mForms::Find(u"frmExport"_s), nullptr);
}

TEST_F(ExportTest, ThePathIsTheDialogsLastNameAndStretchesNothing) {
  const QSize size = form->sizeHint();
  dialogs.files = {u"/tmp/<b>&\n"_s + QString(400, u'x'), std::nullopt};
  form->cmdSelectPath->click();
  form->cmdSelectPath->click();
  EXPECT_TRUE(form->lblPath->text().startsWith(u"/tmp/<b>&\nx"_s)) << "also after Cancel";
  EXPECT_TRUE(dialogs.requests.last().mayBeNew);
  EXPECT_EQ(form->sizeHint(), size);
  form->lblPath->clear();
  form->cmdOk->click();
  EXPECT_EQ(dialogs.messages.value(0), u"Export Information|You must select an output path!|0");
}
