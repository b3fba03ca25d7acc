#pragma once

#include "tables/table.h"

namespace swiftroll {

// A walk through a sorted table finds its rows all over the memory, and waits at every one that it did not
// ask for in time.
inline constexpr std::int32_t kLookAhead = 16;

/// To be called at each row `i` of a walk: fetches the cells of a row that it comes to later.
inline void LookAhead(const Table& table, std::int32_t i) { table.Prefetch(i + kLookAhead); }

/// The same, and calls `fetch(row)` for the row half as far ahead, whose cells are there by now, to fetch
/// what they name.
template <class Fetch>
void LookAhead(const Table& table, std::int32_t i, const Fetch& fetch) {
    LookAhead(table, i);
    if (i + kLookAhead / 2 <= table.Count()) fetch(table.Item(i + kLookAhead / 2));
}

}  // namespace swiftroll
