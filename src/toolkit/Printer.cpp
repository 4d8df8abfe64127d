#include "toolkit/Printer.h"

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <QTextLayout>
#include <utility>

namespace {

constexpr int firstFontSize = 10;
constexpr qsizetype zoneWidth = 14;  // columns
constexpr int tabWidth = 8;          // columns

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
    page_ += text;
    if (next == Position::NextLine) page_ += u'\n';
    if (next != Position::NextZone) return;
    const qsizetype column = page_.size() - 1 - page_.lastIndexOf(u'\n');
    page_ += QString(zoneWidth - column % zoneWidth, u' ');
  }

  void NewPage() override {
    if (page_.isEmpty()) return;
    const QString text = std::exchange(page_, {});
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
  // The first page comes with the job.
  bool Begin() { return painter_.isActive() ? device_->newPage() : painter_.begin(device_.get()); }

  QFont Font() const {
    QFont font(QStringLiteral("Courier New"), fontSize_);
    font.setStyleHint(QFont::TypeWriter);
    return font;
  }

  // Line by line, so a long text costs no more memory than its longest line.
  bool Draw(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    const QSizeF page = device_->pageRect(QPrinter::DevicePixel).size();
    const QFont font(Font(), device_.get());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(QFontMetricsF(font).horizontalAdvance(u' ') * tabWidth);
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
  QString page_;  // what stands on the page under way
  bool failed_ = false;
};

}  // namespace

std::unique_ptr<Printer> MakePrinter(std::unique_ptr<QPrinter> device) {
  return std::make_unique<PlatformPrinter>(std::move(device));
}
