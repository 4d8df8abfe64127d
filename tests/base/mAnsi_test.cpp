#include "base/mAnsi.h"

#include <gtest/gtest.h>

TEST(mAnsi, EveryByteComesBackAndWhatHasNoneBecomesOneQuestionMark) {
  for (int n = 0; n < 256; ++n) {
    const QByteArray byte(1, char(n));
    const QString text = mAnsi::FromAnsi(byte);
    EXPECT_EQ(mAnsi::ToAnsi(text), byte);
    EXPECT_TRUE(mAnsi::Holds(text) && mAnsi::ByteOf(text[0].unicode()) == byte[0]) << n;
  }
  EXPECT_EQ(mAnsi::FromAnsi("\x80\x81\x8E\x92\x9F\xFF"), u"\u20AC\u0081\u017D\u2019\u0178\u00FF");
  EXPECT_EQ(mAnsi::ToAnsi(u"a\u2192b\u0080c<\U0001F600>"), "a?b?c<?>");
  const char16_t loneHalves[] = {0xDE00, 0xD83D, u'x', 0xD83D};
  EXPECT_EQ(mAnsi::ToAnsi(QStringView(loneHalves, 4)), "??x?");
  EXPECT_FALSE(mAnsi::Holds(u"a\u2192") || mAnsi::ByteOf(0x0080));
}
