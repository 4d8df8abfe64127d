#include "StencilEntry.h"

#include "base/mAnsi.h"

using Qt::StringLiterals::operator""_s;

namespace {

/// Adds a line of the source to a help text of which some lines have been read.
void AddHelp(QString &help, const QString &line, bool behindBlankLine) {
  if (!help.isEmpty()) {
    if (behindBlankLine) {
      help += u"\r\n\r\n"_s;
    } else {
      help += line.startsWith(u"- ") ? u"\r\n"_s : u" "_s;
    }
  }
  help += line;
}

/// Reads one source from top to bottom. `line_` is the number of the line that is being read.
class Reader {
 public:
  explicit Reader(const SourceText &source) : source_(source) {}

  std::vector<StencilEntry> Read() {
    for (const QString &line : source_.lines) {
      ++line_;
      if (!mAnsi::Holds(line)) Fail(line_, u"a character outside code page 1252"_s);
      if (inHtml_) {
        ReadHtml(line);
      } else if (line.startsWith(u'#')) {
        ReadHeading(line);
      } else if (!entries_.empty()) {  // else the author's notes
        ReadBelowHeading(line);
      }
      behindBlankLine_ = line.trimmed().isEmpty();
    }
    if (entries_.empty()) Fail(line_, u"no heading"_s);
    if (inHtml_) Fail(entries_.back().htmlLine, u"a source without end"_s);
    EndEntry(0);
    return std::move(entries_);
  }

 private:
  [[noreturn]] void Fail(qsizetype line, const QString &message) const {
    throw SourceError(source_, line, message);
  }

  void ReadHeading(const QString &line) {
    qsizetype level = 1;
    while (level < line.size() && line[level] == u'#') ++level;
    EndEntry(level);
    if (level > path_.size() + 1) Fail(line_, u"a level is skipped"_s);
    path_.resize(level - 1);
    StencilEntry entry;
    entry.level = level;
    entry.line = line_;
    entry.header = line.mid(level).trimmed();
    if (entry.header.isEmpty()) Fail(line_, u"an empty heading"_s);
    if (!path_.isEmpty()) {
      entry.parent = path_.last();
      entry.type = entries_[entry.parent].type;
    }
    path_ << std::ssize(entries_);
    entries_.push_back(entry);
  }

  void ReadBelowHeading(const QString &line) {
    StencilEntry &entry = entries_.back();
    if (line == fence_) {
      if (entry.htmlLine != 0) Fail(line_, u"a second source"_s);
      entry.htmlLine = line_;
      inHtml_ = true;
    } else if (const auto caption = After(u"caption:"_s, line)) {
      entry.caption = *caption;
      entry.captionLine = line_;
    } else if (const auto type = After(u"type:"_s, line)) {
      const std::optional<HtmlVersion> version = HtmlVersionNamed(*type);
      if (!version) Fail(line_, u"the type is strict, transitional or frameset"_s);
      entry.type = *version;
    } else if (const auto within = After(u"within:"_s, line)) {
      if (within->count(u'|') != 1) Fail(line_, u"one \"|\" marks where the source stands"_s);
      entry.within = *within;
    } else if (!line.trimmed().isEmpty()) {
      if (entry.helpLine == 0) entry.helpLine = line_;
      AddHelp(entry.help, line.trimmed(), behindBlankLine_);
    }
  }

  static std::optional<QString> After(const QString &mark, const QString &line) {
    if (!line.startsWith(mark)) return {};
    return line.mid(mark.size()).trimmed();
  }

  void ReadHtml(const QString &line) {
    inHtml_ = line != fence_;
    if (inHtml_) html_ << line;
  }

  /// Looks at the last entry as a whole; the level is that of the heading behind it, 0 at the end.
  void EndEntry(qsizetype nextLevel) {
    if (entries_.empty()) return;
    StencilEntry &entry = entries_.back();
    entry.html = html_.join(u"\r\n"_s);
    html_.clear();
    if (entry.help.isEmpty()) Fail(entry.line, u"no help text"_s);
    if (entry.htmlLine == 0) {
      if (nextLevel <= entry.level) Fail(entry.line, u"neither source nor sub-entries"_s);
    } else if (entry.html.isEmpty() || entry.html.startsWith(u' ') || entry.html.endsWith(u' ')) {
      Fail(entry.htmlLine, u"an empty source, or one with blanks at its ends"_s);
    }
  }

  const QString fence_ = u"```"_s;
  const SourceText &source_;
  qsizetype line_ = 0;
  std::vector<StencilEntry> entries_;
  QList<std::ptrdiff_t> path_;  ///< from the top level to the last entry
  QStringList html_;            ///< of the last entry
  bool inHtml_ = false;
  bool behindBlankLine_ = false;
};

}  // namespace

std::vector<StencilEntry> ReadStencilEntries(const SourceText &source) {
  return Reader(source).Read();
}
