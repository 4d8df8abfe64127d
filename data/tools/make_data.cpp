// Makes the delivered data files from their sources, at build time.
#include <QCoreApplication>
#include <QTextStream>

#include "PixelArt.h"
#include "SourceText.h"
#include "SpecialCharacters.h"
#include "StencilLibrary.h"
#include "base/WholeFile.h"
#include "frame/Preferences.h"

namespace {

template <class Record>
QByteArray BytesOf(const std::vector<Record> &records) {
  return {reinterpret_cast<const char *>(records.data()),
          static_cast<qsizetype>(records.size() * sizeof(Record))};
}

/// The bytes of the file to make, or nothing if there is no such kind or its sources are missing.
QByteArray Make(const QString &kind, const QStringList &sources) {
  if (kind == u"preferences" && sources.isEmpty()) {
    return BytesOf(std::vector{StandardPreferences()});
  }
  if (kind == u"stencils" && !sources.isEmpty()) {
    StencilLibrary library;
    for (const QString &source : sources) library.Add(ReadSource(source));
    return BytesOf(library.records());
  }
  if (sources.size() != 1) return {};
  if (kind == u"pixels") return BytesOf(PixelRecords(ReadSource(sources[0])));
  if (kind == u"bitmap") return BitmapFile(ReadSource(sources[0]));
  if (kind == u"special-characters") return SpecialCharacterLines(ReadSource(sources[0]));
  return {};
}

}  // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  QTextStream errors(stderr);
  if (arguments.size() < 3) {
    errors
        << "make_data pixels|bitmap|special-characters|stencils|preferences OUTPUT [SOURCE...]\n";
    return 2;
  }
  try {
    const QByteArray bytes = Make(arguments[1], arguments.mid(3));
    if (bytes.isEmpty()) {
      errors << "nothing to make: " << arguments.mid(1).join(u' ') << '\n';
      return 2;
    }
    if (!WriteWholeFile(arguments[2], bytes)) {
      errors << "can't write " << arguments[2] << '\n';
      return 1;
    }
  } catch (const SourceError &error) {
    errors << error.what() << '\n';
    return 1;
  }
  return 0;
}
