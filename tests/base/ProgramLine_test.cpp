#include "base/ProgramLine.h"

#include <gtest/gtest.h>

namespace {

TEST(ProgramLineTest, ACommandsProgramMayHaveBlanksInItsPath) {
  struct Case {
    const char *text, *split, *command;
  };
  const auto shown = [](const ProgramLine &line) {
    return (QStringList(line.program) + line.arguments).join(u'|');
  };
  const auto isExecutable = [](const QString &path) {
    return path == QLatin1String("/opt/my viewer") || path == QLatin1String("view") ||
           path == QLatin1String("/opt/my viewer two");
  };
  for (const auto &[text, split, command] : {
           Case{"view", "view", "view"},
           {"  view  -x   a\"b $(c) ; ", "view|-x|a\"b|$(c)|;", "view|-x|a\"b|$(c)|;"},
           {"/opt/my viewer", "/opt/my|viewer", "/opt/my viewer"},
           {"/opt/my viewer two -f", "/opt/my|viewer|two|-f", "/opt/my viewer|two|-f"},
           {"/gone/my viewer", "/gone/my|viewer", "/gone/my|viewer"},
           {"   ", "", ""},
       }) {
    EXPECT_EQ(shown(ProgramLine::Split(QLatin1String(text))), QLatin1String(split));
    EXPECT_EQ(shown(ProgramLine::OfCommand(QLatin1String(text), isExecutable)),
              QLatin1String(command));
  }
}

}  // namespace
