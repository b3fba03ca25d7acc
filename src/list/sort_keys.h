#pragma once

#include "app/arranged_tables.h"
#include "app/option_record.h"

namespace swiftroll::modCalcOut {

/// The comparison form of a text. With `bForce` the form of group keys; otherwise accents and punctuation are
/// folded under `chkDelAccents`, and case under `chkIgnoreCase`.
Text KeepAlphaNum(const OptionRecord& options, TextView sText, bool bForce);

/// The group key of a row of `lvwIn`: a backslash and the comparison form of each text column that stands
/// before `Number` in `lvwOut`, as of the last `InitIndexes`. Equal keys mean the same group.
Text MakeSortKeyIn(const Positions& positions, const Row& row);
/// The key of a row of `lvwOut`: that of every individual of its group, as long as no column was moved.
Text MakeSortKeyOut(const Positions& positions, const Row& row);

/// The same, into a text that is reused to avoid allocation where keys are many.
void WriteSortKeyIn(const Positions& positions, const Row& row, Text& sKey);
void WriteSortKeyOut(const Positions& positions, const Row& row, Text& sKey);

/// How `SortTable` compares: as right-justified numbers, by group key, or by folded text.
enum class SortMode : std::int16_t { Number = 1, GroupKey = 2, Folded = 3 };

/// Sorts a table by the comparison forms of a column and marks the column's icon; the order toggles between
/// ascending and descending. `GroupKey` sorts `lvwIn`, always ascending, and leaves the icons; it alone reads
/// the positions.
void SortTable(const Positions& positions, Feedback& feedback, SortMode iMode, Table& table, Column& column);

/// What a click on a column header does: with Shift it switches the column on or off for export, else it
/// sorts.
void lvw_ColumnClick(ArrangedTables& tables, Feedback& feedback, Table& table, Column& column,
                     bool shiftIsDown);

/// Tells the user when no column of the table is switched on for export.
void WarnWithoutColumns(Feedback& feedback, const Table& table);

}  // namespace swiftroll::modCalcOut
