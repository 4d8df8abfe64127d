#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>

/// The pictures of the framesets, named picFrame_0 and so on, of which one is chosen, like radio
/// buttons; shpSelection is the outline round it. The arrow keys choose too.
class FramePictures : public QGroupBox {
  Q_OBJECT

 public:
  explicit FramePictures(QWidget *parent = nullptr);

  /// As the user does it.
  void Click(int index);

 Q_SIGNALS:
  /// The user has chosen a picture, the chosen one or another.
  void Clicked(int index);

 private:
  void Outline(int index);

  QGridLayout *layPictures_;
  QFrame *shpSelection_;
};
