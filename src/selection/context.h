#pragma once

#include "app/application.h"

namespace swiftroll::modSelectionIn {

/// Whether a column of `lvwOut` stands before `Number`, as of the last `InitIndexes`: only these form groups.
bool FormsGroups(const Application& app, ColumnId column);

/// What the cell that was clicked last means to the selection: the state between the context menu of a table
/// and the engine.
struct SelectionContext {
    /// What the cell identifies: "I" an individual, "F" a family, "S" a cell of a group of `lvwOut`; empty
    /// for nothing.
    Text sIdKind;
    /// The clicked column, whose values the value modes compare.
    ColumnId iClickedCol = ColumnId::OfSection(0);
    /// The columns that hold the identifiers of an individual and of a family, if there are such.
    ColumnId iIndiCol, iFamCol;
    /// True while the context menu has made no lasting change of marks, so that the clicked row can get its
    /// mark from before the menu back.
    bool bRestoreClickedRow = false;

    /// Takes a click on a column of `table`; no column is a click beside the columns, after which the
    /// cell identifies nothing. In `lvwOut` only the columns before `Number`, as of the last `InitIndexes`,
    /// have a meaning, since the others form no groups.
    void SetClickedCell(const Application& app, const Table& table, ColumnId column);
    /// The identifier of the individual that the clicked cell speaks of, in a row of the same table from 0;
    /// nothing for a cell of anything else, and for a row that has gone.
    std::optional<Text> IndividualOf(const Table& table, std::int32_t row) const;
};

}  // namespace swiftroll::modSelectionIn
