#pragma once

#include <vector>

#include "app/ports.h"
#include "tables/table.h"

namespace swiftroll::cli {

/// Prints tables into a file, as UTF-8: a line of column keys and a line per row, cells joined by a tab, with
/// `\t`, `\n`, `\r` and `\\` for those characters in a cell; with several tables a line "# NAME" before each.
/// `withKeys` puts `Key`, `Tag` and `Marques` in front. @throws Failure FileAccess
void PrintTables(const std::vector<Table*>& tables, bool withKeys, File& file);

}  // namespace swiftroll::cli
