// The sources of the standard library: what is refused is refused with file and line, and what is
// taken makes whole records.

#include "Fuzz.h"
#include "StencilLibrary.h"
#include "stencils/StencilFiles.h"

void Try(Input &input) {
  static const StencilLibrary empty;
  const QString path = Path(QStringLiteral("source.txt"));
  StencilLibrary library = empty;
  try {
    while (input.remaining_bytes() > 0) {
      PutFile(path, TakeBytes(input, 10'000));
      library.Add(ReadSource(path));
    }
  } catch (const SourceError &) {
  }
  for (const StencilRecord &record : library.records()) {
    const QByteArray key = record.Key.TrimmedBytes().toByteArray();
    Require(key.chopped(2) == record.ParentKey.TrimmedBytes(), "a key begins with the parent's");
    Require(key.startsWith("aa"), "keys begin at the root");
  }
}
