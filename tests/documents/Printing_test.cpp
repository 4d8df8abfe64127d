#include "documents/Printing.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "shared/FormsTest.h"

namespace {

using Range = Dialogs::PrintRange;
using Position = Printer::Position;

/// Notes what it is asked for, a line each.
class NotingPrinter : public Printer {
 public:
  explicit NotingPrinter(QStringList &notes) : notes_(notes) {}
  void SetFontSize(int points) override { notes_ << QStringLiteral("size %1").arg(points); }
  void Print(const QString &text, Position next) override {
    notes_ << QStringLiteral("print %1 %2").arg(text).arg(int(next));
    QTimer::singleShot(0, qApp, whilePrinting);
  }
  void NewPage() override { notes_ << QStringLiteral("page"); }
  bool EndDoc() override {
    notes_ << QStringLiteral("end");
    return false;
  }
  std::function<void()> whilePrinting = [] {};

 private:
  QStringList &notes_;
};

class PrintingTest : public FormsTest {
 protected:
  static std::unique_ptr<Printer> IntoFile(const QString &path) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFileName(path);
    return MakePrinter(std::move(device));
  }

  QByteArray Tool(const QString &program, const QStringList &arguments) {
    QProcess tool;
    tool.start(program, arguments);
    EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << qPrintable(program);
    return tool.readAllStandardOutput();
  }

  /// The pages of a printed file, without their left margin and the white space at their ends.
  QStringList Pages(const QString &path) {
    const QString columnWidth = QStringLiteral("6");  // points, of the font of 10
    constexpr int marginColumns = 2;
    auto pages =
        QString::fromUtf8(Tool(QStringLiteral("pdftotext"),
                               {QStringLiteral("-fixed"), columnWidth, path, QStringLiteral("-")}))
            .split(u'\f');
    EXPECT_TRUE(pages.takeLast().isEmpty()) << "every page ends with a form feed";
    for (QString &page : pages) {
      while (!page.isEmpty() && page.back().isSpace()) page.chop(1);
      QStringList lines = page.split(u'\n');
      for (QString &line : lines) line = line.mid(marginColumns);
      page = lines.join(u'\n');
    }
    return pages;
  }

  /// Prints what the dialog's answer says into a file and returns its pages.
  QStringList PrintedPages(Range range, int copies) {
    dialogs.prints.emplace_back(Dialogs::PrintChoice{range, copies, IntoFile(pdf)});
    main->mnuFilePrint->trigger();
    return Pages(pdf);
  }

  /// The notes of a printer that the command has run on.
  QStringList Notes(
      Range range, int copies, std::function<void()> whilePrinting = [] {}) {
    QStringList notes;
    auto printer = std::make_unique<NotingPrinter>(notes);
    printer->whilePrinting = std::move(whilePrinting);
    dialogs.prints.emplace_back(Dialogs::PrintChoice{range, copies, std::move(printer)});
    PrintCommand();
    return notes;
  }

  const QString pdf = Path(QStringLiteral("a.pdf"));
};

TEST_F(PrintingTest, TheWholeTextOrTheSelectionGoesIntoOneFile) {
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "one\r\n\r\n  two \xE4\r\nthree\r\n\r\n");
  const QString all = QStringLiteral("one\n\n  two ä\nthree");
  EXPECT_EQ(PrintedPages(Range::All, 1), QStringList({all}));
  EXPECT_EQ(PrintedPages(Range::All, 3), QStringList({all, all, all}));
  editor->txthtml->SetSelStart(7);
  editor->txthtml->SetSelLength(7);
  EXPECT_EQ(PrintedPages(Range::Selection, 2), QStringList({"  two ä", "  two ä"}));
  EXPECT_EQ(PrintedPages(Range::All, 1), QStringList({all})) << "in spite of the selection";
  EXPECT_EQ(dialogs.printRanges,
            QList<Range>({Range::All, Range::All, Range::Selection, Range::Selection}));
}

TEST_F(PrintingTest, LongTextsTakeTheirPagesAndLongLinesWrapWithNothingLost) {
  QStringList lines;
  for (int line = 1; line <= 300; ++line) lines << QString::number(line);
  // As many empty lines behind as fill a page, and the page must still not come.
  Open(QStringLiteral("a.txt"), lines.join(u'\n').toLatin1() + QByteArray(200, '\n'));
  const QStringList pages = PrintedPages(Range::All, 2);
  ASSERT_EQ(pages.size() % 2, 0);
  EXPECT_GT(pages.size(), 4);
  EXPECT_EQ(pages.mid(0, pages.size() / 2).join(u'\n'), lines.join(u'\n'));
  EXPECT_EQ(pages.mid(pages.size() / 2), pages.mid(0, pages.size() / 2));

  const QString words = lines.join(u' ');
  const QString noWords = lines.join(QString());
  Open(QStringLiteral("b.txt"), (words + u'\n' + noWords).toLatin1());
  const QString printed = PrintedPages(Range::All, 1).join(u'\n').simplified();
  EXPECT_TRUE(printed.startsWith(words)) << "broken between words";
  EXPECT_EQ(printed.mid(words.size()).remove(u' '), noWords);
}

TEST_F(PrintingTest, TextIsBlackInADarkScheme) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(Qt::white, Qt::black));
  Open(QStringLiteral("a.html"), "####");
  PrintedPages(Range::All, 1);
  QApplication::setPalette(before);
  Tool(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("100"),
                                    QStringLiteral("-singlefile"), pdf, Path(QStringLiteral("a"))});
  const QImage page(Path(QStringLiteral("a.ppm")));
  ASSERT_FALSE(page.isNull());
  EXPECT_EQ(page.pixelColor(page.width() / 2, page.height() / 2), QColor(Qt::white));
  int darkest = 255;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) darkest = std::min(darkest, qGray(page.pixel(x, y)));
  }
  EXPECT_LT(darkest, 64);
}

TEST_F(PrintingTest, ThePositionSaysWhereTheNextTextStands) {
  auto printer = IntoFile(pdf);
  printer->Print(QStringLiteral("a"), Position::SameLine);
  printer->Print(QStringLiteral("b"), Position::NextZone);
  printer->Print(QStringLiteral("c\rd\n"), Position::NextLine);
  printer->Print(QStringLiteral("e"), Position::NextLine);
  printer->NewPage();
  printer->NewPage();
  EXPECT_TRUE(PrintText(*printer, QString(), 10, Position::NextZone)) << "an empty page";
  EXPECT_TRUE(PrintText(*printer, QStringLiteral("f"), 0, Position::NextZone));
  printer.reset();
  EXPECT_EQ(Pages(pdf), QStringList({"ab" + QString(12, u' ') + "c\nd\n\ne", "", "f"}));
}

TEST_F(PrintingTest, EachCopyIsAJobAndAnErrorEndsSilently) {
  EXPECT_TRUE(dialogs.printRanges.isEmpty());
  main->mnuFilePrint->trigger();
  EXPECT_TRUE(dialogs.printRanges.isEmpty()) << "no document, no dialog";
  frmHTMLChild *editor = Open(QStringLiteral("a.html"), "text");
  for (const auto &[points, size] : {std::pair{10.5, "size 10"}, {11.5, "size 12"}}) {
    QFont font = editor->txthtml->font();
    font.setPointSizeF(points);
    editor->txthtml->setFont(font);
    const QStringList job{size, "print text 0", "page", "end"};
    EXPECT_EQ(Notes(Range::All, 3), job + job + job);
  }
  EXPECT_TRUE(Notes(Range::Pages, 3).isEmpty());
  dialogs.prints.emplace_back(std::nullopt);
  PrintCommand();
  QStringList notes;
  NotingPrinter printer(notes);
  EXPECT_FALSE(PrintText(printer, QStringLiteral("a"), 7, Position::SameLine));
  EXPECT_EQ(notes, QStringList({"print a 1", "page", "end"})) << "the size is left alone";
  // A file that can't be made.
  dialogs.prints.emplace_back(Dialogs::PrintChoice{Range::All, 2, IntoFile(Path("gone/a.pdf"))});
  PrintCommand();
  EXPECT_FALSE(PrintText(*IntoFile(Path(QStringLiteral("gone/a.pdf"))), QStringLiteral("a"), 9));
  EXPECT_TRUE(dialogs.messages.isEmpty());
  // The document goes while its first copy is printed.
  EXPECT_EQ(Notes(Range::All, 3, [editor] { editor->close(); }).count(QStringLiteral("end")), 1);
  EXPECT_FALSE(mPublic::AnyEditorOpen());
}

// The platform's own dialog, with a hand that presses its button.
TEST_F(PrintingTest, TheDialogOffersTheSelectionAndLeavesTheCopiesToTheCommand) {
  Dialogs::Set(nullptr);
  Dialogs &platform = Dialogs::Current();
  const auto ask = [&platform](Range range, bool accept) {
    QTimer::singleShot(0, qApp, [range, accept] {
      auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      EXPECT_EQ(dialog->testOption(QPrintDialog::PrintSelection), range == Range::Selection);
      EXPECT_FALSE(dialog->testOption(QPrintDialog::PrintPageRange));
      auto *copies = dialog->findChild<QSpinBox *>(QStringLiteral("copies"));
      ASSERT_TRUE(copies);
      copies->setValue(3);
      accept ? dialog->accept() : dialog->reject();
    });
    return platform.Print(range);
  };
  for (const Range range : {Range::All, Range::Selection}) {
    EXPECT_FALSE(ask(range, false));
    const auto choice = ask(range, true);
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->range, range);
    EXPECT_EQ(choice->copies, 3);
  }
}

}  // namespace
