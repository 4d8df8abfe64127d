#pragma once

#include <QString>

/// What the list assistant writes: the choices of its dialog, and the empty list made of them. The
/// members count the dialog's options from 0.
struct ListText {
  enum Kind { Unsorted, Sorted, Definitions, Menu, Directory };

  int kind = Unsorted;
  int bulletType = 0;      ///< of an unsorted list: circle, square, disc
  int numberingStyle = 0;  ///< of a sorted list: I, i, A, a, 1
  bool compact = false;    ///< heeded by a sorted list alone
  QString noOfItems;       ///< the text of a number box: none if it isn't a number up to 32,767
  QString startValue;      ///< the text of a number box, for a sorted list: 0 if it isn't a number

  QString Build() const;
};
