#pragma once

#include <cstdint>

#include "tables/counting_sort.h"
#include "tables/text_store.h"

namespace swiftroll::modSelectionIn {

/// Numbers a reference of one store as the number of a list: the empty text is 0.
inline std::uint32_t ListOf(TextRef interned) { return interned.IsEmpty() ? 0 : interned.Symbol() + 1; }

}  // namespace swiftroll::modSelectionIn
