#pragma once

#include <QWidget>

#include "toolkit/mForms.h"
#include "ui_frmMemoPad.h"

/// A window for notes while working, above the main window. Nothing saves its text: closing it
/// loses the text, and it says so.
///
/// It has no parent. When its question at the main window's close is answered No, it stays as the
/// program's last window, and its own close ends the program.
class frmMemoPad : public FormOf<QWidget>, public Ui::frmMemoPad {
  Q_OBJECT

 public:
  frmMemoPad();
  void Load() override;
  bool QueryUnload(UnloadMode mode) override;
  void Unloaded() override;
};

/// Shows the memo pad in front, as the active window.
void ShowMemoPad();
