#pragma once

#include <QLabel>
#include <QTimer>

#include "toolkit/mForms.h"

/// The splash. Its Load tests whether the program may start; then it gives way to the main window.
class frmStart : public FormOf<QWidget> {
  Q_OBJECT

 public:
  frmStart();

  QLabel *imgfrmStart;
  QLabel *lblStart;
  QTimer *timTimer;

  /// Whether the tests of Load have let the program start. If not, the user has been told why.
  bool MayStart() const { return mayStart_; }

  void Load() override;

 protected:
  void showEvent(QShowEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;

 private:
  bool RefusedToStart();
  void HandOver();

  bool mayStart_ = false;
};
