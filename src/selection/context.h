#pragma once

#include "app/application.h"

namespace swiftroll::modSelectionIn {

/// Whether a column of `lvwOut`, by its `SubItems` number, stands before `Number`, as of the last
/// `InitIndexes`: only these form groups.
bool FormsGroups(const Application& app, std::int32_t lOutCol);

/// What the cell that was clicked last means to the selection: the state between the context menu of a table
/// and the engine. Columns are `SubItems` numbers: 0 is the row's `Text`.
struct SelectionContext {
    /// What the cell identifies: "I" an individual, "F" a family, "S" a cell of a group of `lvwOut`; empty
    /// for nothing.
    Text sIdKind;
    /// The clicked column, whose values the value modes compare.
    std::int16_t iClickedCol = 0;
    /// The columns that hold the identifiers of an individual and of a family; -1 for none.
    std::int16_t iIndiCol = -1, iFamCol = -1;
    /// True while the context menu has made no lasting change of marks, so that the clicked row can get its
    /// mark from before the menu back.
    bool bRestoreClickedRow = false;

    /// Takes a click on the column `lHitCol` of `table`; -1 is a click beside the columns, after which the
    /// cell identifies nothing. In `lvwOut` only the columns before `Number`, as of the last `InitIndexes`,
    /// have a meaning, since the others form no groups.
    void SetClickedCell(const Application& app, const Table& table, std::int32_t lHitCol);
};

}  // namespace swiftroll::modSelectionIn
