#include "assistants/TableText.h"

#include <array>

#include "base/mText.h"

namespace {

using Choice = TableText::Choice;

constexpr std::array frames{Choice{"None", ""},
                            Choice{"void", "void"},
                            Choice{"above", "above"},
                            Choice{"below", "below"},
                            Choice{"horicontal sides", "hsides"},
                            Choice{"vertical sides", "vsides"},
                            Choice{"left hand side", "lhs"},
                            Choice{"right hand side", "rhs"}};

constexpr std::array rulings{Choice{"None", ""}, Choice{"rows", "rows"}, Choice{"cols", "cols"},
                             Choice{"groups", "groups"}, Choice{"all", "all"}};

const QString rowHead = QStringLiteral("\r\n\t<tr>\r\n");
const QString cell = QStringLiteral("\t\t<td>\r\n\t\t</td>\r\n");
const QString rowEnd = QStringLiteral("\t</tr>");
const QString tableEnd = QStringLiteral("\r\n</table>");

// No arg(): a colour box may hold a percent sign.
QString Attribute(const char *name, const QString &value) {
  return u' ' + QLatin1String(name) + QStringLiteral("=\"") + value + u'"';
}

QString Attribute(const char *name, const std::optional<TableText::Measure> &measure) {
  if (!measure) return {};
  const QString number = mText::NumberText(mText::Val(measure->number));
  return Attribute(name, measure->percent ? number + u'%' : number);
}

QString Attribute(const char *name, const std::optional<int> &number) {
  return number ? Attribute(name, QString::number(*number)) : QString();
}

QString Attribute(const char *name, std::span<const Choice> choices, int index) {
  return index > 0 ? Attribute(name, QLatin1String(choices[index].value)) : QString();
}

// "Border Frame" and "border rules" aren't mark-up, but they are what this assistant writes.
QString Head(const TableText &table) {
  return QStringLiteral("<table ") +
         (table.background ? Attribute("bgcolor", u'#' + mText::Trim(*table.background))
                           : QString()) +
         Attribute("Width", table.width) + Attribute("Height", table.height) +
         Attribute("Border", table.border) + Attribute("Cellspacing", table.cellspacing) +
         Attribute("Border Frame", frames, table.frame) +
         Attribute("border rules", rulings, table.rules) + u'>';
}

}  // namespace

std::span<const Choice> TableText::Frames() {
  return frames;
}

std::span<const Choice> TableText::Rules() {
  return rulings;
}

std::optional<QString> TableText::Build(const std::function<bool()> &afterCell) const {
  QString text = Head(*this);
  text.reserve(text.size() + rows * (rowHead.size() + cols * cell.size() + rowEnd.size()) +
               tableEnd.size());
  for (int row = 0; row < rows; ++row) {
    text += rowHead;
    for (int col = 0; col < cols; ++col) {
      text += cell;
      if (!afterCell()) return std::nullopt;
    }
    text += rowEnd;
  }
  text += tableEnd;
  return text;
}
