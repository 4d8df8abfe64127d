#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <optional>

/// The three document types of HTML 4.01, each with more elements and attributes than the one
/// before it.
enum class HtmlVersion { strict, transitional, frameset };

/// strict, transitional or frameset.
std::optional<HtmlVersion> HtmlVersionNamed(const QString &name);

/// The line with which a page of this type begins, without a line end.
QString DoctypeLine(HtmlVersion version);

/// The document type that a page says it has; frameset, which takes most, if it is none of the
/// three.
HtmlVersion HtmlVersionOf(const QString &page);

/// What a document type declares: its elements and the attributes of each, in lower case. Nothing
/// of what may stand in what, which a validator knows.
struct HtmlDtd {
  QString name;  ///< strict, transitional or frameset
  QMap<QString, QSet<QString>> attributes;
};

/// Reads it from the folder of strict.dtd, loose.dtd and frameset.dtd. Throws SourceError if one
/// can't be read or declares no element.
HtmlDtd ReadHtmlDtd(const QString &folder, HtmlVersion version);
