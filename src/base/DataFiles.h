#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

/// A delivered file of the program folder and the length that it must have.
struct DataFile {
  const char *name;
  qint64 bytes;
};

/// In the order of the start-up test, which looks at the first TestedDataFiles of them only.
extern const std::array<DataFile, 11> DataFiles;
constexpr int TestedDataFiles = 9;

/// Their names in that order.
QStringList DataFileNames();

/// The name of the first tested file that is missing or has another length, or nothing if all are
/// sound. Reads no content.
std::optional<QString> FirstDefectDataFile(const QString &programFolder);
