#include "base/ProgramLine.h"

#include <gtest/gtest.h>

TEST(ProgramLineTest, ACommandsProgramMayHaveBlanksInItsPath) {
  const auto shown = [](const ProgramLine &line) {
    return (QStringList(line.program) + line.arguments).join('|');
  };
  const auto isExecutable = [](const QString &path) {
    return path == "/opt/my viewer" || path == "/opt/my viewer two";
  };
  const char *cases[][3] = {
      {"  view  -x   a\"b $(c) ; ", "view|-x|a\"b|$(c)|;", "view|-x|a\"b|$(c)|;"},
      {"/opt/my viewer", "/opt/my|viewer", "/opt/my viewer"},
      {"/opt/my viewer two -f", "/opt/my|viewer|two|-f", "/opt/my viewer|two|-f"}};
  for (const auto &[text, split, command] : cases) {
    EXPECT_EQ(shown(ProgramLine::Split(text)), split);
    EXPECT_EQ(shown(ProgramLine::OfCommand(text, isExecutable)), command);
  }
}
