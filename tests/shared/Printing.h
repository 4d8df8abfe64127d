#pragma once

#include <QByteArray>
#include <QString>
#include <ostream>

// How a failed test shows texts; otherwise they come out as lists of two-byte objects. Included by
// the build into every test file, so that all of them agree.

inline void PrintTo(const QString &text, std::ostream *out) {
  *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out) {
  *out << '"' << bytes.toPercentEncoding(" !\"#$&'()*+,/:;<=>?@[]^{|}").toStdString() << '"';
}
