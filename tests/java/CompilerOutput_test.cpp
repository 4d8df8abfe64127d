#include "java/CompilerOutput.h"

#include <gtest/gtest.h>

#include "java/CompileCommand.h"
#include "shared/Files.h"

namespace {

using Qt::Literals::StringLiterals::operator""_s;

QString Row(QStringView block) {
  const CompilerMessage message = CompilerOutput::MessageOf(block);
  return u"%1|%2|%3"_s.arg(message.Line).arg(message.Message, message.Source);
}

// The rows of what a real compiler has written, kept in a file, as far as it has ended.
QStringList RowsOf(const QString &name) {
  const QString text = CompilerOutput::Decode(
      FileBytes(QStringLiteral(TAGWRIGHT_COMPILER_OUTPUTS "/%1.txt").arg(name)));
  EXPECT_GT(text.size(), 50) << qPrintable(name);
  QStringList rows;
  if (!CompilerOutput::HasEnded(text)) return rows;
  for (const QStringView block : CompilerOutput::Blocks(text)) rows << Row(block);
  return rows;
}

TEST(CompilerOutput, RealOutputsGiveTheirRows) {
  EXPECT_EQ(RowsOf(u"one"_s).join(u'\n'), u"3|error: ';' expected|int a = 1"_s);
  const QString two =
      u"3|error: cannot find symbol|return missing;\n"
      "5|error: incompatible types: String cannot be converted to int|int g() { return \"%1\"; }"_s;
  EXPECT_EQ(RowsOf(u"two"_s).join(u'\n'), two.arg(u"ü → Ж"_s));
  EXPECT_EQ(RowsOf(u"colons"_s), RowsOf(u"two"_s));
  EXPECT_EQ(RowsOf(u"ansi"_s).join(u'\n'), two.arg(u"ü ? ?"_s));
  EXPECT_EQ(RowsOf(u"bounds"_s).join(u'\n'),
            u"3|error: incompatible types: inference variable T has incompatible bounds|"
            "List<String> l = Arrays.asList(1);"_s);
  const QStringList hundred = RowsOf(u"hundred"_s);
  EXPECT_EQ(hundred.size(), 100);
  EXPECT_EQ(hundred.last(), u"101|error: cannot find symbol|int f100() { return m100; }"_s);
  // Each "^" of message and source ends a piece as well.
  EXPECT_EQ(RowsOf(u"caret"_s).join(u'\n'),
            u"2|error: bad operand types for binary operator '^'|\n0||\n0||\n"
            "3|error: cannot find symbol|\n0||"_s);
  for (const QString &name : {u"japanese"_s, u"warnings"_s, u"see_more"_s}) {
    EXPECT_TRUE(RowsOf(name).isEmpty()) << qPrintable(name);
  }
}

TEST(CompilerOutput, TheLastNumberBetweenColonsCounts) {
  for (const auto &[block, row] : {
           std::pair("T.java:12: message\r\nsource\r\n^\r\n", "12|message|source"),
           {"T.java:12: m\r\nat 8:30:00 \r\n^", "30|00|at 8:30:00"},
           {"T.java:12: m\r\na:7:b^", "7|m|T.java:12: m"},  // no line end behind the last pair
           {"T.java:12: m\r\ncase 1: a ? b : c;\r\n^", "12|m|case 1: a ? b : c;"},
           {":-3:0:x:\r\ny\r\n", "0||"},
           {"T:12: m :99999999999: n\r\nsource\r\n^", "12|n|source"},
           {"T:12", "0||"},
           {"T:1: a  ; b  : c\t\td\r\n\ta\tb\r\n^", "1|a; b: c\t\td|a b"},
       }) {
    EXPECT_EQ(Row(QString::fromLatin1(block)), QLatin1String(row)) << block;
  }
  const QString longest(199, u'm');
  EXPECT_EQ(Row(u":7: "_s + longest + u"xy\r\n"_s + u"\t  \t"_s.repeated(300) + u"s\r\n^"_s),
            u"7|"_s + longest + u'|')
      << "the blank in front is one of its 200 characters";
}

TEST(CompilerOutput, PiecesEndAtTheirMarks) {
  EXPECT_EQ(CompilerOutput::Blocks(u"a^\r\nb  ^^^^c^"),
            (QList<QStringView>{u"a^\r\n", u"b  ^", u"^c^"}));
  EXPECT_TRUE(CompilerOutput::Blocks(u"1 error").isEmpty());
  EXPECT_TRUE(CompilerOutput::HasEnded(u"2 ERRORS\r\n"));
  EXPECT_FALSE(CompilerOutput::HasEnded(u"errors of 2\r\n"));
}

TEST(CompilerOutput, LineEndsAndEncoding) {
  EXPECT_EQ(CompilerOutput::Decode("a\nb\r\nc\rd\n\n"), u"a\r\nb\r\nc\r\nd\r\n\r\n"_s);
  EXPECT_EQ(CompilerOutput::CountCarriageReturns(u"a\r\nb\r"), u"2"_s);
  EXPECT_EQ(CompilerOutput::Decode("\xC3\xBC") + CompilerOutput::Decode("\xC3"), u"üÃ"_s);
  const QByteArray cut(CompilerOutput::LargestFile - 3, 'x');
  EXPECT_TRUE(CompilerOutput::Decode(cut + "x\xE2\x86").endsWith(u"xx"));
  EXPECT_TRUE(CompilerOutput::Decode(cut + "\xFCxx").endsWith(u"üxx"));
}

// Texts that would take hours if any step began anew for each of their characters.
TEST(CompilerOutput, NoTextTakesLong) {
  for (const char *piece : {":1", "^", ":", ":1:  ;\n\t", " "}) {
    const QString text = CompilerOutput::Decode(
        ":1:" + QByteArray(piece).repeated(2'000'000 / qstrlen(piece) - 5) + "\n\n^");
    for (const QStringView block : CompilerOutput::Blocks(text)) EXPECT_LE(Row(block).size(), 420);
  }
}

TEST(CompileCommand, TellsTheCompilerWhatItsLineCannot) {
  QProcessEnvironment before;
  before.insert(u"JDK_JAVAC_OPTIONS"_s, u" -g "_s);
  before.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
  before.insert(u"LANGUAGE"_s, u"de"_s);
  const auto command = CompileCommand::For(u"/opt/javac -g"_s, u"/t/compiler.dat"_s,
                                           u"/a b/$(x);`y`'\"T.java"_s, "\xFC", before);
  EXPECT_EQ(command.line.program + u'|' + command.line.arguments.join(u'|'),
            u"/opt/javac|-g|-Xstdout|/t/compiler.dat|/a|b/$(x);`y`'\"T.java"_s);
  QStringList environment = command.environment.toStringList();
  environment.sort();
  EXPECT_EQ(environment.join(u'|'),
            u"JDK_JAVAC_OPTIONS=-g -encoding windows-1252 -Xlint:none -Xmaxerrs 10000|"
            "LC_CTYPE=de_DE.UTF-8|LC_MESSAGES=C"_s);
  EXPECT_TRUE(CompileCommand::For(u"j"_s, u"o"_s, u"s"_s, "\xC3\xBC", {})
                  .environment.toStringList()
                  .join(u'|')
                  .contains(u"=-encoding UTF-8 "));
}

}  // namespace
