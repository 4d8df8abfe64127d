#include "base/ProgramLine.h"

#include "base/mText.h"

ProgramLine ProgramLine::Split(const QString &text) {
  QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  if (words.isEmpty()) return {};
  const QString program = words.takeFirst();
  return {program, words};
}

ProgramLine ProgramLine::OfCommand(const QString &text,
                                   const std::function<bool(const QString &)> &isExecutable) {
  const QString command = mText::Trim(text);
  for (qsizetype end = 0; end < command.size(); ++end) {
    end = command.indexOf(u' ', end);
    if (end < 0) end = command.size();
    const QString program = command.left(end);
    if (isExecutable(program)) {
      return {program, command.mid(end).split(u' ', Qt::SkipEmptyParts)};
    }
  }
  return Split(command);
}
