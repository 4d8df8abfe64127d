#pragma once

#include <QString>

/// A document's name is its window's caption: the full path of its file, or exactly "<unsaved>".
/// Its type is never stored; it follows from the caption by exact comparison, ".HTML" is no
/// ".html".
namespace DocumentName {

/// The caption of a document that has no file yet.
extern const QString Unsaved;

bool IsUnsaved(const QString &caption);
bool IsJava(const QString &caption);

/// The key of the group that the open-files tree files the document under. Any name that ends in
/// "ved>" counts as unsaved there.
QString GroupKey(const QString &caption);

}  // namespace DocumentName
