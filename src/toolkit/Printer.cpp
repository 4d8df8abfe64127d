#include "toolkit/Printer.h"

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <QTextLayout>
#include <utility>

namespace {

constexpr int firstFontSize = 10;
constexpr qsizetype zoneWidth = 14;  // columns
constexpr qsizetype tabWidth = 8;    // columns

QString WithoutEnd(const QString &text) {
  qsizetype size = text.size();
  while (size > 0 && text.at(size - 1).isSpace()) --size;
  return text.left(size);
}

class PlatformPrinter : public Printer {
 public:
  explicit PlatformPrinter(std::unique_ptr<QPrinter> device) : device_(std::move(device)) {}

  void SetFontSize(int points) override {
    if (points >= 1) fontSize_ = points;
  }

  void Print(const QString &text, Position next) override {
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    if (next == Position::NextLine) lines += u'\n';
    for (const QChar letter : std::as_const(lines)) {
      if (letter == u'\t') {
        FillUpTo(tabWidth);
        continue;
      }
      page_ += letter;
      if (letter == u'\n') lineStart_ = page_.size();
    }
    if (next == Position::NextZone) FillUpTo(zoneWidth);
  }

  void NewPage() override {
    if (page_.isEmpty()) return;
    const QString text = std::exchange(page_, {});
    lineStart_ = 0;
    failed_ = failed_ || !Begin() || !Draw(WithoutEnd(text));
  }

  bool EndDoc() override {
    NewPage();
    const bool intoFile = !device_->outputFileName().isEmpty();
    if (painter_.isActive() && !intoFile && !painter_.end()) failed_ = true;
    if (device_->printerState() == QPrinter::Error) failed_ = true;
    return !std::exchange(failed_, false);
  }

 private:
  // Blanks up to the next column that is a multiple of the width.
  void FillUpTo(qsizetype width) {
    page_ += QString(width - (page_.size() - lineStart_) % width, u' ');
  }

  // The first page comes with the job.
  bool Begin() { return painter_.isActive() ? device_->newPage() : painter_.begin(device_.get()); }

  QFont Font() const {
    QFont font(QStringLiteral("Courier New"), fontSize_);
    font.setStyleHint(QFont::TypeWriter);
    return font;
  }

  // Line by line, so a long text costs no more memory than its longest line.
  bool Draw(const QString &text) {
    const QSizeF page = device_->pageRect(QPrinter::DevicePixel).size();
    const QFont font(Font(), device_.get());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter_.setPen(Qt::black);
    qreal y = 0;
    for (const QStringView line : QStringTokenizer(text, u'\n')) {
      QTextLayout layout(line.toString(), font, device_.get());
      layout.setTextOption(option);
      layout.beginLayout();
      for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLeadingIncluded(true);
        row.setLineWidth(page.width());
        if (y > 0 && y + row.height() > page.height()) {
          if (!device_->newPage()) return false;
          y = 0;
        }
        row.draw(&painter_, QPointF(0, y));
        y += row.height();
      }
      layout.endLayout();
    }
    return true;
  }

  const std::unique_ptr<QPrinter> device_;
  QPainter painter_;  // goes before its device
  int fontSize_ = firstFontSize;
  QString page_;  // what stands on the page under way, with blanks for tabs
  qsizetype lineStart_ = 0;
  bool failed_ = false;
};

}  // namespace

std::unique_ptr<Printer> MakePrinter(std::unique_ptr<QPrinter> device) {
  return std::make_unique<PlatformPrinter>(std::move(device));
}
