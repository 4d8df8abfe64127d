#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <array>
#include <deque>
#include <functional>
#include <optional>

#include "documents/Journal.h"
#include "monkey/Dice.h"

class QAction;
class QWidget;

/// Drives the real forms at random from within the event loop: a step each time that the loop comes
/// round, and now and then one in the middle of another, while that pumps events.
class Monkey : public QObject {
 public:
  struct Plan {
    int steps = 0;
    unsigned seed = 0;
    bool trace = false;  ///< each action goes to the standard error output
    /// Seconds of the processor's time until SIGPROF, and ten times as many by the clock until
    /// SIGALRM; 0 for never.
    unsigned longestStep = 0;
    QString folder;  ///< that it plays in, with the program's files in it
  };

  explicit Monkey(const Plan &plan);
  ~Monkey() override;

  /// Where it stands, and what it did last; can be called when the process is about to die.
  void Report() const;

  /// A number that is the same for equal runs.
  unsigned Fingerprint() const { return fingerprint_; }

  /// Set once something has been found that isn't as it should be; the run ends then.
  bool Failed() const { return failed_; }
  void Fail(const QString &what);

 private:
  struct Kind {
    int weight;
    void (Monkey::*act)();
  };

  void Tick(int depth);
  void Act();
  void Note(const QString &what);

  void Begin();
  void BeginAnew();
  void LookIntoJournal();
  void FillFolder();
  void LookAround();

  void PressKey();
  void Press(Qt::Key key, Qt::KeyboardModifiers with);
  void TypeText();
  void Click();
  void Drag();
  void Wheel();
  void TakeMenuEntry();
  void OpenForm();
  void OpenDocument();
  void CloseSomething();
  void UnloadSomething();
  void SizeSomething();
  void DropFile();
  void FillClipboard();
  void Wait();

  QWidget *AnyWindow();
  QWidget *AnyWidget(const QWidget &window);
  QString AnyText();
  QString AnyFile();

  const Plan plan_;
  std::optional<Journal> journal_;
  Dice dice_;
  std::array<QTimer, 4> timers_;  ///< one a depth: a timer doesn't fire within itself
  int depth_ = -1;
  int step_ = 0;
  bool ended_ = false;
  bool failed_ = false;
  unsigned fingerprint_ = 0;
  std::deque<std::string> last_;
};
