#pragma once

#include <vector>

#include "tables/table.h"

namespace swiftroll::cli {

/// Prints tables on standard output: a line of column keys and a line per row, cells joined by a tab, with
/// `\t`,
/// `\n`, `\r` and `\\` for those characters in a cell; with several tables a line "# NAME" before each.
/// `withKeys` puts `Key`, `Tag` and `Marques` in front. False when not all could be written.
bool PrintTables(const std::vector<Table*>& tables, bool withKeys);

}  // namespace swiftroll::cli
