#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <span>

/// What the table assistant writes: the choices of its dialog, and the empty table made of them.
struct TableText {
  /// A choice as the dialog's list shows it, and the value that is written for it.
  struct Choice {
    const char *caption;
    const char *value;
  };

  /// The entries of the two lists. The first writes nothing.
  static std::span<const Choice> Frames();
  static std::span<const Choice> Rules();

  struct Measure {
    QString number;  ///< the text of a number box; one without a number counts as 0
    bool percent = false;
  };

  int rows = 2;
  int cols = 2;
  std::optional<QString> background;  ///< a colour's digits, without "#"
  std::optional<Measure> width;
  std::optional<Measure> height;
  std::optional<int> border;
  std::optional<int> cellspacing;
  int frame = 0;  ///< counts the entries of Frames from 0
  int rules = 0;  ///< counts the entries of Rules from 0

  /// The table. afterCell is called behind each cell; false ends the building, and there is none.
  std::optional<QString> Build(const std::function<bool()> &afterCell) const;
};
