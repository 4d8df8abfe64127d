#pragma once

#include <QColor>
#include <QString>
#include <memory>
#include <optional>

#include "toolkit/Printer.h"

/// The one way to the dialogs that the platform provides. Tests put a scripted one in its place.
class Dialogs {
 public:
  enum class Buttons { Ok, YesNo, YesNoCancel, OkCancel };
  enum class Icon { None, Information, Question, Critical };
  enum class Answer { Ok, Yes, No, Cancel };

  /// What a file dialog starts with.
  struct FileRequest {
    QString filter;         ///< pairs "label|patterns|label|patterns", patterns separated by ";"
    QString fileName;       ///< a path to begin at, or empty
    bool mayBeNew = false;  ///< whether the open dialog takes a name that doesn't exist yet
  };

  enum class PrintRange { All, Selection, Pages };

  /// What the user chose to print, and on what.
  struct PrintChoice {
    PrintRange range;
    int copies;                        ///< that the caller prints one by one
    std::unique_ptr<Printer> printer;  ///< never null
  };

  virtual ~Dialogs() = default;

  /// Shows a message box in front of the active window and waits for its answer. Closing it
  /// without a button is Cancel, or No or Ok where there is no Cancel.
  virtual Answer Message(const QString &text, Buttons buttons, Icon icon, const QString &title) = 0;

  /// The path that the user chose, or nothing after Cancel.
  virtual std::optional<QString> OpenFile(const FileRequest &request) = 0;
  virtual std::optional<QString> SaveFile(const FileRequest &request) = 0;

  /// The colour that the user chose, or nothing after Cancel.
  virtual std::optional<QColor> Colour(const QColor &start) = 0;

  /// The print dialog with that range chosen at first; a selection is offered only if there is one.
  /// Nothing after Cancel.
  virtual std::optional<PrintChoice> Print(PrintRange range) = 0;

  /// The dialogs in use: the platform's own unless others have been set.
  static Dialogs &Current();

  /// Puts other dialogs in place; null puts the platform's own back.
  static void Set(std::unique_ptr<Dialogs> dialogs);
};
