#include "toolkit/KeyedTree.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyedTreeTest, NodesAreReachedByKeyAndByTheOrderOfAdding) {
  KeyedTree tree;
  tree.SetImageList({QIcon(QPixmap(4, 4))});
  const QString root = QStringLiteral("aa");
  const QString child = QStringLiteral("aaaa");
  ASSERT_TRUE(tree.Add({}, QStringLiteral("root"), root));
  ASSERT_TRUE(tree.Add(root, QStringLiteral("child"), child));
  ASSERT_TRUE(tree.Add(child, QStringLiteral("without a key")));
  ASSERT_TRUE(tree.Add(root, QStringLiteral("second child")));

  EXPECT_EQ(tree.Add(root, QStringLiteral("twin"), child), nullptr) << "the key is taken";
  EXPECT_EQ(tree.Add(QStringLiteral("zz"), QStringLiteral("orphan")), nullptr);
  EXPECT_EQ(tree.NodeCount(), 4) << "what could not be added is not counted";
  EXPECT_EQ(tree.Node(3)->text(0), QStringLiteral("without a key"));
  EXPECT_EQ(tree.Node(3)->parent(), tree.NodeByKey(child));
  EXPECT_EQ(tree.Node(4)->parent(), tree.Node(1));
  EXPECT_EQ(tree.Node(0), nullptr);
  EXPECT_EQ(tree.Node(5), nullptr);
  EXPECT_FALSE(tree.Node(1)->isExpanded());

  tree.SetImage(tree.Node(1), 1);
  EXPECT_FALSE(tree.Node(1)->icon(0).isNull());
  tree.SetImage(tree.Node(1), 9);
  EXPECT_TRUE(tree.Node(1)->icon(0).isNull());
  tree.SetImage(nullptr, 1);

  tree.ClearNodes();
  EXPECT_EQ(tree.NodeByKey(root), nullptr);
  EXPECT_TRUE(tree.Add({}, QStringLiteral("again"), root));
}

}  // namespace
