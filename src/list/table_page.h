#pragma once

#include "app/ports.h"
#include "tables/table.h"

namespace swiftroll::modCalcOut {

/// Writes a table into a file as a page of HTML under a title, in UTF-8: the columns that are switched on, in
/// their present order, and all rows. @throws Failure FileAccess
void WriteTablePage(File& file, TextView sTitle, Table& table);

}  // namespace swiftroll::modCalcOut
