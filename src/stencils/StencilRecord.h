#pragma once

#include <cstddef>
#include <type_traits>

#include "base/FixedText.h"

/// One stencil as it lies in htLib0001.htf (standard library) and htLib0002.htf (self-built): six
/// text fields, nothing else. All readers trim the fields, so blanks at a field's ends don't count.
/// Line breaks in HtmlSource and Description are CR LF.
///
/// The tree lives in the keys alone. The root isn't stored and has the key "aa"; a child's Key is
/// its ParentKey and one letter a to z written twice, so a node has at most 26 children. A parent's
/// record stands before those of its children; children show in the order of the file.
struct StencilRecord {
  FixedText<100> Header;       ///< text of the tree node
  FixedText<1500> HtmlSource;  ///< what is inserted into a document; empty in a mere section
  FixedText<100> TextCaption;  ///< short name, shown above source and help text
  FixedText<750> Description;  ///< the help text
  FixedText<100> ParentKey;    ///< Key of the parent, "aa" at the top level
  FixedText<100> Key;          ///< unique within the file; empty means: no entry, skip it
};

static_assert(sizeof(StencilRecord) == 2650);
static_assert(alignof(StencilRecord) == 1);
static_assert(std::is_trivially_copyable_v<StencilRecord>);
static_assert(offsetof(StencilRecord, HtmlSource) == 100);
static_assert(offsetof(StencilRecord, TextCaption) == 1600);
static_assert(offsetof(StencilRecord, Description) == 1700);
static_assert(offsetof(StencilRecord, ParentKey) == 2450);
static_assert(offsetof(StencilRecord, Key) == 2550);
