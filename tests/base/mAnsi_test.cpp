#include "base/mAnsi.h"

#include <gtest/gtest.h>

#include "base/FixedText.h"

namespace {

TEST(mAnsi, EveryByteComesBack) {
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const QString text = mAnsi::FromAnsi(bytes);
  EXPECT_EQ(mAnsi::ToAnsi(text), bytes);
  EXPECT_TRUE(mAnsi::Holds(text));
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(mAnsi::ByteOf(text[byte].unicode()), static_cast<char>(byte));
  }
  EXPECT_EQ(mAnsi::FromAnsi("\x80\x81\x8E\x92\x9F\xA0\xFF"),
            u"\u20AC\u0081\u017D\u2019\u0178\u00A0\u00FF");
}

TEST(mAnsi, WhatHasNoByteBecomesOneQuestionMark) {
  EXPECT_EQ(mAnsi::ToAnsi(u"a\u2192b\u0080c"), "a?b?c");
  EXPECT_EQ(mAnsi::ToAnsi(u"<\U0001F600>"), "<?>");
  const char16_t loneHalves[] = {0xDE00, 0xD83D, u'x', 0xD83D};
  EXPECT_EQ(mAnsi::ToAnsi(QStringView(loneHalves, 4)), "??x?");
  EXPECT_FALSE(mAnsi::Holds(u"a\u2192"));
  EXPECT_EQ(mAnsi::ByteOf(0x0080), std::nullopt);
}

TEST(FixedText, CutsAndPadsAndKeepsAllButBlanks) {
  FixedText<6> field;
  field.Set(u"\u20ACx");
  EXPECT_EQ(QByteArrayView(field.bytes, 6), "\x80x    ");
  EXPECT_EQ(field.Trimmed(), u"\u20ACx");
  field.Set(u"1234567");
  EXPECT_EQ(field.TrimmedBytes(), "123456");
  field.Set(u"  a\r\n");
  EXPECT_EQ(field.Trimmed(), u"a\r\n");
  field.Set({});
  EXPECT_EQ(field.TrimmedBytes().size(), 0);
  std::fill_n(field.bytes, 6, '\0');
  EXPECT_EQ(field.Trimmed().size(), 6);
}

}  // namespace
