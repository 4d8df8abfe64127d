#include "stencils/StencilFiles.h"

#include <algorithm>
#include <array>

#include "base/mAnsi.h"
#include "base/mFolders.h"
#include "frame/mPublic.h"

namespace StencilFiles {

QString StandardPath() {
  return mFolders::InProgramFolder(Standard);
}

QString ResolveDataFile(const QString &name) {
  mPublic::ReadPreferences();
  const Preferences &preferences = mPublic::recPreferences;
  return preferences.SelfStencilsOtherPath
             ? mFolders::Join(preferences.OtherStencilsPath.Trimmed(), name)
             : mFolders::InProgramFolder(name);
}

qint64 StencilCount(const QString &path) {
  return StencilFile(path).Count();
}

std::optional<StencilRecord> FindStencil(const QString &path, const QString &key) {
  const QByteArray sought = mAnsi::ToAnsi(key);
  std::optional<StencilRecord> found;
  StencilFile(path).Scan(1, [&](qint64, const StencilRecord &record) {
    if (record.Key.TrimmedBytes() != sought) return true;
    found = record;
    return false;
  });
  return found;
}

QString NextFreeStencilKey(const QString &path, const QString &parentKey) {
  const QByteArray parent = mAnsi::ToAnsi(parentKey);
  std::array<bool, 26> taken{};
  StencilFile(path).Scan(1, [&](qint64, const StencilRecord &record) {
    const QByteArrayView key = record.Key.TrimmedBytes();
    if (key.size() != parent.size() + 2 || !key.startsWith(parent)) return true;
    const char letter = key.back();
    const bool isChild = letter >= 'a' && letter <= 'z' && key[key.size() - 2] == letter;
    if (isChild) taken[std::size_t(letter - 'a')] = true;
    return true;
  });
  const auto free = std::find(taken.begin(), taken.end(), false);
  return free == taken.end() ? NoKey
                             : parentKey + QString(2, QChar(u'a' + int(free - taken.begin())));
}

}  // namespace StencilFiles
