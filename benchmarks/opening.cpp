#include "Compare.h"

void BenchOpening() {
  const QString role = QStringLiteral("open");
  for (const int megabytes : {10, 100}) {
    const QString file = PageFile(qsizetype(megabytes) << 20);
    CompareProcesses(
        QStringLiteral("opening %1 MB").arg(megabytes), OwnRole({role, file}),
        {QStringLiteral(BARE_PROGRAM), role, file},
        {.wallRatio = 1.3, .peakRatio = 1.2, .cpuAbove = {}, .rounds = megabytes > 10 ? 3 : 7});
  }
}
