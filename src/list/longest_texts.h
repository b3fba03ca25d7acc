#pragma once

#include <vector>

#include "tables/table.h"

namespace swiftroll {

/// The longest texts of a column, some dozens: among them is the widest one, unless its letters are much
/// wider than those of all of them.
std::vector<TextView> LongestTexts(Table& table, ColumnId column);

}  // namespace swiftroll
