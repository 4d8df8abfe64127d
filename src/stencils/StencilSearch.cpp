#include "stencils/StencilSearch.h"

#include "base/mAnsi.h"
#include "stencils/StencilFiles.h"

namespace {

template <int N>
bool Holds(const FixedText<N> &field, const QString &phrase, Qt::CaseSensitivity sensitivity) {
  return mAnsi::FromAnsi(QByteArrayView(field.bytes, N)).contains(phrase, sensitivity);
}

}  // namespace

std::optional<StencilHit> SearchStencils(const QString &path, const QString &phrase,
                                         Qt::CaseSensitivity sensitivity, qint64 first,
                                         const std::function<bool()> &goOn) {
  std::optional<StencilHit> hit;
  StencilFile(path).Scan(first, [&](qint64 n, const StencilRecord &record) {
    if (!goOn()) return false;
    if (record.Key.TrimmedBytes().isEmpty()) return true;
    if (!Holds(record.Header, phrase, sensitivity) &&
        !Holds(record.HtmlSource, phrase, sensitivity) &&
        !Holds(record.TextCaption, phrase, sensitivity) &&
        !Holds(record.Description, phrase, sensitivity)) {
      return true;
    }
    hit = {n, record.Key.Trimmed(), record.ParentKey.Trimmed()};
    return false;
  });
  return hit;
}
