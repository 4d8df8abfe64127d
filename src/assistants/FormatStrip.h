#pragma once

#include <QObject>

class mdiMain;

/// The format strip of the main window: what its buttons write into the active document and which
/// assistants they open, and how the colour field gets its colour.
class FormatStrip : public QObject {
  Q_OBJECT

 public:
  /// main owns it.
  explicit FormatStrip(mdiMain &main);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Press(int button);
  void PickColour();

  mdiMain &main_;
};
