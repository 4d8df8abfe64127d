#include <malloc.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include "Compare.h"
#include "documents/FileCommands.h"
#include "documents/Journal.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"

namespace {

constexpr int documents = 1000;
constexpr int pageBytes = 8 << 10;
constexpr double limit = 1.01;

// Each is opened, typed in and closed, and destroyed by the events that follow.
void OpenAndCloseDocuments(const QString &file) {
  for (int document = 0; document < documents; ++document) {
    FileCommands::LoadFileIntoNewEditor(file);
    frmHTMLChild *editor = mEditors::Active();
    editor->txthtml->SetSelText(QStringLiteral("<b>typed</b>"));
    Unload(*editor);
    QCoreApplication::processEvents();
  }
}

double HeapInUse() {
  return double(mallinfo2().uordblks) / (1 << 20);
}

}  // namespace

void BenchMemory() {
  const QTemporaryDir folder;
  const Journal journal(folder.path());  // each text comes into it and is taken out again
  const QString file = PageFile(pageBytes);
  OpenAndCloseDocuments(file);
  const double first = HeapInUse();
  OpenAndCloseDocuments(file);
  const double second = HeapInUse();
  QTextStream(stdout) << QStringLiteral("%1 %2 %3 MB  ratio %4  %5\n")
                             .arg(QStringLiteral("heap after 2,000 documents, and after 1,000"),
                                  -54)
                             .arg(second, 9, 'f', 3)
                             .arg(first, 9, 'f', 3)
                             .arg(second / first, 6, 'f', 4)
                             .arg(Verdict(second / first, limit));
}
