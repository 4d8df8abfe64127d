// The panel on the right: its titles, its width, and how the keyboard goes round.

#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "base/mText.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"
#include "toolkit/DrawnIcon.h"
#include "toolkit/twips.h"

namespace {

constexpr int sizingStep = twips(1000);
constexpr int smallestArea = 200;  // pixels that the documents keep when the panel grows
constexpr int stencilsTabHeight = 18;
constexpr int stencilsTabOverlap = 2;
constexpr int titleMargin = 3;  // above and below a title, for the button in its row
constexpr int titleIndent = 3;
constexpr int largeButtonWidth = 44;
constexpr int largeButtonRight = 5;
constexpr int roundLarge = 12;  // on both sides of the word together

void DrawTriangle(QPainter &painter, const QPolygonF &corners) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(128, 128, 128));
  painter.drawPolygon(corners);
}

// The arrow that a sizing button's digit stands for in a font of symbols.
QIcon Arrow(const QToolButton &button) {
  switch (button.text().at(0).unicode()) {
    case '3':
      return DrawnIcon(9, [](QPainter &p) { DrawTriangle(p, {{6.5, 1}, {6.5, 8}, {2, 4.5}}); });
    case '4':
      return DrawnIcon(9, [](QPainter &p) { DrawTriangle(p, {{2.5, 1}, {2.5, 8}, {7, 4.5}}); });
    case '5':
      return DrawnIcon(9, [](QPainter &p) { DrawTriangle(p, {{1, 6.5}, {8, 6.5}, {4.5, 2}}); });
    default:
      return DrawnIcon(9, [](QPainter &p) { DrawTriangle(p, {{1, 2.5}, {8, 2.5}, {4.5, 7}}); });
  }
}

}  // namespace

void mdiMain::SetUpPanel() {
  cmdSizing_ = {cmdSizing_0, cmdSizing_1, cmdSizing_2};
  for (int index = 0; index < 3; ++index) {
    QToolButton *button = cmdSizing_[index];
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIcon(Arrow(*button));
    connect(button, &QToolButton::clicked, this, [this, index] { cmdSizing_Click(index); });
  }
  cmdTagDescriptionLarge = new QPushButton(QStringLiteral("large"), picRightWindows);
  cmdTagDescriptionLarge->setObjectName(QStringLiteral("cmdTagDescriptionLarge"));
  // Three pixels between the description and its title, where other parts touch theirs.
  layRightWindows->insertSpacing(layRightWindows->indexOf(picTagDescription), 1);
  titles_ = {
      {{1, lblWindowTitelOpenFiles, {trwOpenFiles}},
       {2, lblWindowTitelStencilWindow, {picStencilsTab, trwStencils, trwSelfBuildedStencils}},
       {4, lblWindowTitelTagDescription, {picTagDescription}}}};
  picStencilWindow->installEventFilter(this);
  lblTagDescription->installEventFilter(this);
  connect(picTagDescription, &DrawnTabStrip::Resized, this, &mdiMain::PlaceDescription);
  for (const PanelTitle &title : titles_) {
    title.label->installEventFilter(this);
    title.label->setContentsMargins(titleIndent, titleMargin, 0, titleMargin);
    for (QObject *contents : title.contents) contents->installEventFilter(this);
  }
}

// ---- titles

void mdiMain::SetTitlebarColor(int value) {
  for (const PanelTitle &title : titles_) {
    const bool active = title.value == value;
    title.label->setBackgroundRole(active ? QPalette::Highlight : QPalette::Mid);
    title.label->setForegroundRole(active ? QPalette::HighlightedText : QPalette::WindowText);
  }
}

bool mdiMain::eventFilter(QObject *watched, QEvent *event) {
  for (const PanelTitle &title : titles_) {
    if (watched == title.label) {
      if (event->type() == QEvent::MouseButtonRelease) SetTitlebarColor(title.value);
      if (event->type() == QEvent::Resize || event->type() == QEvent::Move) PlaceLargeButton();
    } else if (title.contents.contains(watched)) {
      if (event->type() == QEvent::FocusIn) SetTitlebarColor(title.value);
      if (event->type() == QEvent::FocusOut) SetTitlebarColor(0);
    }
  }
  if (watched == picStencilWindow && event->type() == QEvent::Resize) PlaceStencilWindow();
  if (watched == lblTagDescription && event->type() == QEvent::MouseButtonRelease) {
    picTagDescription->setFocus();
  }
  return FormOf::eventFilter(watched, event);
}

// Both trees lie in one rectangle, two pixels over the lower edge of their tabs.
void mdiMain::PlaceStencilWindow() {
  const QRect room = picStencilWindow->rect();
  picStencilsTab->setGeometry(0, 0, room.width(), stencilsTabHeight);
  for (QWidget *tree : {trwStencils, trwSelfBuildedStencils}) {
    tree->setGeometry(room.adjusted(0, stencilsTabHeight - stencilsTabOverlap, 0, 0));
  }
}

void mdiMain::PlaceDescription() {
  lblTagDescription->setGeometry(3, 1, picTagDescription->width() - 10,
                                 picTagDescription->height() - 20);
}

void mdiMain::PlaceLargeButton() {
  const QRect title = lblWindowTitelTagDescription->geometry();
  cmdTagDescriptionLarge->setFont(lblWindowTitelTagDescription->font());
  const QString &word = cmdTagDescriptionLarge->text();
  const int width = std::max(
      largeButtonWidth, cmdTagDescriptionLarge->fontMetrics().horizontalAdvance(word) + roundLarge);
  cmdTagDescriptionLarge->setGeometry(picRightWindows->width() - largeButtonRight - width,
                                      title.top() + 1, width, title.height() - 2);
}

// ---- width

void mdiMain::SetPanelWidth(int width) {
  const QList<int> sizes = splClient->sizes();
  const int both = sizes[0] + sizes[1];
  const int buttons = picResizeButtons->sizeHint().width();
  const int most = std::max(both - buttons - smallestArea, picRightWindows->minimumWidth());
  const int panel = std::clamp(width, picRightWindows->minimumWidth(), most);
  const int right = picRightWindows->isHidden() ? buttons : buttons + panel;
  splClient->setSizes({both - right, right});
}

void mdiMain::cmdSizing_Click(int index) {
  const auto setEnabled = [this](bool enabled) {
    cmdSizing_[0]->setEnabled(enabled);
    cmdSizing_[1]->setEnabled(enabled);
  };
  if (index == 0) {
    SetPanelWidth(picRightWindows->width() + sizingStep);
  } else if (index == 1) {
    const bool hadFocus = cmdSizing_[1]->hasFocus();
    setEnabled(false);
    SetPanelWidth(picRightWindows->width() - sizingStep);
    setEnabled(true);
    if (hadFocus) cmdSizing_[1]->setFocus(Qt::OtherFocusReason);
  } else {
    ShowPanel(mText::Val(cmdSizing_[2]->text()) == 6);
    setEnabled(picRightWindows->isVisibleTo(this));
    DoEvents();
  }
}

// The buttons stay where the panel's edge is, hidden or not.
void mdiMain::ShowPanel(bool show) {
  if (!show) shownPanelWidth_ = picRightWindows->width();
  picRightWindows->setVisible(show);
  panRight->setMaximumWidth(show ? QWIDGETSIZE_MAX : picResizeButtons->sizeHint().width());
  SetPanelWidth(shownPanelWidth_);
  cmdSizing_[2]->setText(show ? QStringLiteral("5") : QStringLiteral("6"));
  cmdSizing_[2]->setIcon(Arrow(*cmdSizing_[2]));
  const QString what = show ? QStringLiteral("Hide the panel") : QStringLiteral("Show the panel");
  cmdSizing_[2]->setToolTip(what);
  cmdSizing_[2]->setAccessibleName(what);
}
