#pragma once

#include <QString>

/// The types that the new-document dialog offers, in the order of its pictures.
enum class NewDocumentType {
  BlankPage,
  HtmlStrict,
  HtmlTransitional,
  HtmlFrameset,
  AppletPage,
  Java,
};
constexpr int NewDocumentTypes = 6;

/// The text that a new document of the type starts with, CR LF between its lines and none at its
/// end. date is the current date in the system's short form; only the Java source shows it.
QString NewDocumentText(NewDocumentType type, const QString &date);
