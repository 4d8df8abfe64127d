#include "shared/StencilFormsTest.h"
#include "stencils/QuickBar.h"
#include "stencils/frmQuickBar.h"
#include "stencils/frmQuickbarEditor.h"

using Qt::StringLiterals::operator""_s;

class QuickBarFormsTest : public StencilFormsTest {
 protected:
  QuickBarFormsTest() {
    PutStencils(stencils, Words("aaaa aabb aacc"));
    StencilFile(stencils).Append(Stencil(u"aadd"_s, u"section"_s));
  }
  // Anew over a file of these keys.
  void Put(const char *keys) {
    PutQuickBar(bar, Words(keys));
    mForms::UnloadDefaults({"frmQuickBar", "frmQuickbarEditor"});
  }
};

TEST_F(QuickBarFormsTest, InsertReplacesTheSelectionAndKeepsTheFocus) {
  const std::tuple<const char *, const char16_t *, const char16_t *> cases[] = {
      {"aabb aaaa", u"", u"one <aabb> three"},  // the first of several is selected
      {"aabb", u"", u"one two three"},          // a single one is not
      {"aadd aaaa", u"section", u"one  three"},
      {"gone aaaa aabb", u"Haaaa", u"one two three"},  // positions count the entry without an item
      {"gone aaaa aabb", u"Haabb", u"one <aaaa> three"}};
  RichTextBox &text = *Open(u"page.html"_s, "one two three")->txthtml;
  for (const auto &[keys, item, left] : cases) {
    Put(keys);
    frmQuickBar::Open();
    auto *form = Default<frmQuickBar>();
    DoEvents();
    text.SetText(u"one two three"_s);
    text.SetSelStart(4);
    text.SetSelLength(3);
    form->cboQuickbar->setFocus();
    form->cboQuickbar->setCurrentText(QString::fromUtf16(item));
    form->cmdPaste->click();
    EXPECT_EQ(text.Text(), left) << keys;
    EXPECT_EQ(QApplication::focusWidget(), form->cboQuickbar);
  }
}

TEST_F(QuickBarFormsTest, TheEditorDeletesByPosition) {
  const std::tuple<const char *, int, const char *, int> cases[] = {
      {"aaaa aabb aacc", 1, "aaaa aacc", 1},        {"aaaa aabb aacc", 2, "aaaa aabb", -1},
      {"aaaa aabb aacc", -1, "aaaa aabb aacc", -1}, {"aaaa aabb aaaa", 0, "aabb", 0},
      {"gone aaaa aabb", 0, "aaaa aabb", 0},        {"aabb", 0, "", -1}};
  for (const auto &[keys, item, left, selected] : cases) {
    Put(keys);
    auto *form = Default<frmQuickbarEditor>();
    form->show();
    DoEvents();
    // With the focus the list makes its first item current, which selects nothing.
    form->lstQuickBarEntries->setFocus();
    if (item >= 0) form->lstQuickBarEntries->setCurrentRow(item);
    form->cmdDeleteThisEntry->setFocus();
    form->cmdDeleteThisEntry->click();
    EXPECT_EQ(QuickBar::Keys(bar), Words(left)) << keys;
    const auto rows = form->lstQuickBarEntries->selectionModel()->selectedRows();
    EXPECT_EQ(rows.isEmpty() ? -1 : rows.constFirst().row(), selected) << keys;
    EXPECT_EQ(form->focusWidget(), form->cmdDeleteThisEntry) << keys;
  }
  Default<frmQuickbarEditor>()->cmdDeleteThisEntry->click();
  EXPECT_FALSE(QFile::exists(bar)) << "an empty file goes";
}
