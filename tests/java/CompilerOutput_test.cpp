#include "java/CompilerOutput.h"

#include <gtest/gtest.h>

#include "java/CompileCommand.h"
#include "shared/Files.h"

namespace {

using Qt::Literals::StringLiterals::operator""_s;

QString Row(const CompilerMessage &message) {
  return u"%1|%2|%3"_s.arg(message.Line).arg(message.Message, message.Source);
}

QStringList Rows(const QString &text) {
  QStringList rows;
  for (const QStringView block : CompilerOutput::Blocks(text)) {
    rows << Row(CompilerOutput::MessageOf(block));
  }
  return rows;
}

// What a real compiler has written, kept in a file.
QString Kept(const char *name) {
  return CompilerOutput::Decode(
      FileBytes(QStringLiteral(TAGWRIGHT_COMPILER_OUTPUTS "/%1.txt").arg(QLatin1String(name))));
}

TEST(CompilerOutput, RealOutputsGiveTheirRows) {
  const QString missing = u"3|error: cannot find symbol|return missing;"_s;
  const QString wrongType =
      u"5|error: incompatible types: String cannot be converted to int|int g() { return \"%1\"; }"_s;
  const QString bounds =
      u"3|error: incompatible types: inference variable T has incompatible bounds|"
      "List<String> l = Arrays.asList(1);"_s;
  const struct {
    const char *name;
    bool ended;
    QStringList rows;
  } outputs[] = {
      {"one", true, {u"3|error: ';' expected|int a = 1"_s}},
      {"two", true, {missing, wrongType.arg(u"ü → Ж")}},
      {"ansi", true, {missing, wrongType.arg(u"ü ? ?")}},
      {"colons", true, {missing, wrongType.arg(u"ü → Ж")}},
      {"bounds", true, {bounds}},
      // Each "^" of message and source ends a piece as well.
      {"caret",
       true,
       {u"2|error: bad operand types for binary operator '^'|"_s, u"0||"_s, u"0||"_s,
        u"3|error: cannot find symbol|"_s, u"0||"_s}},
      {"japanese", false, {}},
      {"warnings", false, {}},
      {"see_more", false, {}},
  };
  for (const auto &output : outputs) {
    const QString text = Kept(output.name);
    EXPECT_FALSE(text.isEmpty()) << output.name;
    EXPECT_EQ(CompilerOutput::HasEnded(text), output.ended) << output.name;
    EXPECT_EQ(output.ended ? Rows(text) : QStringList(), output.rows) << output.name;
  }
  const QStringList hundred = Rows(Kept("hundred"));
  EXPECT_EQ(hundred.size(), 100);
  EXPECT_EQ(hundred.last(), u"101|error: cannot find symbol|int f100() { return m100; }"_s);
}

TEST(CompilerOutput, TheLastNumberBetweenColonsCounts) {
  const struct {
    const char *block;
    const char *row;
  } cases[] = {
      {"T.java:12: message\r\nsource\r\n^\r\n", "12|message|source"},
      {"T.java: 12 : message\r\nsource\r\n^", "12|: message|source"},  // its blanks aren't counted
      {"T.java:12: at 8:30:00\r\nsource\r\n^", "30|00|source"},
      {"T.java:12: m\r\nat 8:30:00 \r\n^", "30|00|at 8:30:00"},
      {"T.java:12: m\r\na:7:b^", "7|m|T.java:12: m"},  // no line end behind the last pair
      {"T.java:12: m\r\ncase 1: a ? b : c;\r\n^", "12|m|case 1: a ? b : c;"},
      {"a::12: skipped\r\nsource\r\n^", "0||"},
      {":-3:0:x:\r\ny\r\n", "0||"},
      {"T:12: m :99999999999: n\r\nsource\r\n^", "12|n|source"},
      {"T:12", "0||"},
      {"T:12: m", "12||"},
      {"T:1: a  ; b  : c\t\td\r\n\ta\tb\r\n^", "1|a; b: c\t\td|a b"},
      {":5: several\r\nlines\r\nsource\r\n^", "5|several|lines"},
      {"", "0||"},
  };
  for (const auto &known : cases) {
    EXPECT_EQ(Row(CompilerOutput::MessageOf(QString::fromLatin1(known.block))),
              QLatin1String(known.row))
        << known.block;
  }
  const QString longest = QString(199, u'm');
  const CompilerMessage cut = CompilerOutput::MessageOf(u":7: "_s + longest + u"xy\r\n"_s +
                                                        u"\t  \t"_s.repeated(300) + u"s\r\n^"_s);
  EXPECT_EQ(cut.Message, longest) << "the blank in front is one of its 200 characters";
  EXPECT_EQ(cut.Source, QString());
}

TEST(CompilerOutput, PiecesEndAtTheirMarks) {
  const QString text = u"a^\r\nb  ^^^^c^"_s;
  EXPECT_EQ(CompilerOutput::Blocks(text), (QList<QStringView>{u"a^\r\n", u"b  ^", u"^c^"}));
  EXPECT_EQ(CompilerOutput::Blocks(u"^"), QList<QStringView>{u"^"});
  EXPECT_TRUE(CompilerOutput::Blocks(u"1 error").isEmpty());
  EXPECT_TRUE(CompilerOutput::HasEnded(u"2 ERRORS\r\n"));
  EXPECT_FALSE(CompilerOutput::HasEnded(u"errors of 2\r\n"));
}

TEST(CompilerOutput, LineEndsAndEncoding) {
  EXPECT_EQ(CompilerOutput::Decode("a\nb\r\nc\rd\n\n"), u"a\r\nb\r\nc\r\nd\r\n\r\n"_s);
  EXPECT_EQ(CompilerOutput::CountCarriageReturns(u"a\r\nb\r"), u"2"_s);
  EXPECT_EQ(CompilerOutput::Decode("\xC3\xBC"), u"ü"_s);
  EXPECT_EQ(CompilerOutput::Decode("\xFC"), u"ü"_s);
  EXPECT_EQ(CompilerOutput::Decode("\xC3"), u"Ã"_s);
  QByteArray cut(CompilerOutput::LargestFile - 3, 'x');
  EXPECT_TRUE(CompilerOutput::Decode(cut + "\xE2\x86\x92").endsWith(u"x→"));
  EXPECT_TRUE(CompilerOutput::Decode(cut + "x\xE2\x86").endsWith(u"xx"));
  EXPECT_TRUE(CompilerOutput::Decode(cut + "\xFCxx").endsWith(u"üxx"));
}

// Texts that would take hours if any step began anew for each of their characters.
TEST(CompilerOutput, NoTextTakesLong) {
  for (const char *piece : {":1", "^", ":", ":1:  ;\n\t", " "}) {
    const QByteArray bytes =
        ":1:" + QByteArray(piece).repeated(2'000'000 / qstrlen(piece) - 5) + "\n\n^";
    const QStringList rows = Rows(CompilerOutput::Decode(bytes));
    EXPECT_GE(rows.size(), 1) << piece;
  }
}

TEST(CompileCommand, TellsTheCompilerWhatItsLineCannot) {
  QProcessEnvironment before;
  before.insert(u"JDK_JAVAC_OPTIONS"_s, u" -g "_s);
  before.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
  before.insert(u"LC_CTYPE"_s, u"POSIX"_s);
  before.insert(u"LANGUAGE"_s, u"de"_s);
  before.insert(u"OTHER"_s, u"stays"_s);
  const CompileCommand command = CompileCommand::For(u"/opt/javac -g"_s, u"/t/compiler.dat"_s,
                                                     u"/a b/$(x);`y`'\"T.java"_s, "\xFC", before);
  EXPECT_EQ(command.line.program, u"/opt/javac"_s);
  EXPECT_EQ(command.line.arguments, (QStringList{u"-g"_s, u"-Xstdout"_s, u"/t/compiler.dat"_s,
                                                 u"/a"_s, u"b/$(x);`y`'\"T.java"_s}));
  QStringList environment = command.environment.toStringList();
  environment.sort();
  EXPECT_EQ(
      environment,
      (QStringList{u"JDK_JAVAC_OPTIONS=-g -encoding windows-1252 -Xlint:none -Xmaxerrs 10000"_s,
                   u"LC_CTYPE=de_DE.UTF-8"_s, u"LC_MESSAGES=C"_s, u"OTHER=stays"_s}));
  EXPECT_EQ(CompileCommand::For(u"j"_s, u"o"_s, u"s"_s, "\xC3\xBC", {}).environment.toStringList(),
            (QStringList{u"JDK_JAVAC_OPTIONS=-encoding UTF-8 -Xlint:none -Xmaxerrs 10000"_s,
                         u"LC_MESSAGES=C"_s}));
}

}  // namespace
