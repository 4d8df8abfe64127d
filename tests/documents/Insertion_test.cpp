#include "documents/Insertion.h"

#include "shared/FormsTest.h"

namespace {

using Way = void (*)();

using InsertionTest = FormsTest;

TEST_F(InsertionTest, KeepsOrReplacesTheSelectionInOneStep) {
  Insertion::ReplaceSelection(QStringLiteral("no document"));
  const QByteArray before = "one two\r\nthree";
  RichTextBox &text = *Open(QStringLiteral("page.html"), before)->txthtml;
  struct Case {
    Way way;
    int start, length;
    const char *after;
    int caret;
  };
  const Way replace = [] { Insertion::ReplaceSelection(QStringLiteral("<a>\r\n")); };
  const Way front = [] { Insertion::PutInFront(QStringLiteral("<a>\r\n")); };
  const Way pass = [] { Insertion::PutInFrontAndPass(QStringLiteral("<a>\r\n")); };
  const Way surround = [] {
    Insertion::Surround(QStringLiteral("<\u2192>"), QStringLiteral("</b>"));
  };
  const Way nothing = [] { Insertion::ReplaceSelection({}); };
  for (const auto &[way, start, length, after, caret] : {
           Case{replace, 4, 3, "one <a>\r\n\r\nthree", 9},
           {replace, 4, 0, "one <a>\r\ntwo\r\nthree", 9},
           {nothing, 4, 5, "one three", 4},
           {front, 4, 5, "one <a>\r\ntwo\r\nthree", 9},
           {pass, 4, 5, "one <a>\r\ntwo\r\nthree", 14},
           {pass, 14, 0, "one two\r\nthree<a>\r\n", 19},
           // A character that the document can't hold takes more room than its one place.
           {surround, 4, 5, "one <&#8594;>two\r\n</b>three", 22},
           {surround, 0, 0, "<&#8594;></b>one two\r\nthree", 9},
       }) {
    text.SetSelStart(start);
    text.SetSelLength(length);
    way();
    EXPECT_EQ(text.Text(), QLatin1String(after));
    EXPECT_EQ(text.SelStart(), caret) << after;
    EXPECT_EQ(text.SelLength(), 0) << after;
    text.undo();
    EXPECT_EQ(text.Text(), QLatin1String(before)) << "after one step back from " << after;
  }
  EXPECT_FALSE(mPublic::aEditorState[mPublic::iActualEditor].changed);
}

}  // namespace
