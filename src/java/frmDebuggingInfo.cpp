#include "java/frmDebuggingInfo.h"

#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QResizeEvent>
#include <algorithm>

#include "base/mFolders.h"
#include "base/mPlatform.h"
#include "base/mText.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"
#include "toolkit/twips.h"

qint32 RunMode = 0;

namespace {

constexpr int interval = 1000;  // milliseconds
constexpr int lastTick = 40;    // that goes on
constexpr qint64 largestRunFile = 9'000'000;
constexpr double columnShares[] = {0.06, 0.06, 0.44, 0.44};
constexpr int columns = 4;
constexpr int rowGap = 4;  // pixels
constexpr int roundTheViews = twips(150);
constexpr int aboveAndBelow = twips(700);

QString InTemporaryFolder(const QString &name) {
  return mFolders::Join(mPlatform::Current().temporaryFolder, name);
}

}  // namespace

frmDebuggingInfo::frmDebuggingInfo() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  picDebuggingInfoTab->SetTabs({{QStringLiteral("  compiler"), QStringLiteral("  compiler")},
                                {QStringLiteral("output"), QStringLiteral("output")}});
  picDebuggingInfoTab->lower();
  flgDebuggingInfo->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  timTimer = new QTimer(this);
  timTimer->setObjectName(QStringLiteral("timTimer"));
  timTimer->setInterval(interval);
  connect(timTimer, &QTimer::timeout, this, &frmDebuggingInfo::ReadCompilerOutput);
  connect(picDebuggingInfoTab, &DrawnTabStrip::TabPressed, this, &frmDebuggingInfo::TurnTo);
}

void frmDebuggingInfo::Load() {
  mPublic::ReadPreferences();
  QFont font(mPublic::recPreferences.EditorFontName.Trimmed());
  if (const int size = mPublic::recPreferences.EditorFontSize; size > 0) font.setPointSize(size);
  flgDebuggingInfo->setFont(font);
  txtDebuggingInfoOutput->setFont(font);
  flgDebuggingInfo->verticalHeader()->setDefaultSectionSize(QFontMetrics(font).height() + rowGap);
  ClearGrid(1);
  TurnTo(1);
}

void frmDebuggingInfo::Unloaded() {
  timTimer->stop();
}

QString frmDebuggingInfo::CompilerFile() {
  return InTemporaryFolder(QStringLiteral("compiler.dat"));
}

// The measures are those of whole windows, frames included. This one's frame isn't known before it
// is shown; the main window's is as wide.
void frmDebuggingInfo::PlaceOverWorkArea() {
  const mdiMain &main = *Default<mdiMain>();
  const QSize frame = main.frameGeometry().size() - main.size();
  const QSize area = main.mdiArea->size();
  const int panel = main.picRightWindows->isVisible() ? main.picRightWindows->width() : 0;
  const int width = main.frameGeometry().width() - main.cbrLeft->width() - panel - twips(200);
  const int height = main.frameGeometry().height() - main.cbrTop->height() - twips(750);
  resize(QSize(std::min(width, area.width()), height / 4) - frame);
  move(main.mdiArea->mapToGlobal(QPoint(0, std::min(height, area.height()) - height / 4)));
}

void frmDebuggingInfo::resizeEvent(QResizeEvent *event) {
  DialogForm::resizeEvent(event);
  const QRect views((roundTheViews + 1) / 2, (aboveAndBelow - DrawnTabStrip::LineHeight) / 2,
                    width() - roundTheViews, height() - aboveAndBelow);
  flgDebuggingInfo->setGeometry(views);
  txtDebuggingInfoOutput->setGeometry(views);
  picDebuggingInfoTab->setGeometry(rect());
  DrawOutputTabs(picDebuggingInfoTab->ActiveTab());
}

// ---- tabs

void frmDebuggingInfo::TurnTo(int tab) {
  flgDebuggingInfo->setVisible(tab == 1);
  txtDebuggingInfoOutput->setVisible(tab == 2);
  DrawOutputTabs(tab);
}

void frmDebuggingInfo::DrawOutputTabs(int tab) {
  picDebuggingInfoTab->SetActiveTab(tab);
}

// ---- grid

void frmDebuggingInfo::SetGridHeader() {
  flgDebuggingInfo->setHorizontalHeaderLabels({QStringLiteral("No."), QStringLiteral("Line"),
                                               QStringLiteral("Compiler Message"),
                                               QStringLiteral("Source Code")});
  for (int column = 0; column < columns; ++column) {
    const double share = flgDebuggingInfo->width() * TwipsPerPixel * columnShares[column];
    flgDebuggingInfo->setColumnWidth(column, twips(int(share)));
  }
}

// Without headings too; the toolkit would number the columns.
void frmDebuggingInfo::ClearGrid(int rows) {
  flgDebuggingInfo->setRowCount(0);
  flgDebuggingInfo->setRowCount(rows);
  flgDebuggingInfo->setHorizontalHeaderLabels({QString(), QString(), QString(), QString()});
}

// ---- a run

void frmDebuggingInfo::StartRun(const QString &fileName) {
  ++run_;
  ticks_ = 0;
  lastRead_ = {};
  timTimer->start();
  ClearGrid(1);
  txtDebuggingInfoOutput->clear();
  // A title would show "[*]" as the mark of a modified window.
  QString title = QStringLiteral("Informations for ") + mText::Trim(fileName);
  setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

// While events are let through, the user may have closed the window or begun another run.
bool frmDebuggingInfo::WaitsFor(int run) const {
  return run == run_ && !IsUnloaded();
}

// Off at the head of a tick, since a tick pumps and must not nest.
void frmDebuggingInfo::ReadCompilerOutput() {
  timTimer->stop();
  if (RunMode == 1) LookForMessages();
  if (RunMode == 2) LookForOutput();
}

std::optional<QByteArray> frmDebuggingInfo::ReadIfChanged(const QString &path, qint64 most) {
  const QFileInfo info(path);
  const Stamp now{info.size(), info.lastModified()};
  QFile file(path);
  if (!info.isFile() || now == lastRead_ || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  lastRead_ = now;
  return file.read(most);
}

void frmDebuggingInfo::LookForMessages() {
  const int run = run_;
  DoEvents();
  if (!WaitsFor(run)) return;
  const auto bytes = ReadIfChanged(CompilerFile(), CompilerOutput::LargestFile);
  const QString text = bytes ? CompilerOutput::Decode(*bytes) : QString();
  DoEvents();
  if (!WaitsFor(run)) return;
  if (CompilerOutput::HasEnded(text)) {
    ShowMessages(text);
  } else {
    WaitOn();
  }
}

void frmDebuggingInfo::WaitOn() {
  if (ticks_ == 0 || ticks_ > lastTick) SetGridHeader();
  if (ticks_ > lastTick) {
    ClearGrid(1);
    ticks_ = 0;
    return;
  }
  timTimer->start();
  ++ticks_;
}

void frmDebuggingInfo::ShowMessages(const QString &text) {
  const int run = run_;
  SetGridHeader();
  txtDebuggingInfoOutput->setPlainText(mText::Trim(text));
  QList<CompilerMessage> messages;
  for (const QStringView block : CompilerOutput::Blocks(text)) {
    messages << CompilerOutput::MessageOf(block);
    DoEventsInLoop();
    if (!WaitsFor(run)) return;
  }
  FillGrid(messages);
}

void frmDebuggingInfo::FillGrid(const QList<CompilerMessage> &messages) {
  const int run = run_;
  ClearGrid(int(messages.size()));
  SetGridHeader();
  for (int row = 0; row < messages.size(); ++row) {
    const CompilerMessage &message = messages[row];
    int column = 0;
    for (const QString &cell : {QString::number(row + 1), QString::number(message.Line),
                                message.Message, message.Source}) {
      flgDebuggingInfo->setItem(row, column++, new QTableWidgetItem(cell));
    }
    DoEventsInLoop();
    if (!WaitsFor(run)) return;
  }
}

// What a program that was run has written, for as long as it runs.
void frmDebuggingInfo::LookForOutput() {
  if (picDebuggingInfoTab->ActiveTab() != 2) DrawOutputTabs(2);
  txtDebuggingInfoOutput->show();
  flgDebuggingInfo->hide();
  const int run = run_;
  DoEvents();
  if (!WaitsFor(run)) return;
  const auto bytes = ReadIfChanged(InTemporaryFolder(QStringLiteral("run.dat")), largestRunFile);
  if (bytes) txtDebuggingInfoOutput->setPlainText(mText::Trim(CompilerOutput::Decode(*bytes)));
  timTimer->start();
}
