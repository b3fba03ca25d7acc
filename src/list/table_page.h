#pragma once

#include "app/ports.h"
#include "tables/table.h"

namespace swiftroll::modCalcOut {

/// Writes a table into a file as a page of HTML under a title, in UTF-8: the columns that are switched on, in
/// their present order, and the rows that are not left out. @throws Failure FileAccess
void WriteTablePage(File& file, TextView sTitle, Table& table,
                    const std::function<bool(const Row& row)>& isLeftOut);

}  // namespace swiftroll::modCalcOut
