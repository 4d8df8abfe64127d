#include "StencilLibrary.h"

#include "base/mAnsi.h"

using Qt::StringLiterals::operator""_s;

/// One heading with what stands below it. Lines are numbers of lines in the source.
struct StencilLibrary::Entry {
  qsizetype level = 0;
  qsizetype line = 0;
  QString header;
  QString caption;
  qsizetype captionLine = 0;
  QString help;
  qsizetype helpLine = 0;
  QStringList html;
  qsizetype htmlLine = 0;  ///< of the fence that opens the source; 0: there is none
};

namespace {

template <int N>
void Fill(FixedText<N> &field, const QString &text, const SourceText &source, qsizetype line) {
  const qsizetype length = mAnsi::ToAnsi(text).size();
  if (length > N) {
    throw SourceError(source, line, u"%1 characters, the field holds %2"_s.arg(length).arg(N));
  }
  field.Set(text);
}

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

}  // namespace

void StencilLibrary::Add(const SourceText &source) {
  const QString captionMark = u"caption:"_s;
  const QString fence = u"```"_s;
  path_.resize(1);
  Entry entry;
  bool inHtml = false;
  bool behindBlankLine = false;
  qsizetype number = 0;
  for (const QString &line : source.lines) {
    ++number;
    if (!mAnsi::Holds(line))
      throw SourceError(source, number, u"a character outside code page 1252"_s);
    if (inHtml) {
      inHtml = line != fence;
      if (inHtml) entry.html << line;
    } else if (line.startsWith(u'#')) {
      qsizetype level = 1;
      while (level < line.size() && line[level] == u'#') ++level;
      Append(source, entry, level);
      entry = {};
      entry.level = level;
      entry.line = number;
      entry.header = line.mid(level).trimmed();
    } else if (entry.level == 0) {
      continue;  // the author's notes
    } else if (line == fence) {
      if (entry.htmlLine != 0) throw SourceError(source, number, u"a second source"_s);
      entry.htmlLine = number;
      inHtml = true;
    } else if (line.startsWith(captionMark)) {
      entry.caption = line.mid(captionMark.size()).trimmed();
      entry.captionLine = number;
    } else if (!line.trimmed().isEmpty()) {
      if (entry.helpLine == 0) entry.helpLine = number;
      AddHelp(entry.help, line.trimmed(), behindBlankLine);
    }
    behindBlankLine = line.trimmed().isEmpty();
  }
  if (inHtml) throw SourceError(source, entry.htmlLine, u"a source without end"_s);
  if (entry.level == 0) throw SourceError(source, number, u"no heading"_s);
  Append(source, entry, 0);
}

void StencilLibrary::Append(const SourceText &source, const Entry &entry, qsizetype nextLevel) {
  if (entry.level == 0) return;
  const auto fail = [&](qsizetype line, const QString &message) {
    throw SourceError(source, line, message);
  };
  const qsizetype depth = static_cast<qsizetype>(path_.size());
  if (entry.level > depth) fail(entry.line, u"a level is skipped"_s);
  if (entry.header.isEmpty()) fail(entry.line, u"an empty heading"_s);
  if (entry.help.isEmpty()) fail(entry.line, u"no help text"_s);
  const QString html = entry.html.join(u"\r\n"_s);
  if (entry.htmlLine == 0) {
    if (nextLevel <= entry.level) fail(entry.line, u"neither source nor sub-entries"_s);
  } else if (html.isEmpty() || html.startsWith(u' ') || html.endsWith(u' ')) {
    fail(entry.htmlLine, u"an empty source, or one with blanks at its ends"_s);
  }

  path_.resize(entry.level);
  Node &parent = path_.back();
  if (parent.children == 26) fail(entry.line, u"the parent has 26 sub-entries already"_s);
  const char letter = static_cast<char>('a' + parent.children++);
  const QByteArray key = parent.key + QByteArray(2, letter);

  StencilRecord record;
  Fill(record.Header, entry.header, source, entry.line);
  Fill(record.HtmlSource, html, source, entry.htmlLine);
  if (entry.caption.isEmpty()) {
    Fill(record.TextCaption, entry.header, source, entry.line);
  } else {
    Fill(record.TextCaption, entry.caption, source, entry.captionLine);
  }
  Fill(record.Description, entry.help, source, entry.helpLine);
  Fill(record.ParentKey, QString::fromLatin1(parent.key), source, entry.line);
  Fill(record.Key, QString::fromLatin1(key), source, entry.line);
  records_.push_back(record);
  path_.push_back({key, 0});
}
