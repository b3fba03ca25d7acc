#pragma once

#include <array>
#include <vector>

#include "tables/table.h"

namespace swiftroll::modCalcOut {

/// Keys of the columns of `lvwOut` that form the groups where nobody has put them in order.
inline constexpr std::array<TextView, 4> kDefaultGroups{"LastName", "Place", "DateMin", "DateMax"};

/// Puts columns of `lvwOut` before `Number`, in this order, and all others behind it in schema order.
void PlaceBeforeNumber(Table& lvwOut, std::vector<Column*> columns);
/// The same for the default ones.
void PlaceDefaultGroups(Table& lvwOut);
/// Whether the columns stand in schema order.
bool StandInSchemaOrder(const Table& table);

}  // namespace swiftroll::modCalcOut
