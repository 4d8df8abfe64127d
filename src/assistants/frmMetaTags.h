#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <array>

#include "assistants/MetaTagsText.h"
#include "toolkit/mForms.h"
#include "ui_frmMetaTags.h"

/// Puts a block of meta tags into the document, in front of what is selected.
class frmMetaTags : public DialogForm, public Ui::frmMetaTags {
  Q_OBJECT

 public:
  frmMetaTags();

  std::array<QCheckBox *, 10> chkMetaTags;
  std::array<QLineEdit *, 11> txtMetaTags;  ///< by row; the last is the cookie's second box
  QLineEdit *txtSeconds;

 private:
  void AddRow(int row);
  QLineEdit *AddBox(int row, int column, const char *label);
  void cmdOk_Click();

  struct Boxes {
    QLineEdit *first, *second;  // no second in a row of one box
  };
  std::array<Boxes, 10> boxes_;
};
