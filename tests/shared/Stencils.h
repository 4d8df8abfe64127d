#pragma once

#include <QStringList>
#include <initializer_list>

#include "shared/Files.h"
#include "stencils/StencilFiles.h"

/// A record whose parent follows from its key; without a source it is a section.
inline StencilRecord Stencil(const QString &key, const QString &header,
                             const QString &source = {}) {
  StencilRecord record;
  record.Header.Set(header);
  record.HtmlSource.Set(source);
  record.TextCaption.Set(QStringLiteral("cap ") + header);
  record.Description.Set(QStringLiteral("help ") + header);
  record.ParentKey.Set(key.chopped(std::min<qsizetype>(key.size(), 2)));
  record.Key.Set(key);
  return record;
}

template <class Record>
QByteArray Bytes(const Record &record) {
  return QByteArray(reinterpret_cast<const char *>(&record), sizeof record);
}

/// A file of stencils with these keys; each one's header and source name its key.
inline void PutStencils(const QString &path, const QStringList &keys) {
  QByteArray bytes;
  for (const QString &key : keys) bytes += Bytes(Stencil(key, u'H' + key, u'<' + key + u'>'));
  PutFile(path, bytes);
}

inline void PutQuickBar(const QString &path, const QStringList &keys) {
  QByteArray bytes;
  for (const QString &key : keys) bytes += key.toLatin1().leftJustified(100);
  PutFile(path, bytes);
}

/// The keys of a file in order, one text.
inline QString KeysIn(const QString &path) {
  QStringList keys;
  StencilFile(path).Scan(1, [&keys](qint64, const StencilRecord &record) {
    keys << record.Key.Trimmed();
    return true;
  });
  return keys.join(u' ');
}
