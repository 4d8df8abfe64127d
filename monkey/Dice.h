#pragma once

#include <random>

/// The one source of chance of a run: the same seed gives the same run.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}

  /// From 0 to below; 0 if there is nothing to choose from.
  int Below(int below) { return below > 0 ? int(engine_() % unsigned(below)) : 0; }

  bool OneIn(int times) { return Below(times) == 0; }

  template <class List>
  auto &Of(List &&list) {
    return list[Below(int(std::size(list)))];
  }

 private:
  std::mt19937 engine_;
};
