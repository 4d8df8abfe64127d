#include "documents/OpenFilesTree.h"

#include "shared/FormsTest.h"

struct OpenFilesTreeTest : FormsTest {
  // The tree as text: each node in brackets behind its text those below it.
  static QString Shape(const QTreeWidgetItem *node) {
    QString shape = node->text(0) + '[';
    for (int i = 0; i < node->childCount(); ++i) shape += Shape(node->child(i));
    return shape + ']';
  }

  KeyedTree *tree = main->trwOpenFiles;
};

TEST_F(OpenFilesTreeTest, CaptionsDecideTheGroupExactly) {
  EXPECT_EQ(Shape(tree->Node(1)),
            "Editor Windows[Markup Documents[]Java Documents[]Unsaved Documents[]]");
  // Bare captions: the tree looks at nothing else.
  for (const char *caption : {"/a.html", "/b.HTML", "<unsaved>", "/c.java", "/d.htm ", "<Unsaved>",
                              "/e.saved>", "/f.jav", "/html"}) {
    mEditors::OpenWindow()->SetCaption(caption);
  }
  RebuildOpenFilesTree();
  EXPECT_EQ(Shape(tree->Node(1)),
            "Editor Windows ( 9 open)[Markup Documents[/a.html[]/d.htm []]Java Documents[/c.java[]]"
            "Unsaved Documents[<unsaved>[]<Unsaved>[]/e.saved>[]]"
            "Other Documents[/b.HTML[]/f.jav[]/html[]]]");
  EXPECT_TRUE(tree->currentItem() == tree->Node(1) && tree->Node(5)->isExpanded());
  // Slot n gives its look to node n + 1 of the whole tree, whatever that is.
  EXPECT_TRUE(!tree->Node(10)->icon(0).isNull() && tree->Node(11)->icon(0).isNull());
}

TEST_F(OpenFilesTreeTest, ADoubleClickBringsTheLowestSlotOfThatNameForward) {
  for (const char *name : {"a.html", "same.html", "same.html"}) Open(name, "x");
  mEditors::OpenWindow()->SetCaption("<unsaved>");
  RebuildOpenFilesTree();
  for (const int ordinal : {8, 9, 1}) {  // neither an unsaved one nor a group can be reached
    tree->setCurrentItem(tree->Node(ordinal));
    Q_EMIT tree->itemDoubleClicked(tree->Node(ordinal), 0);
    EXPECT_EQ(main->mdiArea->currentSubWindow(), mEditors::aEditorWindow[2]) << ordinal;
  }
}

TEST_F(OpenFilesTreeTest, ARebuildDuringARebuildRunsOnceMoreAtItsEnd) {
  frmHTMLChild *first = Open("a", "a");
  Open("b", "b");
  // Closing a window while the tree is being filled calls for the tree again.
  QTimer::singleShot(0, first, [first] { first->close(); });
  RebuildOpenFilesTree();
  EXPECT_EQ(tree->Node(5)->childCount(), 1);
}
