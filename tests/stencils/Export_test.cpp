#include <QFileDialog>
#include <QTimer>

#include "shared/Limits.h"
#include "shared/StencilFormsTest.h"
#include "stencils/frmExport.h"

namespace {

class ExportTest : public StencilFormsTest {
 protected:
  ExportTest() {
    PutStencils(stencils, Words("aaaa aabb"));
    form->show();
  }
  void Choose(const std::optional<QString> &path) {
    dialogs.files = {path};
    form->cmdSelectPath->click();
  }
  // The two stencils as rows.
  static QByteArray Rows(const QByteArray &s) {
    return QByteArray("Haaaa").leftJustified(100) + s + "<aaaa>" + s + "cap Haaaa" + s +
           "help Haaaa" + s + "\r\n\r\n" + QByteArray("Haabb").leftJustified(100) + s + "<aabb>" +
           s + "cap Haabb" + s + "help Haabb" + s + "\r\n\r\n";
  }

  frmExport *form = Default<frmExport>();
  const QString out = Path(QStringLiteral("out.txt"));
};

TEST_F(ExportTest, RowsHaveTheSeparatorAndAreAppended) {
  Choose(out);
  form->cmdOk->click();
  form->cmdOk->click();
  EXPECT_EQ(FileBytes(out), Rows("\t") + Rows("\t"));
  struct Case {
    QRadioButton *option;
    const char16_t *characters;
    QByteArray separator;
  };
  for (const auto &[option, characters, separator] : {
           Case{form->optSeparator_0, u";", ",\t"},
           {form->optSeparator_1, u";", "\t"},
           {form->optSeparator_2, u";", "\r\n"},
           {form->optSeparator_3, u" |\u20AC\u2192 ", " |\x80? "},
           {form->optSeparator_3, u"", ""},
       }) {
    QFile::remove(out);
    option->setChecked(true);
    form->txtSeparator->setText(QString::fromUtf16(characters));
    form->cmdOk->click();
    EXPECT_EQ(FileBytes(out), Rows(separator));
    EXPECT_TRUE(form->cmdOk->isEnabled());
  }
  QTest::keyClicks(form->txtSeparator, QStringLiteral("123456789"));
  EXPECT_EQ(form->txtSeparator->text(), QStringLiteral("12345678"));
}

TEST_F(ExportTest, WithoutAPathAColumnOrAStencilThereIsNoFile) {
  dialogs.answers = {Dialogs::Answer::Ok};
  form->cmdOk->click();
  EXPECT_EQ(dialogs.messages.takeLast(),
            QStringLiteral("Export Information|You must select an output path!|0"));
  EXPECT_EQ(form->focusWidget(), form->cmdSelectPath);
  Choose(out);
  for (QCheckBox *box : {form->chkWhichDataColumns_0, form->chkWhichDataColumns_1,
                         form->chkWhichDataColumns_2, form->chkWhichDataColumns_3}) {
    box->setChecked(false);
    dialogs.answers = {Dialogs::Answer::Ok};
    form->cmdOk->click();
    EXPECT_EQ(dialogs.messages.takeLast(),
              QStringLiteral("Export Alert|You must select one Column at least!|0"));
    EXPECT_EQ(form->focusWidget(), form->chkWhichDataColumns_0);
    box->setChecked(true);
  }
  PutFile(stencils, {});
  form->cmdOk->click();
  QFile::remove(stencils);
  form->cmdOk->click();
  EXPECT_FALSE(QFile::exists(out)) << "an empty or missing library makes none either";
  EXPECT_TRUE(form->cmdOk->isEnabled());
}

TEST_F(ExportTest, AFileThatRefusesARowIsToldOnceAndLeavesTheButtonDisabled) {
  const QString missing = Path(QStringLiteral("none/out.txt"));
  Choose(missing);
  dialogs.answers = {Dialogs::Answer::Ok};
  form->cmdOk->click();
  EXPECT_EQ(dialogs.messages,
            QStringList{QStringLiteral("tagwright|%1\nNo such file or directory|0").arg(missing)});
  EXPECT_FALSE(form->cmdOk->isEnabled());
  Unload(*form);
  form = Default<frmExport>();
  Choose(out);
  dialogs.answers = {Dialogs::Answer::Ok};
  {
    const FullDisk disk(150);
    form->cmdOk->click();
  }
  EXPECT_EQ(dialogs.messages.last(), QStringLiteral("tagwright|%1\nFile too large|0").arg(out));
  EXPECT_EQ(FileBytes(out), Rows("\t").left(150));
}

TEST_F(ExportTest, ClosingEndsTheExport) {
  Choose(out);
  QTimer::singleShot(0, form, [this] { form->cmdCancel->click(); });
  form->cmdOk->click();
  EXPECT_FALSE(QFile::exists(out));
  EXPECT_EQ(mForms::Find(QStringLiteral("frmExport")), nullptr);
}

TEST_F(ExportTest, ThePathIsTheDialogsLastNameAndStretchesNothing) {
  DoEvents();
  const QSize size = form->size();
  Choose(std::nullopt);
  EXPECT_EQ(form->lblPath->text(), QString());
  const QString path = QStringLiteral("/tmp/<b>&\n") + QString(400, u'x');
  Choose(path + QStringLiteral("  "));
  EXPECT_EQ(form->lblPath->text(), path);
  Choose(std::nullopt);
  EXPECT_EQ(form->lblPath->text(), path) << "Cancel hands the last name back";
  EXPECT_TRUE(dialogs.requests.last().mayBeNew);
  DoEvents();
  EXPECT_EQ(form->size(), size);
}

TEST_F(ExportTest, TheRealDialogTakesANewName) {
  Dialogs::Set(nullptr);
  QTimer::singleShot(0, form, [] {
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    QTest::keyClicks(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                     QStringLiteral("new.txt"));
    QTest::keyClick(dialog, Qt::Key_Return);
    if (dialog->isVisible())
      dialog->reject();  // so that a refusal fails the test instead of holding it
  });
  form->cdgExportPath.FileName = Path(QStringLiteral("x"));
  form->cmdSelectPath->click();
  EXPECT_EQ(QFileInfo(form->lblPath->text()).fileName(), QStringLiteral("new.txt"));
}

}  // namespace
