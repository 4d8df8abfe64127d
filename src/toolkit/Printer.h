#pragma once

#include <QString>
#include <memory>

class QPrinter;

/// Where plain text goes to paper, or into a file that stands for it: black on white, in one
/// typewriter font, with tabs of 8 columns, without page numbers. Lines that are too long wrap, and
/// a full page is followed by the next. White space at the end of a page makes no further page.
class Printer {
 public:
  /// Where the next text stands after a Print.
  enum class Position {
    NextLine,
    SameLine,
    NextZone,  ///< the next column that is a multiple of 14
  };

  virtual ~Printer() = default;

  /// In points, for what is printed from here on and for the page under way. A size below 1 changes
  /// nothing.
  virtual void SetFontSize(int points) = 0;

  /// The text may have any line ends.
  virtual void Print(const QString &text, Position next) = 0;

  /// What comes next stands on a page of its own. Makes no empty page.
  virtual void NewPage() = 0;

  /// Ends the document. On a printer it is a job of its own; in a file the next document follows
  /// from a new page on. False if it could not be printed in full.
  virtual bool EndDoc() = 0;
};

/// A printer as the platform has it set up. A file is complete when the object goes.
std::unique_ptr<Printer> MakePrinter(std::unique_ptr<QPrinter> device);
