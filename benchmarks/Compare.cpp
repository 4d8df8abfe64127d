#include "Compare.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace {

constexpr int rounds = 7;

bool allWithin = true;

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// What a process has used from its start to its end.
struct ProcessCost {
  double wallSeconds;
  double cpuSeconds;
  double peakMegabytes;
};

// What was measured in the rounds, ours and the bare one's.
struct Rounds {
  std::vector<double> ours;
  std::vector<double> bare;
};

void Print(const QString &what, const QString &unit, double limit, const Rounds &measured,
           const char *joined, double (*join)(double ours, double bare)) {
  std::vector<double> pairs;
  std::transform(measured.ours.begin(), measured.ours.end(), measured.bare.begin(),
                 std::back_inserter(pairs), join);
  QTextStream(stdout) << QStringLiteral("%1 %2 %3 %4  %5 %6  %7\n")
                             .arg(what, -54)
                             .arg(Median(measured.ours), 9, 'f', 3)
                             .arg(Median(measured.bare), 9, 'f', 3)
                             .arg(unit, -2)
                             .arg(QLatin1String(joined))
                             .arg(Median(pairs), 6, 'f', 2)
                             .arg(Verdict(Median(pairs), limit));
}

double Ratio(double ours, double bare) {
  return ours / bare;
}
double Difference(double ours, double bare) {
  return ours - bare;
}

// Runs a program to its end. Ends the benchmark if it fails.
ProcessCost RunProcess(const QStringList &commandLine) {
  std::vector<QByteArray> words;
  for (const QString &word : commandLine) words.push_back(QFile::encodeName(word));
  std::vector<char *> argv;
  for (QByteArray &word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  QElapsedTimer clock;
  clock.start();
  const pid_t child = fork();
  if (child == 0) {
    execv(argv[0], argv.data());
    _exit(127);
  }
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    QTextStream(stderr) << "failed: " << commandLine.join(u' ') << '\n';
    std::exit(1);
  }
  const auto seconds = [](const timeval &time) {
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
  };
  return {double(clock.nsecsElapsed()) / 1e9, seconds(used.ru_utime) + seconds(used.ru_stime),
          double(used.ru_maxrss) / 1024};
}

Rounds RunRounds(const std::function<double()> &ours, const std::function<double()> &bare) {
  Rounds measured;
  for (int round = 0; round <= rounds; ++round) {
    const double our = ours();
    const double bares = bare();
    if (round == 0) continue;
    measured.ours.push_back(our);
    measured.bare.push_back(bares);
  }
  return measured;
}

}  // namespace

QString Verdict(double measured, double limit) {
  const bool within = measured <= limit;
  allWithin = allWithin && within;
  return QStringLiteral("(at most %1)%2")
      .arg(limit)
      .arg(within ? QLatin1String() : QLatin1String(" EXCEEDED"));
}

bool AllWithinLimits() {
  return allWithin;
}

QStringList OwnRole(const QStringList &arguments) {
  return QStringList{QCoreApplication::applicationFilePath()} + arguments;
}

void Compare(const QString &what, const QString &unit, double limit,
             const std::function<double()> &ours, const std::function<double()> &bare) {
  Print(what, unit, limit, RunRounds(ours, bare), "ratio", Ratio);
}

void CompareAbove(const QString &what, const QString &unit, double limit,
                  const std::function<double()> &ours, const std::function<double()> &bare) {
  Print(what, unit, limit, RunRounds(ours, bare), "above", Difference);
}

void Measure(const QString &what, const QString &unit, double limit,
             const std::function<double()> &ours) {
  CompareAbove(what, unit, limit, ours, [] { return 0.0; });
}

void CompareProcesses(const QString &what, const QStringList &ours, const QStringList &bare,
                      const ProcessLimits &limits) {
  Rounds wall, cpu, peak;
  const auto note = [](std::vector<double> Rounds::*side, Rounds &wallOf, Rounds &cpuOf,
                       Rounds &peakOf, const ProcessCost &cost) {
    (wallOf.*side).push_back(cost.wallSeconds * 1000);
    (cpuOf.*side).push_back(cost.cpuSeconds * 1000);
    (peakOf.*side).push_back(cost.peakMegabytes);
  };
  for (int round = 0; round <= limits.rounds; ++round) {
    const ProcessCost our = RunProcess(ours);
    const ProcessCost bares = RunProcess(bare);
    if (round == 0) continue;
    note(&Rounds::ours, wall, cpu, peak, our);
    note(&Rounds::bare, wall, cpu, peak, bares);
  }
  const QString ms = QStringLiteral("ms");
  if (limits.wallRatio) {
    Print(what + QStringLiteral(", time"), ms, *limits.wallRatio, wall, "ratio", Ratio);
  }
  if (limits.cpuAbove) {
    Print(what + QStringLiteral(", CPU"), ms, *limits.cpuAbove, cpu, "above", Difference);
  }
  if (limits.peakRatio) {
    Print(what + QStringLiteral(", peak memory"), QStringLiteral("MB"), *limits.peakRatio, peak,
          "ratio", Ratio);
  }
}

double Seconds(const std::function<void()> &work) {
  QElapsedTimer clock;
  clock.start();
  work();
  return double(clock.nsecsElapsed()) / 1e9;
}

QByteArray Page(qsizetype bytes) {
  QByteArray page("<html>\r\n<head>\r\n<title>a long page</title>\r\n</head>\r\n<body>\r\n");
  for (int line = 0; page.size() < bytes; ++line) {
    page += "<p class=\"c" + QByteArray::number(line % 17) + "\">line " + QByteArray::number(line) +
            QByteArray(line % 40, 'x') + " <b>bold</b> <a href=\"#top\">up</a></p>\r\n";
  }
  return page + "</body>\r\n</html>\r\n";
}

QString PageFile(qsizetype bytes) {
  static const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("page%1.html").arg(bytes)));
  if (!file.exists() && file.open(QIODevice::WriteOnly)) file.write(Page(bytes));
  return file.fileName();
}
