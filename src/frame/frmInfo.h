#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "toolkit/mForms.h"

/// The about box: a picture without a window frame, with a text that runs through it.
class frmInfo : public DialogForm {
  Q_OBJECT

 public:
  frmInfo();
  void Load() override;

  QLabel *imgfrmInfo;
  QWidget *picNameBelanglos;  ///< clips the running text
  QLabel *lblScroll;
  QPushButton *lblOk;
  QPushButton *lblSysInfo;
  QTimer *timTimer;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  void timTimer_Timer();
  void lblSysInfo_Click();

  bool ranThrough_ = false;  ///< the text stands at its beginning again, for one more interval
};
