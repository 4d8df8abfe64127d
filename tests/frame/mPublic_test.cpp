#include "frame/mPublic.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "frame/CommandLine.h"

namespace {

void OpenSlots(std::initializer_list<int> open) {
  mPublic::aEditorState = {};
  for (const int slot : open) mPublic::aEditorState[slot].open = true;
}

TEST(mPublicTest, SlotsAreCountedAndWalkedInOrder) {
  OpenSlots({});
  EXPECT_FALSE(mPublic::AnyEditorOpen());
  mPublic::iActualEditor = 7;
  mPublic::SelectFirstOpenEditor();
  EXPECT_EQ(mPublic::iActualEditor, 0);
  EXPECT_EQ(mPublic::NextOpenEditor(-1), 0);
  EXPECT_EQ(mPublic::NextOpenEditor(0), 1) << "with none open the counter comes back as it stands";

  OpenSlots({3, 7, 100});
  EXPECT_EQ(mPublic::CountOpenEditors(), 3);
  EXPECT_EQ(mPublic::FirstFreeSlot(), 1);
  mPublic::SelectFirstOpenEditor();
  EXPECT_EQ(mPublic::iActualEditor, 3);
  mPublic::NextOpenEditor(-1);
  for (const int slot : {3, 7, 100, 101, 102}) EXPECT_EQ(mPublic::NextOpenEditor(0), slot);
  mPublic::NextOpenEditor(-1);
  for (const int slot : {3, 3}) EXPECT_EQ(mPublic::NextOpenEditor(1), slot);
}

TEST(mPublicTest, SlotZeroNeverCounts) {
  OpenSlots({0});
  EXPECT_FALSE(mPublic::AnyEditorOpen());
  for (auto &state : mPublic::aEditorState) state.open = true;
  EXPECT_EQ(mPublic::CountOpenEditors(), 100);
  EXPECT_EQ(mPublic::FirstFreeSlot(), 0);
}

TEST(CommandLineTest, AllWordsAreOneName) {
  const char *const words[] = {"tagwright", "/a", "b.html", "-style"};
  EXPECT_EQ(CommandLineText(4, words), QStringLiteral("/a b.html -style"));
  EXPECT_TRUE(CommandLineText(1, words).isEmpty());
}

}  // namespace
