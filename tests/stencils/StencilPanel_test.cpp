#include "stencils/StencilPanel.h"

#include <QClipboard>
#include <QGuiApplication>

#include "base/mFolders.h"
#include "shared/StencilFormsTest.h"
#include "stencils/FillStencilTree.h"
#include "stencils/LoadStencilTrees.h"
#include "stencils/frmStencils.h"
#include "stencils/frmStencilsSearch.h"
#include "stencils/frmTagDescription.h"

namespace {

class StencilPanelTest : public StencilFormsTest {
 protected:
  // The standard library of the test's own program folder is put back at the end.
  StencilPanelTest() : delivered_(FileBytes(StencilFiles::StandardPath())) {
    PutStencils(StencilFiles::StandardPath(), Words("aaaa aaaaaa aabb aacc"));
    StencilRecord section = Stencil(QStringLiteral("aadd"), QStringLiteral("section"));
    StencilFile(StencilFiles::StandardPath()).Append(section);
    PutStencils(stencils, Words("aaaa"));
    LoadStencilTrees(true, true);
    tree = main->trwStencils;
    main->activateWindow();
    DoEvents();
  }
  ~StencilPanelTest() override { PutFile(StencilFiles::StandardPath(), delivered_); }

  void Select(KeyedTree *in, int ordinal) { in->setCurrentItem(in->Node(ordinal)); }
  void Click(KeyedTree *in, int ordinal, Qt::MouseButton button = Qt::LeftButton) {
    in->expandAll();
    QTest::mouseClick(in->viewport(), button, {}, in->visualItemRect(in->Node(ordinal)).center());
  }
  QString Shown() { return main->lblTagDescription->text(); }
  void PressTab(DrawnTabStrip *strip, int x) {
    QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(x, strip->TabTop() + 5));
  }

  KeyedTree *tree;

 private:
  const QByteArray delivered_;
};

TEST_F(StencilPanelTest, TheSelectedNodesTextIsShownByTabs) {
  Click(tree, 3);
  EXPECT_EQ(Shown(), QStringLiteral("help Haaaaaa"));
  PressTab(main->picTagDescription, 160);
  EXPECT_EQ(Shown(), QStringLiteral("<aaaaaa>"));
  QTest::keyClick(tree, Qt::Key_Down);
  EXPECT_EQ(Shown(), QStringLiteral("<aabb>"));
  PressTab(main->picTagDescription, 80);
  EXPECT_EQ(Shown(), QStringLiteral("help Haabb"));
  PressTab(main->picStencilsTab, 81);
  EXPECT_TRUE(main->trwSelfBuildedStencils->isVisible() && !tree->isVisible());
  EXPECT_EQ(main->lblWindowTitelStencilWindow->backgroundRole(), QPalette::Highlight);
  Click(main->trwSelfBuildedStencils, 1);
  EXPECT_EQ(Shown(), QString()) << "the root has no text";
  PressTab(main->picStencilsTab, 161);
  EXPECT_FALSE(tree->isVisible()) << "beside the tabs";
}

TEST_F(StencilPanelTest, ARightClickInsertsTheSelectedStencilBeforeTheSelection) {
  Select(tree, 4);
  Click(tree, 2, Qt::RightButton);
  RichTextBox *text = Open(QStringLiteral("a.html"), "one two")->txthtml;
  const auto insert = [&](KeyedTree *from, int selected, int under) {
    text->SetText(QStringLiteral("one two"));
    text->SetSelStart(4);
    text->SetSelLength(3);
    main->picLeft->setFocus();
    Select(from, selected);
    Click(from, under, Qt::RightButton);
    EXPECT_EQ(from->currentItem(), from->Node(selected));
    EXPECT_EQ(text->SelLength(), 0);
    EXPECT_TRUE(text->hasFocus());
    return text->Text();
  };
  EXPECT_EQ(insert(tree, 4, 2), QStringLiteral("one <aabb>two"));
  EXPECT_EQ(text->SelStart(), 10);
  text->undo();
  EXPECT_EQ(text->Text(), QStringLiteral("one two")) << "one step";
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
  EXPECT_EQ(insert(tree, 6, 2), QStringLiteral("one two")) << "a section";
  EXPECT_EQ(text->SelStart(), 4);
  text->SetText({});
  Select(tree, 4);
  QTest::keyClick(tree, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(text->Text(), QStringLiteral("<aabb>"));
  EXPECT_EQ(insert(main->trwSelfBuildedStencils, 1, 1), QStringLiteral("one <aaaa>two"))
      << "the only one, whatever is selected";
  PutStencils(stencils, Words("aaaa aabb"));
  EXPECT_EQ(insert(main->trwSelfBuildedStencils, 1, 1), QStringLiteral("one two"));
}

TEST_F(StencilPanelTest, WhatCannotBeAddedLeavesLaterNodesWithoutTag) {
  struct Case {
    const char *keys;
    const char *tags;
  };
  for (const auto &[keys, tags] : {Case{"", "aa"},
                                   {"aaaa aaaaaa", "aa aaaa aaaaaa"},
                                   {"aabbaa aabb aacc", "aa - -"},
                                   {"aaaa aaaa aabb", "aa aaaa -"},
                                   {"AAAA aab aaaa", "aa -"}}) {
    PutStencils(stencils, Words(keys));
    LoadStencilTrees(false, true);
    QStringList shown;
    for (int n = 1; n <= main->trwSelfBuildedStencils->NodeCount(); ++n) {
      const QString tag = StencilTag(main->trwSelfBuildedStencils->Node(n));
      shown << (tag.isEmpty() ? QStringLiteral("-") : tag);
    }
    EXPECT_EQ(shown.join(u' '), QLatin1String(tags)) << keys;
  }
  PutFile(stencils, QByteArray(7000, '\xE4'));
  LoadStencilTrees(false, true);
  EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), 1);
}

TEST_F(StencilPanelTest, TheLargeWindowShowsTheStencilOfTheTreeUsedLast) {
  Click(tree, 4);
  main->cmdTagDescriptionLarge->click();
  auto *large = Default<frmTagDescription>();
  EXPECT_TRUE(large->isVisible());
  EXPECT_EQ(large->lblTagName->text(), QStringLiteral(" cap Haabb"));
  EXPECT_EQ(large->rtfTagSource->toPlainText(), QStringLiteral("<aabb>"));
  EXPECT_EQ(large->lblTagDescription->text(), QStringLiteral("help Haabb"));
  large->cmdClose->click();
  PutStencils(stencils, {});
  LoadStencilTrees(false, true);
  Click(main->trwSelfBuildedStencils, 1);
  main->cmdTagDescriptionLarge->click();
  EXPECT_FALSE(mForms::Find(QStringLiteral("frmTagDescription"))) << "the root alone";
}

TEST_F(StencilPanelTest, TheBrowserMarksCopiesAndSearches) {
  auto *browser = Default<frmStencils>();
  browser->show();
  ASSERT_EQ(browser->trwStencils->NodeCount(), 6);
  Select(browser->trwStencils, 3);
  browser->cmdMarker->click();
  EXPECT_EQ(tree->currentItem(), tree->Node(3));
  browser->cmdOk->click();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("<aaaaaa>"));

  browser->cmdFind->click();
  auto *search = Default<frmStencilsSearch>();
  const auto press = [&] {
    search->cmdSearch->click();
    EXPECT_TRUE(search->cmdSearch->isEnabled() && search->cmdCancel->isEnabled());
    return browser->trwStencils->Ordinal(browser->trwStencils->currentItem());
  };
  search->txtSearchString->setText(QStringLiteral("AAAA "));
  EXPECT_EQ(press(), 2);
  EXPECT_EQ(press(), 3);
  EXPECT_TRUE(browser->trwStencils->Node(2)->isExpanded());
  dialogs.answers = {Dialogs::Answer::Ok};
  EXPECT_EQ(press(), 3);
  EXPECT_EQ(dialogs.messages.last(),
            QStringLiteral("Stencils Search|Phrase was not found (again)|0"));
  EXPECT_EQ(press(), 2) << "begins again";
  search->txtSearchString->setText(QStringLiteral("section"));
  EXPECT_EQ(press(), 2) << "the last record's node is not reached";
  EXPECT_TRUE(browser->trwStencils->Node(1)->isExpanded());
  browser->cmdCancel->click();
  EXPECT_FALSE(mForms::Find(QStringLiteral("frmStencilsSearch")));
}

}  // namespace
