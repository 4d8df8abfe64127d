#include "documents/Printing.h"

#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTimer>

#include "shared/FormsTest.h"

namespace {

using Range = Dialogs::PrintRange;
using Position = Printer::Position;

/// Notes what it is asked for.
struct NotingPrinter : Printer {
  explicit NotingPrinter(QStringList &list) : notes(list) {}
  void SetFontSize(int points) override { notes << QString::number(points); }
  void Print(const QString &text, Position next) override {
    notes << text + QString::number(int(next));
    QTimer::singleShot(0, qApp, whilePrinting);
  }
  void NewPage() override { notes << QStringLiteral("page"); }
  bool EndDoc() override { return (notes << QStringLiteral("end")).isEmpty(); }
  QStringList &notes;
  std::function<void()> whilePrinting = [] {};
};

struct PrintingTest : FormsTest {
  static std::unique_ptr<Printer> IntoFile(const QString &path) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFileName(path);
    return MakePrinter(std::move(device));
  }

  static QByteArray Tool(const QString &program, const QStringList &arguments) {
    QProcess tool;
    tool.start(program, arguments);
    EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << program.toStdString();
    return tool.readAllStandardOutput();
  }

  /// The pages of the printed file, set in 10 points, without the margin of two columns on the left
  /// and the white space at their ends.
  QStringList Pages() const {
    const QByteArray text = Tool("pdftotext", {"-layout", "-fixed", "6", pdf, "-"});
    QStringList pages = QString::fromUtf8(text).split(u'\f');
    pages.removeLast();  // a form feed ends each
    for (QString &page : pages) page = page.prepend("|\n").replace("\n  ", "\n").trimmed().mid(2);
    return pages;
  }

  void Print(Range range, int copies, std::unique_ptr<Printer> printer) {
    dialogs.prints.emplace_back(Dialogs::PrintChoice{range, copies, std::move(printer)});
    main->mnuFilePrint->trigger();
  }

  QStringList PrintedPages(Range range, int copies) {
    Print(range, copies, IntoFile(pdf));
    return Pages();
  }

  QStringList Notes(
      Range range, int copies, std::function<void()> whilePrinting = [] {}) {
    QStringList notes;
    auto printer = std::make_unique<NotingPrinter>(notes);
    printer->whilePrinting = std::move(whilePrinting);
    Print(range, copies, std::move(printer));
    return notes;
  }

  const QString pdf = Path("a.pdf");
};

TEST_F(PrintingTest, TheWholeTextOrTheSelectionGoesIntoOneFile) {
  frmHTMLChild *editor = Open("a.html", "one\r\n\r\n  two \xE4\r\nthree\r\n\r\n");
  const QString all = QStringLiteral("one\n\n  two ä\nthree");
  EXPECT_EQ(PrintedPages(Range::All, 3), QStringList({all, all, all}));
  editor->txthtml->SetSelStart(7);
  editor->txthtml->SetSelLength(7);
  EXPECT_EQ(PrintedPages(Range::Selection, 2), QStringList({"  two ä", "  two ä"}));
  EXPECT_EQ(PrintedPages(Range::All, 1), QStringList({all})) << "in spite of the selection";
  EXPECT_EQ(dialogs.printRanges, QList<Range>({Range::All, Range::Selection, Range::Selection}));
}

TEST_F(PrintingTest, LongTextsTakeTheirPagesAndLongLinesWrapWithNothingLost) {
  QStringList lines;
  for (int line = 1; line <= 300; ++line) lines << QString::number(line);
  Open("a.txt", lines.join(u'\n').toLatin1() + QByteArray(200, '\n'));
  const QStringList pages = PrintedPages(Range::All, 2);
  const QStringList copy = pages.mid(pages.size() / 2);
  EXPECT_GT(copy.size(), 2);
  EXPECT_EQ(copy.join(u'\n'), lines.join(u'\n')) << "no page of the empty lines, no page number";
  EXPECT_EQ(pages, copy + copy);

  Open("b.txt", lines.join(u' ').toLatin1() + '\n' + lines.join("").toLatin1());
  QString printed = PrintedPages(Range::All, 1).join(u'\n').simplified();
  EXPECT_TRUE(printed.startsWith(lines.join(u' '))) << "broken between words";
  EXPECT_EQ(printed.remove(u' '), lines.join("") + lines.join(""));
}

TEST_F(PrintingTest, TextIsBlackOnWhiteInADarkScheme) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(Qt::white, Qt::black));
  Open("a.html", "####");
  EXPECT_EQ(PrintedPages(Range::All, 1), QStringList("####"));
  QApplication::setPalette(before);
  const QImage page = QImage::fromData(Tool("pdftoppm", {"-singlefile", pdf}));
  ASSERT_FALSE(page.isNull());
  EXPECT_EQ(qGray(page.pixel(page.rect().center())), 255);
  int darkest = 255;
  for (int i = 0; i < page.width() * page.height(); ++i) {
    darkest = std::min(darkest, qGray(page.pixel(i % page.width(), i / page.width())));
  }
  EXPECT_LT(darkest, 64);
}

TEST_F(PrintingTest, ThePositionSaysWhereTheNextTextStands) {
  auto printer = IntoFile(pdf);
  printer->Print("a", Position::SameLine);
  printer->Print("b", Position::NextZone);
  printer->Print("c\rdddddd\tdddddd|\n", Position::NextLine);
  printer->Print("e", Position::NextLine);
  printer->NewPage();
  printer->NewPage();
  EXPECT_TRUE(PrintText(*printer, "", 10)) << "an empty page";
  EXPECT_TRUE(PrintText(*printer, "f", 0, Position::NextZone));
  printer.reset();
  EXPECT_EQ(Pages(), QStringList({"ab            c\ndddddd  dddddd|\n\ne", "", "f"}));
}

TEST_F(PrintingTest, EachCopyIsAJobAndAnErrorEndsSilently) {
  main->mnuFilePrint->trigger();
  EXPECT_TRUE(dialogs.printRanges.isEmpty()) << "no document, no dialog";
  frmHTMLChild *editor = Open("a.html", "text");
  for (const auto &[points, size] : {std::pair{10.5, "10"}, {11.5, "12"}}) {
    QFont font = editor->txthtml->font();
    font.setPointSizeF(points);
    editor->txthtml->setFont(font);
    const QStringList job{size, "text0", "page", "end"};
    EXPECT_EQ(Notes(Range::All, 3), job + job + job) << "each fails, and the next is tried";
  }
  EXPECT_TRUE(Notes(Range::Pages, 3).isEmpty());
  dialogs.prints.emplace_back(std::nullopt);
  PrintCommand();
  Print(Range::All, 2, IntoFile(Path("gone/a.pdf")));
  EXPECT_FALSE(PrintText(*IntoFile(Path("gone/a.pdf")), "a", 9));
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_EQ(Notes(Range::All, 3, [editor] { editor->close(); }).count("end"), 1) << "then closed";
}

// The platform's own dialog.
TEST_F(PrintingTest, TheDialogOffersASelectionAndLeavesTheCopiesToTheCommand) {
  Dialogs::Set(nullptr);
  for (const auto &[range, accept] :
       {std::pair{Range::All, true}, {Range::Selection, true}, {Range::Selection, false}}) {
    QTimer::singleShot(0, qApp, [this, selected = range == Range::Selection, yes = accept] {
      auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
      EXPECT_EQ(dialog->testOption(QPrintDialog::PrintSelection), selected);
      dialog->findChild<QSpinBox *>("copies")->setValue(3);
      dialog->findChild<QLineEdit *>("filename")->setText(pdf);  // one that isn't there yet
      yes ? dialog->accept() : dialog->reject();
    });
    const auto choice = Dialogs::Current().Print(range);
    ASSERT_EQ(choice.has_value(), accept);
    if (choice) {
      EXPECT_EQ(std::pair(choice->range, choice->copies), std::pair(range, 3));
    }
  }
}

}  // namespace
