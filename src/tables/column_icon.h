#pragma once

#include "tables/schema.h"

namespace swiftroll {

/// Writes the sort mark of a column into its icon: "Dw" or "Up" when the table is sorted by it, else "No";
/// the selection mark stays. With `bResetOthers` every column first loses its sort mark, and one without an
/// icon becomes "OnNo", selected for export.
void SetColumnIcon(Table& table, Column& column, bool bResetOthers);

/// Brings the sort marks of all columns of the shown tables up to date.
void SetAllColumnIcons(TableSet& tables);

}  // namespace swiftroll
