#pragma once

#include <QString>
#include <functional>

class KeyedTree;
class QTreeWidgetItem;

/// Clears a tree and fills it from a file of stencils: a root with that text and the key "aa", and
/// below it a node for each record that has a key, in the order of the file, all collapsed.
///
/// A counter of nodes goes one on for each such record, and the node with that number gets the
/// record's tag and picture: the record's own, as long as every record could be added. Behind one
/// that couldn't (its parent is unknown or its key is taken) there is no node of that number yet,
/// so all later nodes stay without.
///
/// goOn is called for each record; it may pump events, and ends the filling by false. So does the
/// end of the tree.
void FillStencilTree(KeyedTree &tree, const QString &path, const QString &rootText,
                     const std::function<bool()> &goOn = {});

/// The key that a node of such a tree is tagged with; empty for a null node or one without a tag.
QString StencilTag(const QTreeWidgetItem *node);
