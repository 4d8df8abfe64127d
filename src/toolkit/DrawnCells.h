#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

/// A widget that draws its buttons or tabs itself. To assistive tools each of them is a child of
/// the widget with a name and a press action.
class DrawnCells {
 public:
  virtual ~DrawnCells() = default;

  virtual int CellCount() const = 0;

  // Of the cell with that number, from 1.
  virtual QString CellName(int cell) const = 0;
  virtual QRect CellRect(int cell) const = 0;  ///< in the widget's pixels
  virtual void PressCell(int cell) = 0;

  /// The cell that the keyboard is at.
  virtual int CurrentCell() const = 0;

  /// What the widget is and what each cell is.
  virtual QAccessible::Role Role() const = 0;
  virtual QAccessible::Role CellRole() const = 0;

 protected:
  /// Makes the toolkit ask widgets for their cells; to be called by every widget of this kind.
  static void InstallAccessible();
};
