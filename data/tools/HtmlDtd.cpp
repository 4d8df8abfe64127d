#include "HtmlDtd.h"

#include <QHash>
#include <QRegularExpression>

#include "SourceText.h"

using Qt::StringLiterals::operator""_s;

namespace {

struct Version {
  HtmlVersion version;
  QString name;
  QString publicId;
  QString file;
};

const Version versions[] = {
    {HtmlVersion::strict, u"strict"_s, u"-//W3C//DTD HTML 4.01//EN"_s, u"strict.dtd"_s},
    {HtmlVersion::transitional, u"transitional"_s, u"-//W3C//DTD HTML 4.01 Transitional//EN"_s,
     u"loose.dtd"_s},
    {HtmlVersion::frameset, u"frameset"_s, u"-//W3C//DTD HTML 4.01 Frameset//EN"_s,
     u"frameset.dtd"_s},
};

const Version &RowOf(HtmlVersion version) {
  return versions[static_cast<int>(version)];
}

QRegularExpression Pattern(const QString &pattern) {
  return QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption);
}

/// Goes through the declarations of a DTD in their order: the first declaration of a parameter
/// entity is the one that counts, and switches which marked sections count.
class DtdReader {
 public:
  DtdReader(const QString &folder, HtmlDtd &dtd) : folder_(folder), dtd_(dtd) {}

  void ReadFile(const QString &name) { Read(ReadSource(folder_ + u'/' + name).lines.join(u'\n')); }

 private:
  void Read(const QString &text) {
    static const QRegularExpression next = Pattern(
        u"<!--.*?-->"                                                       // a comment
        "|<!\\[([^\\[]*)\\["                                                // 1 marked section
        "|%([\\w.]+);?"                                                     // 2 entity
        "|<!(\\w+)((?:\"[^\"]*\"|'[^']*'|--.*?--|[^>\"'-]|-(?!-))*+)>"_s);  // 3, 4 declaration
    qsizetype position = 0;
    for (auto found = next.match(text); found.hasMatch(); found = next.match(text, position)) {
      position = found.capturedEnd();
      if (found.hasCaptured(1)) {
        if (Expanded(found.captured(1)).trimmed() != u"INCLUDE") {
          position = text.indexOf(u"]]>"_s, position);
        }
      } else if (found.hasCaptured(2)) {
        Include(found.captured(2));
      } else if (found.captured(3) == u"ENTITY") {
        ReadEntity(found.captured(4));
      } else if (found.captured(3) == u"ELEMENT") {
        NamesAndRest(found.captured(4));
      } else if (found.captured(3) == u"ATTLIST") {
        ReadAttributes(found.captured(4));
      }
      if (position < 0) return;
    }
  }

  /// The text of another file stands in the place of its entity. Of those without a row the DTD
  /// takes characters alone.
  void Include(const QString &entity) {
    for (const Version &row : versions) {
      if (files_.value(entity) == row.publicId) ReadFile(row.file);
    }
  }

  void ReadEntity(const QString &declaration) {
    static const QRegularExpression parameter =
        Pattern(u"^\\s*%\\s*([\\w.]+)\\s+(PUBLIC\\s+)?(?:\"([^\"]*)\"|'([^']*)')"_s);
    const auto found = parameter.match(declaration);
    if (!found.hasMatch()) return;
    const QString name = found.captured(1);
    const QString value = found.captured(3) + found.captured(4);
    if (found.hasCaptured(2)) {
      files_.insert(name, value);
    } else if (!texts_.contains(name)) {
      texts_.insert(name, Expanded(WithoutComments(value)));
    }
  }

  /// The elements that a declaration is for, which are made known, and what it says of them.
  std::pair<QStringList, QString> NamesAndRest(const QString &declaration) {
    static const QRegularExpression parts = Pattern(u"^\\s*(\\([^)]*\\)|\\w+)(.*)$"_s);
    static const QRegularExpression between(u"[^a-z0-9]+"_s);
    const auto found = parts.match(Expanded(WithoutComments(declaration)));
    const QStringList names = found.captured(1).toLower().split(between, Qt::SkipEmptyParts);
    for (const QString &name : names) dtd_.attributes[name];
    return {names, found.captured(2)};
  }

  void ReadAttributes(const QString &declaration) {
    // Name, type and default.
    static const QRegularExpression attribute = Pattern(
        u"([\\w-]+)\\s+(?:\\([^)]*\\)|\\w+)\\s+(?:#FIXED\\s+)?(?:\"[^\"]*\"|'[^']*'|#?\\w+)"_s);
    const auto [elements, list] = NamesAndRest(declaration);
    for (auto found = attribute.globalMatch(list); found.hasNext();) {
      const QString name = found.next().captured(1).toLower();
      for (const QString &element : elements) dtd_.attributes[element] << name;
    }
  }

  static QString WithoutComments(QString text) {
    static const QRegularExpression comment = Pattern(u"--.*?--"_s);
    return text.remove(comment);
  }

  /// With the texts of its entities, which were expanded where they were declared.
  QString Expanded(const QString &text) const {
    static const QRegularExpression entity(u"%([\\w.]+);?"_s);
    QString expanded;
    qsizetype position = 0;
    for (auto all = entity.globalMatch(text); all.hasNext();) {
      const auto found = all.next();
      expanded += QStringView(text).sliced(position, found.capturedStart() - position);
      expanded += texts_.value(found.captured(1));
      position = found.capturedEnd();
    }
    expanded += QStringView(text).sliced(position);
    return expanded;
  }

  QString folder_;
  HtmlDtd &dtd_;
  QHash<QString, QString> texts_;  ///< parameter entities
  QHash<QString, QString> files_;  ///< public identifiers of those that stand for a file
};

}  // namespace

std::optional<HtmlVersion> HtmlVersionNamed(const QString &name) {
  for (const Version &row : versions) {
    if (row.name == name) return row.version;
  }
  return {};
}

QString DoctypeLine(HtmlVersion version) {
  const Version &row = RowOf(version);
  return u"<!DOCTYPE HTML PUBLIC \"%1\" \"http://www.w3.org/TR/html4/%2\">"_s.arg(row.publicId,
                                                                                  row.file);
}

HtmlVersion HtmlVersionOf(const QString &page) {
  static const QRegularExpression doctype(u"<!DOCTYPE\\s+html\\s+PUBLIC\\s+\"([^\"]*)\""_s,
                                          QRegularExpression::CaseInsensitiveOption);
  const QString publicId = doctype.match(page).captured(1);
  for (const Version &row : versions) {
    if (row.publicId == publicId) return row.version;
  }
  return HtmlVersion::frameset;
}

HtmlDtd ReadHtmlDtd(const QString &folder, HtmlVersion version) {
  HtmlDtd dtd{RowOf(version).name, {}};
  DtdReader(folder, dtd).ReadFile(RowOf(version).file);
  if (dtd.attributes.isEmpty()) {
    throw SourceError({folder + u'/' + RowOf(version).file, {}}, 0, u"declares no element"_s);
  }
  return dtd;
}
