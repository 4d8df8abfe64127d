#pragma once

#include <type_traits>

#include "base/FixedText.h"

/// One entry of the quick bar as it lies in htLib0003.htf.
struct QuickBarRecord {
  FixedText<100> StencilKey;  ///< Key of a record of htLib0002.htf, never of the standard library
};

static_assert(sizeof(QuickBarRecord) == 100);
static_assert(alignof(QuickBarRecord) == 1);
static_assert(std::is_trivially_copyable_v<QuickBarRecord>);
