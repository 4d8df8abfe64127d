#include <QTimer>

#include "shared/StencilFormsTest.h"
#include "stencils/QuickBar.h"
#include "stencils/frmQuickBar.h"
#include "stencils/frmQuickbarEditor.h"

namespace {

class QuickBarFormsTest : public StencilFormsTest {
 protected:
  QuickBarFormsTest() {
    PutStencils(stencils, Words("aaaa aabb aacc"));
    StencilFile(stencils).Append(Stencil(QStringLiteral("aadd"), QStringLiteral("section")));
  }
  // The quick bar, opened over a file of these keys.
  frmQuickBar *OpenOver(const char *keys) {
    PutQuickBar(bar, Words(keys));
    mForms::UnloadDefaults({"frmQuickBar"});
    frmQuickBar::Open();
    DoEvents();
    return Default<frmQuickBar>();
  }
};

TEST_F(QuickBarFormsTest, TheFirstOfSeveralIsSelectedASingleOneIsNot) {
  struct Case {
    const char *keys;
    int items, selected;
  };
  for (const auto &[keys, items, selected] :
       {Case{"aabb aaaa", 2, 0}, {"aabb", 1, -1}, {"gone aabb", 1, -1}, {"", 0, -1}}) {
    const frmQuickBar *form = OpenOver(keys);
    EXPECT_EQ(form->cboQuickbar->count(), items) << keys;
    EXPECT_EQ(form->cboQuickbar->currentIndex(), selected) << keys;
  }
}

TEST_F(QuickBarFormsTest, InsertReplacesTheSelectionAndKeepsTheFocus) {
  OpenOver("aabb aaaa")->cmdPaste->click();  // no document: nothing to do
  RichTextBox &text = *Open(QStringLiteral("page.html"), "one two three")->txthtml;
  struct Case {
    const char *keys;
    int item;
    const char *left;
  };
  for (const auto &[keys, item, left] : {
           Case{"aabb aaaa", 0, "one <aabb> three"},
           {"aabb aaaa", 1, "one <aaaa> three"},
           {"aabb aaaa", -1, "one two three"},
           {"aadd aaaa", 0, "one  three"},
           {"gone aaaa aabb", 0, "one two three"},  // positions count the entry without an item
           {"gone aaaa aabb", 1, "one <aaaa> three"},
       }) {
    frmQuickBar *form = OpenOver(keys);
    text.SetSelStart(4);
    text.SetSelLength(3);
    form->cboQuickbar->setFocus();
    form->cboQuickbar->setCurrentIndex(item);
    form->cmdPaste->click();
    EXPECT_EQ(text.Text(), QLatin1String(left)) << keys;
    EXPECT_EQ(QApplication::focusWidget(), form->cboQuickbar) << keys;
    if (text.document()->isUndoAvailable()) text.undo();
    EXPECT_EQ(text.Text(), QStringLiteral("one two three")) << "one step takes it back";
  }
}

TEST_F(QuickBarFormsTest, TheFontFollowsThePreferences) {
  mPublic::recPreferences.UseOtherAppProperties = true;
  mPublic::recPreferences.AppFontSize = 3;
  ASSERT_TRUE(mPublic::WritePreferences());
  EXPECT_EQ(OpenOver("")->cboQuickbar->font().pointSize(), 14);
  EXPECT_EQ(Default<frmQuickbarEditor>()->lstQuickBarEntries->font().pointSize(), 14);
  SetDataFolder(true);
  EXPECT_EQ(OpenOver("")->cboQuickbar->font().pointSize(), 8);
}

TEST_F(QuickBarFormsTest, TheEditorDeletesByPosition) {
  struct Case {
    const char *keys;
    int item;
    const char *left;
    int selected;
  };
  for (const auto &[keys, item, left, selected] : {
           Case{"aaaa aabb aacc", 0, "aabb aacc", 0},
           {"aaaa aabb aacc", 1, "aaaa aacc", 1},
           {"aaaa aabb aacc", 2, "aaaa aabb", -1},
           {"aaaa aabb aacc", -1, "aaaa aabb aacc", -1},
           {"aaaa aabb aaaa", 0, "aabb", 0},
           {"gone aaaa aabb", 0, "aaaa aabb", 0},
           {"aabb", 0, "", -1},
       }) {
    PutQuickBar(bar, Words(keys));
    mForms::UnloadDefaults({"frmQuickbarEditor"});
    auto *form = Default<frmQuickbarEditor>();
    form->show();
    // With the focus the list makes its first item current, which selects nothing.
    form->lstQuickBarEntries->setFocus();
    if (item >= 0) form->lstQuickBarEntries->setCurrentRow(item);
    form->cmdDeleteThisEntry->setFocus();
    form->cmdDeleteThisEntry->click();
    EXPECT_EQ(QuickBar::Keys(bar), Words(left)) << keys;
    EXPECT_EQ(form->lstQuickBarEntries->count(), Words(left).size()) << keys;
    const auto rows = form->lstQuickBarEntries->selectionModel()->selectedRows();
    EXPECT_EQ(rows.isEmpty() ? -1 : rows.constFirst().row(), selected) << keys;
    EXPECT_TRUE(form->cmdDeleteThisEntry->isEnabled()) << keys;
    EXPECT_EQ(form->focusWidget(), form->cmdDeleteThisEntry) << keys;
  }
  auto *form = Default<frmQuickbarEditor>();
  EXPECT_EQ(FileBytes(bar), QByteArray());
  form->cmdDeleteThisEntry->click();
  EXPECT_FALSE(QFile::exists(bar)) << "an empty file goes";
  EXPECT_FALSE(form->cmdDeleteThisEntry->isEnabled());
}

TEST_F(QuickBarFormsTest, TheEditorMayCloseWhileItDeletes) {
  PutQuickBar(bar, Words("aaaa aabb"));
  auto *form = Default<frmQuickbarEditor>();
  form->show();
  form->lstQuickBarEntries->setCurrentRow(0);
  QTimer::singleShot(0, form, [form] { form->cmdClose->click(); });
  form->cmdDeleteThisEntry->click();
  EXPECT_EQ(QuickBar::Keys(bar), Words("aabb"));
  EXPECT_EQ(mForms::Find(QStringLiteral("frmQuickbarEditor")), nullptr);
}

}  // namespace
