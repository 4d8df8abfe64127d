#pragma once

#include <QAbstractButton>
#include <algorithm>

/// The number, from 0, of the option that is set in an array of option buttons; -1 if none is.
template <class Options>
int ChosenOption(const Options &options) {
  const auto chosen =
      std::find_if(options.begin(), options.end(),
                   [](const QAbstractButton *option) { return option->isChecked(); });
  return chosen == options.end() ? -1 : int(chosen - options.begin());
}
