#include "assistants/FramesetText.h"

#include <array>

#include "assistants/FramesetLayouts.h"
#include "base/mText.h"

namespace {

// Where the block for browsers without frames stands and how it is spelt, blanks included.
struct NoFrames {
  bool insideFrameset;
  int entryIndent;
  const char *start;
  const char *sentence;
  const char *list;
  const char *entryEnd;
  const char *firstEntryEnd;
  const char *listEnd;
};

constexpr std::array noFramesForms{
    NoFrames{false, 12, "<NOFRAMES>", "contains: ", "<UL>", "</LI>", "</LI> ", "</UL> "},
    NoFrames{false, 12, "<NOFRAMES> ", "contains:", "<UL> ", "</LI>", "</LI>", "</UL>"},
    NoFrames{true, 16, "<NOFRAMES>", "contains:", "<UL>", "", "", "</UL>"},
    NoFrames{false, 16, "<NOFRAMES> ", "contains:", "<UL> ", "", "", "</UL>"},
};

constexpr int step = 4;  // blanks of each indentation

class FramesetWriter {
 public:
  FramesetWriter(const QStringList &sources, const FrameSourceTable &table)
      : sources_(sources), table_(table) {}

  QString Write(const FramesetLayout &layout) {
    const NoFrames &form = noFramesForms[size_t(layout.noFrames)];
    Open(layout.division, step);
    if (form.insideFrameset) AddNoFrames(form, layout.Entries());
    Close(step);
    if (!form.insideFrameset) AddNoFrames(form, layout.Entries());
    return missing_ ? QString() : lines_.join(QLatin1String("\r\n"));
  }

 private:
  void Add(int indent, const QString &text) { lines_ << QString(indent, u' ') + text; }
  void Add(int indent, const char *text) { Add(indent, QString::fromLatin1(text)); }

  void Open(const FramePart &frameset, int indent) {
    QStringList sizes;
    for (const int percent : frameset.percents) sizes << QString::number(percent) + u'%';
    Add(indent, QLatin1String("<FRAMESET ") +
                    QLatin1String(frameset.kind == FramePart::Kind::Rows ? "rows" : "cols") +
                    QLatin1String("=\"") + sizes.join(QLatin1String(", ")) + QLatin1String("\">"));
    for (const FramePart &part : frameset.parts) {
      if (part.kind == FramePart::Kind::Frame) {
        AddFrame(part, indent + step);
      } else {
        Open(part, indent + step);
        Close(indent + step);
      }
    }
  }

  void Close(int indent) { Add(indent, "</FRAMESET>"); }

  void AddFrame(const FramePart &frame, int indent) {
    Add(indent, QLatin1String("<FRAME name=\"") + QLatin1String(frame.name) +
                    QLatin1String("\" src=\"") + Source(frame.slot) + QLatin1String("\" ") +
                    Attributes(frame.row) + u'>');
  }

  void AddNoFrames(const NoFrames &form, const std::vector<FrameListEntry> &entries) {
    const int indent = form.insideFrameset ? 2 * step : step;
    Add(indent, form.start);
    Add(indent + step, QLatin1String("<P>This frameset document ") + QLatin1String(form.sentence));
    Add(indent + step, form.list);
    const char *end = form.firstEntryEnd;
    for (const FrameListEntry &entry : entries) {
      Add(form.entryIndent, QLatin1String("<LI><A href=\"") + Source(entry.target) +
                                QLatin1String("\">") + Source(entry.text) + QLatin1String("</A>") +
                                QLatin1String(end));
      end = form.entryEnd;
    }
    Add(indent + step, form.listEnd);
    Add(indent, "</NOFRAMES>");
  }

  QString Source(int slot) {
    if (slot < sources_.size()) return mText::Trim(sources_[slot]);
    missing_ = true;
    return {};
  }

  QString Attributes(int row) {
    if (row < int(table_.size())) return FrameAttributeText(table_[row]);
    missing_ = true;
    return {};
  }

  const QStringList &sources_;
  const FrameSourceTable &table_;
  QStringList lines_;
  bool missing_ = false;
};

}  // namespace

QString FrameAttributeText(const FrameAttributes &attributes) {
  const auto word = [](int value, std::initializer_list<const char *> words) {
    return QLatin1String(value >= 0 && value < int(words.size()) ? words.begin()[value] : "");
  };
  return word(attributes.scrolling, {"scrolling=yes", "scrolling=no", "scrolling=auto"}) +
         word(attributes.frameborder, {" frameborder=1", " frameborder=0"}) +
         QLatin1String(" marginwidth=") + QString::number(attributes.marginwidth) +
         QLatin1String(" marginheight=") + QString::number(attributes.marginheight) +
         word(attributes.resize, {"", " noresize"});
}

QString BuildFramesetText(int index, const QStringList &sources, const FrameSourceTable &table) {
  const std::vector<FramesetLayout> &layouts = FramesetLayouts();
  if (index < 0 || index >= int(layouts.size())) return {};
  return FramesetWriter(sources, table).Write(layouts[index]);
}
