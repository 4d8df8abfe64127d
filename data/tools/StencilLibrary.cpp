#include "StencilLibrary.h"

#include "StencilPage.h"
#include "UnknownMarkUp.h"
#include "base/mAnsi.h"

using Qt::StringLiterals::operator""_s;

namespace {

template <int N>
void Fill(FixedText<N> &field, const QString &text, const SourceText &source, qsizetype line) {
  const qsizetype length = mAnsi::ToAnsi(text).size();
  if (length > N) {
    throw SourceError(source, line, u"%1 characters, the field holds %2"_s.arg(length).arg(N));
  }
  field.Set(text);
}

/// The line of the source in which a place of an entry's page stands; that of the heading for what
/// stands round it.
qsizetype LineOf(const StencilEntry &entry, const StencilPage &page, qsizetype position) {
  const qsizetype offset = position - page.begin;
  if (offset < 0 || offset >= entry.html.size()) return entry.line;
  return entry.htmlLine + 1 + entry.html.left(offset).count(u'\n');
}

}  // namespace

StencilLibrary::StencilLibrary(const QString &dtdFolder) : path_{{QByteArray("aa"), 0}} {
  for (const HtmlVersion version :
       {HtmlVersion::strict, HtmlVersion::transitional, HtmlVersion::frameset}) {
    dtds_.push_back(ReadHtmlDtd(dtdFolder, version));
  }
}

void StencilLibrary::Add(const SourceText &source) {
  path_.resize(1);
  const std::vector<StencilEntry> entries = ReadStencilEntries(source);
  for (std::size_t n = 0; n < entries.size(); ++n) {
    Append(source, entries[n]);
    CheckHelp(source, entries[n]);
    if (entries[n].htmlLine != 0) CheckMarkUp(source, entries, n);
  }
}

void StencilLibrary::Append(const SourceText &source, const StencilEntry &entry) {
  path_.resize(entry.level);
  Node &parent = path_.back();
  if (parent.children == 26) {
    throw SourceError(source, entry.line, u"the parent has 26 sub-entries already"_s);
  }
  const char letter = static_cast<char>('a' + parent.children++);
  const QByteArray key = parent.key + QByteArray(2, letter);

  StencilRecord record;
  Fill(record.Header, entry.header, source, entry.line);
  Fill(record.HtmlSource, entry.html, source, entry.htmlLine);
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

void StencilLibrary::CheckHelp(const SourceText &source, const StencilEntry &entry) {
  const QString place = u"%1:%2"_s.arg(source.file).arg(entry.helpLine);
  const auto first = helps_.constFind(entry.help.toLower());
  if (first != helps_.cend()) {
    throw SourceError(source, entry.helpLine, u"the help text of "_s + *first);
  }
  helps_.insert(entry.help.toLower(), place);
}

void StencilLibrary::CheckMarkUp(const SourceText &source, const std::vector<StencilEntry> &entries,
                                 std::size_t index) const {
  const StencilPage page = PageOf(source, entries, index);
  const HtmlDtd &dtd = dtds_[static_cast<int>(HtmlVersionOf(page.text))];
  if (const auto fault = FirstUnknownMarkUp(page.text, dtd)) {
    throw SourceError(source, LineOf(entries[index], page, fault->position), fault->message);
  }
}
