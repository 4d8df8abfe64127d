#pragma once

#include <QLabel>
#include <array>

#include "documents/NewDocumentText.h"
#include "toolkit/mForms.h"
#include "ui_frmNewEditorWindow.h"

/// The dialog that asks which type of document to begin, and opens it in a new editor window.
class frmNewEditorWindow : public DialogForm, public Ui::frmNewEditorWindow {
  Q_OBJECT

 public:
  frmNewEditorWindow();
  void Load() override;

  /// The picture under the selection border.
  NewDocumentType chosen() const { return chosen_; }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void Choose(int index);
  bool MoveChoice(int index, int key);
  void cmdOk_Click();

  std::array<QLabel *, NewDocumentTypes> imgNewEditorWindowType_;
  NewDocumentType chosen_ = NewDocumentType::BlankPage;
};
