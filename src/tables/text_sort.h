#pragma once

#include <cstdint>
#include <vector>

#include "tables/pause.h"
#include "text/text.h"

namespace swiftroll {

/// The stable order of `texts` by byte values: element i tells which text comes at place i. Empty when they
/// stand in this order already. Descending order keeps equal texts in their present order too.
std::vector<std::uint32_t> SortedOrder(const std::vector<TextView>& texts, bool descending,
                                       const Pause& pause = {});

}  // namespace swiftroll
