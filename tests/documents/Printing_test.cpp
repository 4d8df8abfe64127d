#include "documents/Printing.h"

#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTimer>

#include "shared/FormsTest.h"

using Range = Dialogs::PrintRange;

struct PrintingTest : FormsTest {
  static std::unique_ptr<Printer> IntoFile(const QString &path) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFileName(path);
    return MakePrinter(std::move(device));
  }

  /// The pages of the printed file, set in 10 points, without the margin of two columns on the left
  /// and the white space at their ends.
  QStringList Pages() const {
    QProcess tool;
    tool.start("pdftotext", {"-layout", "-fixed", "6", pdf, "-"});
    EXPECT_TRUE(tool.waitForFinished());
    QStringList pages = QString::fromUtf8(tool.readAllStandardOutput()).split('\f');
    pages.removeLast();  // a form feed ends each
    for (QString &page : pages) page = page.prepend("|\n").replace("\n  ", "\n").trimmed().mid(2);
    return pages;
  }

  QStringList PrintedPages(Range range, int copies) {
    dialogs.prints.emplace_back(Dialogs::PrintChoice{range, copies, IntoFile(pdf)});
    main->mnuFilePrint->trigger();
    return Pages();
  }

  const QString pdf = Path("a.pdf");
};

TEST_F(PrintingTest, TheTextOrTheSelectionIsPrintedAsOftenAsAskedUntilItIsClosed) {
  main->mnuFilePrint->trigger();
  EXPECT_TRUE(dialogs.printRanges.isEmpty()) << "no document, no dialog";
  frmHTMLChild *editor = Open("a.html", "one\r\n\r\n\ttwo \xE4\r\nthree\r\n\r\n");
  editor->txthtml->SetSelStart(7);
  editor->txthtml->SetSelLength(6);
  EXPECT_EQ(PrintedPages(Range::Selection, 2).join('|'), "        two \u00E4|        two \u00E4");
  EXPECT_EQ(PrintedPages(Range::All, 1).join('|'), "one\n\n        two \u00E4\nthree");
  editor->txthtml->SetSelLength(0);
  dialogs.prints.emplace_back(std::nullopt);
  PrintCommand();
  EXPECT_EQ(dialogs.printRanges, QList<Range>({Range::Selection, Range::Selection, Range::All}));
  QTimer::singleShot(0, editor, &QWidget::close);
  EXPECT_EQ(PrintedPages(Range::All, 3).size(), 1);
  EXPECT_FALSE(PrintText(*IntoFile(Path("gone/a.pdf")), "a", 9));
}

TEST_F(PrintingTest, LongTextsTakeTheirPagesAndLongLinesWrapWithNothingLost) {
  QStringList lines;
  for (int line = 1; line <= 300; ++line) lines << QString::number(line);
  Open("a.txt", lines.join('\n').toLatin1() + QByteArray(200, '\n'));
  EXPECT_EQ(PrintedPages(Range::All, 1).join('\n'), lines.join('\n'))
      << "no page of the empty lines, no page number";
  Open("b.txt", lines.join(' ').toLatin1() + '\n' + lines.join("").toLatin1());
  QString printed = PrintedPages(Range::All, 1).join('\n').simplified();
  EXPECT_TRUE(printed.startsWith(lines.join(' '))) << "broken between words";
  EXPECT_EQ(printed.remove(' '), lines.join("") + lines.join(""));
}

// The platform's own dialog.
TEST_F(PrintingTest, TheDialogOffersASelectionAndLeavesTheCopiesToTheCommand) {
  Dialogs::Set(nullptr);
  QTimer::singleShot(0, qApp, [this] {
    auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
    dialog->findChild<QSpinBox *>("copies")->setValue(3);
    dialog->findChild<QLineEdit *>("filename")->setText(pdf);  // one that isn't there yet
    dialog->accept();
  });
  const auto choice = Dialogs::Current().Print(Range::Selection);
  EXPECT_TRUE(choice && choice->range == Range::Selection && choice->copies == 3);
}
