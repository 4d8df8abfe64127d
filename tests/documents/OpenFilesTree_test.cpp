#include "documents/OpenFilesTree.h"

#include "shared/FormsTest.h"

namespace {

using OpenFilesTreeTest = FormsTest;

// The tree as text: a line a node, indented by level.
QString Shape(const QTreeWidgetItem *node, int level = 0) {
  QString shape = QString(level, u' ') + node->text(0) + u'\n';
  for (int i = 0; i < node->childCount(); ++i) shape += Shape(node->child(i), level + 1);
  return shape;
}

TEST_F(OpenFilesTreeTest, BeforeTheFirstDocumentItHasFourNodesAndThenTheFifthGroup) {
  KeyedTree *tree = main->trwOpenFiles;
  EXPECT_EQ(
      Shape(tree->Node(1)),
      QStringLiteral("Editor Windows\n Markup Documents\n Java Documents\n Unsaved Documents\n"));
  RebuildOpenFilesTree();
  EXPECT_EQ(Shape(tree->Node(1)),
            QStringLiteral("Editor Windows ( 0 open)\n Markup Documents\n Java Documents\n"
                           " Unsaved Documents\n Other Documents\n"));
  EXPECT_TRUE(tree->Node(2)->icon(0).isNull());
}

TEST_F(OpenFilesTreeTest, CaptionsDecideTheGroupExactly) {
  // Bare captions: the tree looks at nothing else.
  for (const char *caption : {"/a.html", "/b.HTML", "<unsaved>", "/c.java", "/d.htm ", "<unsaved>",
                              "/e.saved>", "/f.jav", "/html"}) {
    mEditors::OpenWindow()->SetCaption(QLatin1String(caption));
  }
  RebuildOpenFilesTree();
  KeyedTree *tree = main->trwOpenFiles;
  EXPECT_EQ(Shape(tree->Node(1)),
            QStringLiteral("Editor Windows ( 9 open)\n"
                           " Markup Documents\n  /a.html\n  /d.htm \n"
                           " Java Documents\n  /c.java\n"
                           " Unsaved Documents\n  <unsaved>\n  <unsaved>\n  /e.saved>\n"
                           " Other Documents\n  /b.HTML\n  /f.jav\n  /html\n"));
  EXPECT_EQ(tree->currentItem(), tree->Node(1));
  EXPECT_TRUE(tree->Node(5)->isExpanded());
  // Slot n gives its look to node n + 1 of the whole tree, whatever that is.
  EXPECT_FALSE(tree->Node(10)->icon(0).isNull());
  EXPECT_TRUE(tree->Node(11)->icon(0).isNull());
}

TEST_F(OpenFilesTreeTest, ADoubleClickBringsTheLowestSlotOfThatNameForward) {
  for (const char *name : {"a.html", "same.html", "same.html"}) Open(QLatin1String(name), "x");
  mEditors::OpenWindow()->SetCaption(QStringLiteral("<unsaved>"));
  RebuildOpenFilesTree();
  KeyedTree *tree = main->trwOpenFiles;
  const auto doubleClick = [&](int ordinal) {
    tree->setCurrentItem(tree->Node(ordinal));
    Q_EMIT tree->itemDoubleClicked(tree->Node(ordinal), 0);
    return main->mdiArea->currentSubWindow();
  };
  EXPECT_EQ(doubleClick(8), mEditors::aEditorWindow[2].data());
  EXPECT_EQ(doubleClick(9), mEditors::aEditorWindow[2].data()) << "an unsaved one can't be reached";
  EXPECT_EQ(doubleClick(1), mEditors::aEditorWindow[2].data());
}

TEST_F(OpenFilesTreeTest, AClickShowsWhetherTheRootIsOpen) {
  Open(QStringLiteral("a.html"), "a");
  KeyedTree *tree = main->trwOpenFiles;
  const auto look = [tree] { return tree->Node(1)->icon(0).pixmap(16).toImage(); };
  const QImage open = look();
  const QRect root = tree->visualItemRect(tree->Node(1));
  const QPoint arrow(root.left() / 2, root.center().y());
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, arrow);
  EXPECT_FALSE(tree->Node(1)->isExpanded());
  EXPECT_NE(look(), open);
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, arrow);
  EXPECT_EQ(look(), open);
}

TEST_F(OpenFilesTreeTest, ARebuildDuringARebuildRunsOnceMoreAtItsEnd) {
  Open(QStringLiteral("a.html"), "a");
  frmHTMLChild *second = Open(QStringLiteral("b.html"), "b");
  // Closing a window while the tree is being filled calls for the tree again.
  QTimer::singleShot(0, second, [second] { second->close(); });
  RebuildOpenFilesTree();
  EXPECT_EQ(Shape(main->trwOpenFiles->Node(1)).count(QStringLiteral(".html")), 1);
  EXPECT_EQ(main->trwOpenFiles->Node(1)->text(0), QStringLiteral("Editor Windows ( 1 open)"));
}

}  // namespace
