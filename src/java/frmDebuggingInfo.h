#pragma once

#include <QDateTime>
#include <QTimer>
#include <optional>

#include "java/CompilerOutput.h"
#include "toolkit/mForms.h"
#include "ui_frmDebuggingInfo.h"

/// What the output window waits for: 1 the compiler's messages, 2 a program's output, else nothing.
extern qint32 RunMode;

/// Shows what the compiler has written: its messages in a grid, and all of it as text. It looks at
/// the compiler's file once a second until the file ends in a count of errors, or for 42 times.
class frmDebuggingInfo : public DialogForm, public Ui::frmDebuggingInfo {
  Q_OBJECT

 public:
  frmDebuggingInfo();
  void Load() override;
  void Unloaded() override;

  /// The file that the compiler writes to.
  static QString CompilerFile();

  /// Lays the window along the bottom of the main window's work area, a quarter as high.
  void PlaceOverWorkArea();

  /// Clears both views and begins to look for the messages about a file.
  void StartRun(const QString &fileName);

  /// One tick of the timer. Pumps events.
  void ReadCompilerOutput();

  /// One row for each message. Pumps events, and ends early if the window goes or a run begins.
  void FillGrid(const QList<CompilerMessage> &messages);

  void SetGridHeader();
  void DrawOutputTabs(int tab);

  QTimer *timTimer;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  /// A file's state when it was last read.
  struct Stamp {
    qint64 size = -1;
    QDateTime time;
    bool operator==(const Stamp &) const = default;
  };

  std::optional<QByteArray> ReadIfChanged(const QString &path, qint64 most);
  bool WaitsFor(int run) const;
  void LookForMessages();
  void LookForOutput();
  void WaitOn();
  void ShowMessages(const QString &text);
  void ClearGrid(int rows);
  void TurnTo(int tab);

  int ticks_ = 0;  ///< without a result
  int run_ = 0;    ///< how many runs there have been
  Stamp lastRead_;
};
