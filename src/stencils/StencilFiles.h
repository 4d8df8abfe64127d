#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "base/RecordFile.h"
#include "stencils/QuickBarRecord.h"
#include "stencils/StencilRecord.h"

using StencilFile = RecordFile<StencilRecord>;
using QuickBarFile = RecordFile<QuickBarRecord>;

/// The stencil files and what is looked up in them. There is no index: every look-up is a scan from
/// the first record. A missing file is an empty one.
namespace StencilFiles {

inline const QString Standard = QStringLiteral("htLib0001.htf");
inline const QString SelfBuilt = QStringLiteral("htLib0002.htf");
inline const QString QuickBar = QStringLiteral("htLib0003.htf");
inline const QString Scratch = QStringLiteral("htLib.htf");  ///< only there during a rewrite

/// The key of each tree's root, which no record holds.
inline const QString RootKey = QStringLiteral("aa");

/// What NextFreeStencilKey returns where a node is full.
inline const QString NoKey = QStringLiteral("<.NOKEY.>");

/// The path of the standard library, always in the program folder.
QString StandardPath();

/// The path of a file in the data folder: the folder that the preferences name, which are read anew
/// for it, or else the program folder. A separator at that folder's end gives a doubled one.
QString ResolveDataFile(const QString &name);

/// How many records a file of stencils holds.
qint64 StencilCount(const QString &path);

/// The first record with exactly that key, nothing if there is none.
std::optional<StencilRecord> FindStencil(const QString &path, const QString &key);

/// A key for a new child of the node with that key: the lowest letter, written twice, that no
/// record of the file has behind the parent's key; NoKey if all 26 are taken. A parent's key of 100
/// bytes gets a candidate that no field can hold, so it counts as free.
QString NextFreeStencilKey(const QString &path, const QString &parentKey);

}  // namespace StencilFiles
