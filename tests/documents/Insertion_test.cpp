#include "documents/Insertion.h"

#include "shared/FormsTest.h"

using InsertionTest = FormsTest;

TEST_F(InsertionTest, KeepsOrReplacesTheSelectionInOneStep) {
  Insertion::ReplaceSelection("no document");
  RichTextBox &text = *Open("page.html", "one two\r\nthree")->txthtml;
  const QString tag("<a>\r\n"), foreign("<\u2192>");
  const std::tuple<std::function<void()>, int, const char *, int> cases[] = {
      {[&] { Insertion::ReplaceSelection(tag); }, 5, "one <a>\r\nthree", 9},
      {[&] { Insertion::ReplaceSelection({}); }, 5, "one three", 4},
      {[&] { Insertion::PutInFront(tag); }, 5, "one <a>\r\ntwo\r\nthree", 9},
      {[&] { Insertion::PutInFrontAndPass(tag); }, 5, "one <a>\r\ntwo\r\nthree", 14},
      // A character that the document can't hold takes more room than its one place.
      {[&] { Insertion::Surround(foreign, "/"); }, 5, "one <&#8594;>two\r\n/three", 19},
      {[&] { Insertion::Surround(foreign, "/"); }, 0, "one <&#8594;>/two\r\nthree", 13}};
  for (const auto &[way, length, after, caret] : cases) {
    text.SetSelStart(4);
    text.SetSelLength(length);
    way();
    EXPECT_EQ(text.Text(), after);
    EXPECT_TRUE(text.SelStart() == caret && text.SelLength() == 0) << after << text.SelStart();
    text.undo();
    EXPECT_EQ(text.Text(), "one two\r\nthree") << "after one step back from " << after;
  }
  EXPECT_FALSE(mPublic::aEditorState[1].changed);
}
