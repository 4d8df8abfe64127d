#include "toolkit/KeyedTree.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyedTreeTest, NodesAreReachedByKeyAndByTheOrderOfAdding) {
  KeyedTree tree;
  const QString root = QStringLiteral("aa"), child = QStringLiteral("aaaa");
  ASSERT_TRUE(tree.Add({}, root, root) && tree.Add(root, child, child));
  ASSERT_TRUE(tree.Add(child, QStringLiteral("without a key")) && tree.Add(root, child));
  EXPECT_EQ(tree.Add(root, QStringLiteral("twin"), child), nullptr) << "the key is taken";
  EXPECT_EQ(tree.Add(QStringLiteral("zz"), QStringLiteral("orphan")), nullptr);
  EXPECT_EQ(tree.NodeCount(), 4) << "what could not be added is not counted";
  EXPECT_EQ(tree.Node(3)->parent(), tree.NodeByKey(child));
  EXPECT_EQ(tree.Node(4)->parent(), tree.Node(1));
  EXPECT_TRUE(!tree.Node(0) && !tree.Node(5));

  tree.SetImage(tree.Node(1), 9);
  EXPECT_TRUE(tree.Node(1)->icon(0).isNull());
  tree.ClearNodes();
  EXPECT_EQ(tree.NodeByKey(root), nullptr);
  EXPECT_TRUE(tree.Add({}, root, root));
}

}  // namespace
