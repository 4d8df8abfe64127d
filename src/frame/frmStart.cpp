#include "frame/frmStart.h"

#include <QScreen>

#include "base/DataFiles.h"
#include "base/mFolders.h"
#include "frame/InstanceLock.h"
#include "frame/SplashPicture.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"

namespace {
constexpr int splashTime = 5000;  // milliseconds
}

frmStart::frmStart() {
  setObjectName(QStringLiteral("frmStart"));
  setWindowTitle(QStringLiteral("tagwright"));
  setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  imgfrmStart = new QLabel(this);
  imgfrmStart->setObjectName(QStringLiteral("imgfrmStart"));
  lblStart = new QLabel(QStringLiteral("v1.100"), this);
  lblStart->setObjectName(QStringLiteral("lblStart"));
  lblStart->setStyleSheet(QStringLiteral("color: #d9e8f7"));
  timTimer = new QTimer(this);
  timTimer->setObjectName(QStringLiteral("timTimer"));
  timTimer->setInterval(splashTime);
  connect(timTimer, &QTimer::timeout, this, &frmStart::HandOver);
}

void frmStart::Load() {
  if (RefusedToStart()) return;
  mayStart_ = true;
  mPublic::ReadPreferences();
  if (!mPublic::recPreferences.ShowStartWindow) {
    HandOver();
    return;
  }
  imgfrmStart->setPixmap(SplashPicture(devicePixelRatioF()));
  imgfrmStart->adjustSize();
  resize(imgfrmStart->size());
  lblStart->adjustSize();
  lblStart->move(width() - lblStart->width() - 12, height() - lblStart->height() - 8);
  timTimer->start();
  show();
  DoEvents();
}

bool frmStart::RefusedToStart() {
  if (AnotherInstanceRuns(mFolders::ProgramFolder())) {
    Dialogs::Current().Message(QStringLiteral("Still there is an Instance of tagwright running!"),
                               Dialogs::Buttons::Ok, Dialogs::Icon::Information,
                               QStringLiteral("Starting Message"));
    return true;
  }
  if (FirstDefectDataFile(mFolders::ProgramFolder())) {
    Dialogs::Current().Message(
        QStringLiteral("The application installation of tagwright is defect, please run the "
                       "REPAIR-Function in Setup"),
        Dialogs::Buttons::Ok, Dialogs::Icon::Critical,
        QStringLiteral("Tagwright - Critical Message"));
    return true;
  }
  return false;
}

void frmStart::showEvent(QShowEvent *event) {
  FormOf::showEvent(event);
  move(screen()->geometry().center() - rect().center());
  raise();
}

void frmStart::resizeEvent(QResizeEvent *event) {
  FormOf::resizeEvent(event);
  if (!imgfrmStart->size().isEmpty()) resize(imgfrmStart->size());
}

// Picture and label don't take the press, so one on either of them arrives here.
void frmStart::mousePressEvent(QMouseEvent *) {
  HandOver();
}

void frmStart::HandOver() {
  timTimer->stop();
  hide();
  Default<mdiMain>()->show();
  Unload(*this);
}
