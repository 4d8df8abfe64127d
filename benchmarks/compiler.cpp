#include <QTableWidget>

#include "Compare.h"
#include "java/CompilerOutput.h"
#include "java/frmDebuggingInfo.h"
#include "toolkit/DoEvents.h"

namespace {

// What a compiler writes about so many faulty lines.
QByteArray Output(qsizetype bytes) {
  QByteArray output;
  for (int line = 1; output.size() < bytes - 100; ++line) {
    const QByteArray number = QByteArray::number(line);
    output += "/home/author/src/Program.java:" + number + ": error: cannot find symbol\n\tint a" +
              number + " = missing;\n\t         ^\n";
  }
  return output + "9999 errors\n";
}

QList<CompilerMessage> Parse(const QByteArray &bytes) {
  QList<CompilerMessage> messages;
  const QString text = CompilerOutput::Decode(bytes);
  for (const QStringView block : CompilerOutput::Blocks(text)) {
    messages << CompilerOutput::MessageOf(block);
  }
  return messages;
}

double Milliseconds(const std::function<void()> &work) {
  return Seconds(work) * 1000;
}

// The same texts, and nothing let through.
void FillBare(QTableWidget &grid, const QList<CompilerMessage> &messages) {
  grid.setRowCount(0);
  grid.setRowCount(int(messages.size()));
  for (int row = 0; row < messages.size(); ++row) {
    int column = 0;
    for (const QString &cell : {QString::number(row + 1), QString::number(messages[row].Line),
                                messages[row].Message, messages[row].Source}) {
      grid.setItem(row, column++, new QTableWidgetItem(cell));
    }
  }
}

}  // namespace

void BenchCompiler() {
  const QByteArray most = Output(CompilerOutput::LargestFile);
  const QByteArray tenth = Output(CompilerOutput::LargestFile / 10);
  Compare(
      QStringLiteral("2,000,000 characters of messages, against a tenth"), QStringLiteral("ms"), 12,
      [&] { return Milliseconds([&] { Parse(most); }); },
      [&] { return Milliseconds([&] { Parse(tenth); }); });

  const QList<CompilerMessage> messages = Parse(most);
  auto *form = Default<frmDebuggingInfo>();
  form->PlaceOverWorkArea();
  form->show();
  QTableWidget bare(0, 4);
  bare.resize(form->flgDebuggingInfo->size());
  bare.show();
  DoEvents();
  Compare(
      QStringLiteral("a grid of their rows, events let through"), QStringLiteral("ms"), 1.5,
      [&] { return Milliseconds([&] { form->FillGrid(messages); }); },
      [&] { return Milliseconds([&] { FillBare(bare, messages); }); });
  Unload(*form);
}
