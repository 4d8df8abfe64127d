#pragma once

#include <array>

#include "assistants/FramesetText.h"
#include "toolkit/mForms.h"
#include "ui_frmInsertFrame.h"

/// What was chosen for the frames. It outlives the dialog, which clears it when it opens.
extern FrameSourceTable frameSourceTable;

/// Writes a frameset into the document: one of the pictured layouts, with the user's files and
/// attributes.
class frmInsertFrame : public DialogForm, public Ui::frmInsertFrame {
  Q_OBJECT

 public:
  frmInsertFrame();
  void Load() override;

  /// Gives the layout its rows of files and its tabs, and clears what was chosen for the frames.
  void SetFrameSourceTag(int index);

 private:
  void KeepPlaces();
  void picFrame_Click(int index);
  void tabFrameAttributes_Click(int tab);
  void StoreAttributes(FrameAttributes &row) const;
  void ShowAttributes(const FrameAttributes &row);
  void cmdOk_Click();

  static constexpr int maxSlots = 5;
  std::array<QLabel *, maxSlots> lblFrameSourceDescription_;
  std::array<QLineEdit *, maxSlots> txtFrameSourceDescription_;
  std::array<QRadioButton *, 3> optScrolling_;
  std::array<QRadioButton *, 2> optResize_;
  qint16 selected_ = 0;
  int slots_ = 1;
  int shownRow_ = 1;  // of frameSourceTable, whose attributes the controls show
};
