#pragma once

#include <QString>

/// A file dialog that a form keeps: it remembers its filter and the last file name between calls.
class CommonDialog {
 public:
  QString Filter;       ///< pairs "label|patterns|label|patterns", patterns separated by ";"
  QString FileName;     ///< the last choice, kept after Cancel; what is set here is where it begins
  QString DialogTitle;  ///< empty for the platform's own
  bool MayBeNew = false;  ///< whether ShowOpen takes a name that doesn't exist yet

  /// Shows the dialog. False after Cancel.
  bool ShowOpen();
  bool ShowSave();

  /// The file name without its folder; empty if no file has been chosen.
  QString FileTitle() const;
};
