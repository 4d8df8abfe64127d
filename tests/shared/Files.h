#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QString>

/// Makes or replaces a file by the plainest means; fails the test if it can't.
inline void PutFile(const QString &path, QByteArrayView bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
  ASSERT_EQ(file.write(bytes.data(), bytes.size()), bytes.size());
}

/// The bytes of a file, "<none>" if it can't be read.
inline QByteArray FileBytes(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
}
