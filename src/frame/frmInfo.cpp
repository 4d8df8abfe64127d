#include "frame/frmInfo.h"

#include <QScreen>
#include <cstdlib>

#include "frame/AboutPicture.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/Dialogs.h"

namespace {

constexpr int standing = 5000;  // milliseconds before the text begins to run
constexpr int step = 100;       // milliseconds between two pixels
constexpr int untilEnd = 5;     // pixels that the text stops short of its end

QString RunningText() {
  return mPublic::strAppTitle +
         QStringLiteral(
             "\n\nthanks for using nimbara works products!\n\n"
             "An editor for many documents at once, and around it the tools of a workshop: a "
             "library of stencils with a help text for each, your own stencils beside it, and "
             "a bar for those that you reach for every day.\n\n"
             "Assistants write tables, lists, frames, links, images, rules and meta tags. You "
             "write the page.\n\n"
             "Look at it in the browser, browse your images, compile your applets and try them "
             "out, all without leaving the bench.\n\n"
             "Made by hand, for people who write by hand.");
}

QPushButton *ClickableLabel(const QString &name, const QString &text, QWidget *parent) {
  auto *label = new QPushButton(text, parent);
  label->setObjectName(name);
  label->setFlat(true);
  label->setAutoDefault(false);
  label->setCursor(Qt::PointingHandCursor);
  label->setStyleSheet(
      QStringLiteral("QPushButton { color: #d9e8f7; background: transparent; border: none; "
                     "padding: 3px 6px; }"
                     "QPushButton:hover, QPushButton:focus { color: white; "
                     "text-decoration: underline; }"));
  label->adjustSize();
  return label;
}

}  // namespace

frmInfo::frmInfo() : DialogForm(Default<mdiMain>(), Qt::Dialog | Qt::FramelessWindowHint) {
  setObjectName(QStringLiteral("frmInfo"));
  setWindowTitle(QStringLiteral("About tagwright"));
  setModal(true);
  imgfrmInfo = new QLabel(this);
  imgfrmInfo->setObjectName(QStringLiteral("imgfrmInfo"));
  picNameBelanglos = new QWidget(this);
  picNameBelanglos->setObjectName(QStringLiteral("picNameBelanglos"));
  picNameBelanglos->setGeometry(aboutTextPlace);
  lblScroll = new QLabel(picNameBelanglos);
  lblScroll->setObjectName(QStringLiteral("lblScroll"));
  lblScroll->setTextFormat(Qt::PlainText);
  lblScroll->setWordWrap(true);
  lblScroll->setStyleSheet(QStringLiteral("color: white"));
  lblSysInfo =
      ClickableLabel(QStringLiteral("lblSysInfo"), QStringLiteral("System Info ..."), this);
  lblOk = ClickableLabel(QStringLiteral("lblOk"), QStringLiteral("Ok"), this);
  lblOk->setDefault(true);
  timTimer = new QTimer(this);
  timTimer->setObjectName(QStringLiteral("timTimer"));
  timTimer->setInterval(standing);
  connect(timTimer, &QTimer::timeout, this, &frmInfo::timTimer_Timer);
  connect(lblOk, &QPushButton::clicked, this, [this] { Unload(*this); });
  connect(lblSysInfo, &QPushButton::clicked, this, &frmInfo::lblSysInfo_Click);
}

void frmInfo::Load() {
  imgfrmInfo->setPixmap(AboutPicture(devicePixelRatioF()));
  imgfrmInfo->adjustSize();
  resize(imgfrmInfo->size());
  move(screen()->availableGeometry().center() - rect().center());
  const QPoint corner = rect().bottomRight() - QPoint(20, 14);
  lblOk->move(corner - lblOk->rect().bottomRight());
  lblSysInfo->move(lblOk->x() - lblSysInfo->width() - 12, lblOk->y());
  lblScroll->setText(RunningText());
  lblScroll->resize(aboutTextPlace.width(), lblScroll->heightForWidth(aboutTextPlace.width()));
  lblOk->setFocus();
  timTimer->start();
}

void frmInfo::resizeEvent(QResizeEvent *event) {
  DialogForm::resizeEvent(event);
  if (!imgfrmInfo->size().isEmpty()) resize(imgfrmInfo->size());
}

void frmInfo::timTimer_Timer() {
  if (ranThrough_) {
    ranThrough_ = false;
    return;
  }
  const int way = std::abs(lblScroll->height() - picNameBelanglos->height());
  if (untilEnd - lblScroll->y() < way) {
    timTimer->setInterval(step);
    lblScroll->move(lblScroll->x(), lblScroll->y() - 1);
  } else {
    ranThrough_ = true;
    timTimer->setInterval(standing);
    lblScroll->move(lblScroll->x(), 0);
  }
}

// This system has no such tool.
void frmInfo::lblSysInfo_Click() {
  Dialogs::Current().Message(QStringLiteral("Systeminformationen sind momentan nicht verfügbar"),
                             Dialogs::Buttons::Ok, Dialogs::Icon::None,
                             QStringLiteral("tagwright"));
}
