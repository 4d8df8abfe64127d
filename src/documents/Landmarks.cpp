#include "documents/Landmarks.h"

#include <QStringView>
#include <algorithm>

namespace {

constexpr std::array<QLatin1StringView, Landmarks::Count> tags{
    QLatin1StringView("<head"), QLatin1StringView("</head"), QLatin1StringView("<body"),
    QLatin1StringView("</body")};

constexpr int longestTag = 6;
constexpr int pieceLength = 1 << 16;

int LengthOf(int landmark) {
  return int(tags[landmark].size());
}

}  // namespace

// Takes the first occurrence of each wanted tag that begins in [start, end); what is found is
// wanted no more.
void Landmarks::Search(Wanted &wanted, int start, int end, int length, const Reader &read) {
  for (; start < end && std::ranges::count(wanted, true) > 0; start += pieceLength) {
    const int begins = std::min(pieceLength, end - start);
    const QString piece = read(start, std::min(begins + longestTag - 1, length - start));
    const QStringView text(piece);
    for (qsizetype lt = text.indexOf(u'<'); lt >= 0 && lt < begins;
         lt = text.indexOf(u'<', lt + 1)) {
      for (int landmark = 0; landmark < Count; ++landmark) {
        if (!wanted[landmark]) continue;
        if (!text.mid(lt).startsWith(tags[landmark], Qt::CaseInsensitive)) continue;
        first_[landmark] = start + int(lt);
        wanted[landmark] = false;
      }
    }
  }
}

void Landmarks::Edited(int position, int removed, int added, int length, const Reader &read) {
  Wanted around{};
  Wanted lost{};
  for (int landmark = 0; landmark < Count; ++landmark) {
    int &first = first_[landmark];
    if (first >= 0 && first + LengthOf(landmark) <= position) continue;
    around[landmark] = true;
    if (first >= position + removed) {
      first += added - removed;
    } else if (first >= 0) {
      first = -1;
      lost[landmark] = true;
    }
  }
  const int behind = std::min(position + added, length);
  Search(around, std::max(position - longestTag + 1, 0), behind, length, read);
  for (int landmark = 0; landmark < Count; ++landmark) lost[landmark] &= around[landmark];
  Search(lost, behind, length, length, read);
}
