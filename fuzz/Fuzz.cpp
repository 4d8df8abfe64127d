#include "Fuzz.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "base/mAnsi.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count) {
  Input input(bytes, count);
  Try(input);
  return 0;
}

void Require(bool kept, const char *promise) {
  if (kept) return;
  std::fprintf(stderr, "not kept: %s\n", promise);
  std::abort();
}

QString Path(const QString &name) {
  static const QTemporaryDir folder;
  return folder.filePath(name);
}

void PutFile(const QString &path, QByteArrayView bytes) {
  QFile file(path);
  Require(file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size(),
          "the temporary folder takes files");
}

QByteArray FileBytes(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray TakeBytes(Input &input, int most) {
  return QByteArray::fromStdString(input.ConsumeRandomLengthString(size_t(most)));
}

QString TakeText(Input &input, int most) {
  return mAnsi::FromAnsi(TakeBytes(input, most));
}
