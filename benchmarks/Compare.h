#pragma once

#include <QStringList>
#include <functional>
#include <optional>

/// This program, with a role to play instead of measuring.
QStringList OwnRole(const QStringList &arguments);

/// What a line says of its limit; remembers if it doesn't hold.
QString Verdict(double measured, double limit);

/// Whether every limit so far holds.
bool AllWithinLimits();

/// Runs both in turn, several times after a first round that doesn't count, and prints both medians
/// and the median of the ratios of each round. Both return what is measured, in the given unit.
void Compare(const QString &what, const QString &unit, double limit,
             const std::function<double()> &ours, const std::function<double()> &bare);

/// The same, but prints how much more ours is, in the unit, and takes that as the limit.
void CompareAbove(const QString &what, const QString &unit, double limit,
                  const std::function<double()> &ours, const std::function<double()> &bare);

/// Prints the median of several rounds of what is measured by itself.
void Measure(const QString &what, const QString &unit, double limit,
             const std::function<double()> &ours);

/// What is compared of two processes; what has no limit isn't printed.
struct ProcessLimits {
  std::optional<double> wallRatio;
  std::optional<double> peakRatio;  ///< of the most memory that was resident
  std::optional<double> cpuAbove;   ///< milliseconds that ours may use more
  int rounds = 7;
};

/// The same for two programs that run from start to end.
void CompareProcesses(const QString &what, const QStringList &ours, const QStringList &bare,
                      const ProcessLimits &limits);

/// Seconds that a piece of work takes.
double Seconds(const std::function<void()> &work);

/// A page of about that many bytes, as an author's: lines of mark-up of uneven length.
QByteArray Page(qsizetype bytes);

/// Writes a page of that size into the benchmark's folder and returns its path.
QString PageFile(qsizetype bytes);

// ---- the benchmarks, and the roles that their processes play

void BenchStart();
void BenchOpening();
void BenchTyping();
void BenchJournal();
void BenchColouring();
void BenchMoves();
void BenchStencils();
void BenchTree();
void BenchArrange();
void BenchAssistants();
void BenchCompiler();
void BenchImages();
void BenchMemory();

int PlayStart();
int PlayOpening(const QString &file);
