#pragma once

#include <QList>
#include <deque>

#include "toolkit/Programs.h"

/// Programs that start nothing and note what they were asked.
class ScriptedPrograms : public Programs {
 public:
  /// Puts fresh scripted programs in use and returns them; they live until the next Install.
  static ScriptedPrograms &Install() {
    auto programs = std::make_unique<ScriptedPrograms>();
    ScriptedPrograms &installed = *programs;
    Programs::Set(std::move(programs));
    return installed;
  }

  std::deque<Outcome> outcomes;              ///< of the next starts; Started when used up
  std::optional<Application> toFile, toWeb;  ///< what is bound
  QList<Command> started;
  QStringList opened;  ///< "id path" of every file that was opened

  Outcome Start(const Command &command) override {
    started << command;
    if (outcomes.empty()) return Outcome::Started;
    const Outcome next = outcomes.front();
    outcomes.pop_front();
    return next;
  }
  std::optional<Application> BoundToFile(const QString &) override { return toFile; }
  std::optional<Application> BoundToWeb() override { return toWeb; }
  void Open(const QString &path, const Application &application) override {
    opened << application.id + u' ' + path;
  }
};
