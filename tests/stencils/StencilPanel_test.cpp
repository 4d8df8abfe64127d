#include <QClipboard>

#include "shared/StencilFormsTest.h"
#include "stencils/FillStencilTree.h"
#include "stencils/LoadStencilTrees.h"
#include "stencils/frmStencils.h"
#include "stencils/frmStencilsSearch.h"
#include "stencils/frmTagDescription.h"

using Qt::StringLiterals::operator""_s;

class StencilPanelTest : public StencilFormsTest {
 protected:
  // The standard library of the test's own program folder is put back at the end.
  StencilPanelTest() {
    PutStencils(StencilFiles::StandardPath(), Words("aaaa aaaaaa aabb aacc"));
    StencilFile(StencilFiles::StandardPath()).Append(Stencil(u"aadd"_s, u"section"_s));
    PutStencils(stencils, Words("aaaa"));
    LoadStencilTrees(true, true);
    tree->expandAll();
    main->activateWindow();
    DoEvents();
  }
  ~StencilPanelTest() override { PutFile(StencilFiles::StandardPath(), delivered); }

  static void Select(KeyedTree *in, int ordinal) { in->setCurrentItem(in->Node(ordinal)); }
  static void Click(KeyedTree *in, int ordinal, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(in->viewport(), button, {}, in->visualItemRect(in->Node(ordinal)).center());
  }
  QString Shown() { return main->lblTagDescription->text(); }
  static void PressTab(DrawnTabStrip *strip, int x) {
    QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(x, strip->TabTop() + 5));
  }

  KeyedTree *const tree = main->trwStencils;
  KeyedTree *const selfBuilt = main->trwSelfBuildedStencils;
  const QByteArray delivered = FileBytes(StencilFiles::StandardPath());
};

TEST_F(StencilPanelTest, TheSelectedNodesTextIsShownByTabs) {
  Click(tree, 3);
  PressTab(main->picTagDescription, 160);
  EXPECT_EQ(Shown(), u"<aaaaaa>");
  QTest::keyClick(tree, Qt::Key_Down);
  EXPECT_EQ(Shown(), u"<aabb>");
  PressTab(main->picTagDescription, 80);
  EXPECT_EQ(Shown(), u"help Haabb");
  main->cmdTagDescriptionLarge->click();
  auto *large = Default<frmTagDescription>();
  EXPECT_EQ(large->lblTagName->text() + large->rtfTagSource->toPlainText() +
                large->lblTagDescription->text(),
            u" cap Haabb<aabb>help Haabb");
  large->cmdClose->click();
  PressTab(main->picStencilsTab, 81);
  EXPECT_TRUE(selfBuilt->isVisible() && !tree->isVisible());
  Click(selfBuilt, 1);
  EXPECT_EQ(Shown(), u"") << "the root has no text";
  PutFile(stencils, QByteArray(7000, '\xE4'));
  LoadStencilTrees(false, true);
  EXPECT_EQ(selfBuilt->NodeCount(), 1);
}

TEST_F(StencilPanelTest, ARightClickInsertsTheSelectedStencilBeforeTheSelection) {
  Click(tree, 2, Qt::RightButton);  // no document: nothing to do
  RichTextBox *text = Open(u"a.html"_s, "")->txthtml;
  const auto insert = [&](KeyedTree *from, int selected) {
    text->SetText(u"one two"_s);
    text->SetSelStart(4);
    text->SetSelLength(3);
    Select(from, selected);
    Click(from, 1, Qt::RightButton);
    EXPECT_EQ(from->currentItem(), from->Node(selected));
    EXPECT_TRUE(text->hasFocus());
    return text->Text();
  };
  EXPECT_EQ(insert(tree, 4), u"one <aabb>two");
  EXPECT_EQ(insert(tree, 6), u"one two") << "a section";
  EXPECT_EQ(insert(selfBuilt, 1), u"one <aaaa>two") << "the only one, whatever is selected";
  PutStencils(stencils, Words("aaaa aabb"));
  EXPECT_EQ(insert(selfBuilt, 1), u"one two");
  Select(tree, 4);
  QTest::keyClick(tree, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(text->Text(), u"one <aabb>two");
}

TEST_F(StencilPanelTest, FillingEndsWithItsTree) {
  auto *dying = new KeyedTree;
  FillStencilTree(*dying, stencils, u"root"_s, [dying] {
    delete dying;
    return true;
  });
}

TEST_F(StencilPanelTest, TheBrowserMarksCopiesAndSearches) {
  auto *browser = Default<frmStencils>();
  browser->show();
  Select(browser->trwStencils, 3);
  browser->cmdMarker->click();
  EXPECT_EQ(tree->currentItem(), tree->Node(3));
  browser->cmdOk->click();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), u"<aaaaaa>");

  browser->cmdFind->click();
  auto *search = Default<frmStencilsSearch>();
  dialogs.answers.assign(3, Dialogs::Answer::Ok);
  QString nodes;
  for (const auto *phrase : {u"AAAA ", u"AAAA ", u"AAAA ", u"AAAA ", u"help Haacc", u"<aabb>",
                             u"Haacc <", u"section", u"AABB"}) {
    search->chkMatchCase->setChecked(nodes.size() == 8);
    search->txtSearchString->setText(QString::fromUtf16(phrase));
    search->cmdSearch->click();
    nodes += QString::number(browser->trwStencils->Ordinal(browser->trwStencils->currentItem()));
  }
  // Not found the third time, then from the start; in each field by itself; the last record's node
  // is not reached.
  EXPECT_EQ(nodes, u"233254444");
  EXPECT_EQ(dialogs.messages, QStringList(3, u"Stencils Search|Phrase was not found (again)|0"_s));
  browser->cmdCancel->click();
  EXPECT_FALSE(mForms::Find(u"frmStencilsSearch"_s));
}
