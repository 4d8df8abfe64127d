#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <QByteArray>
#include <QString>

#include "base/FixedText.h"

/// What the fuzz targets share. A target is one file that defines Try.
using Input = FuzzedDataProvider;

/// Lets the target's readers loose on one input. Whatever ends the process is a finding.
void Try(Input &input);

/// Ends the process if a reader has not kept what it promises.
void Require(bool kept, const char *promise);

/// The path of a file in a folder of the process's own, which is the program folder too.
QString Path(const QString &name);

void PutFile(const QString &path, QByteArrayView bytes);
QByteArray FileBytes(const QString &path);

/// Texts come from the front of an input and end with a backslash and a blank, numbers from its
/// end, so that a seed reads like the file that it stands for.
QByteArray TakeBytes(Input &input, int most);

/// The same as text of the ANSI code page.
QString TakeText(Input &input, int most);

/// A record of a file that has text fields alone, each padded with blanks: mutations of whole
/// records would be spent on padding.
template <class Record>
QByteArray TakeRecord(Input &input, std::initializer_list<int> fields) {
  QByteArray record;
  for (const int length : fields) record += TakeBytes(input, length).leftJustified(length);
  Require(record.size() == qsizetype(sizeof(Record)), "the fields make up the record");
  return record;
}
