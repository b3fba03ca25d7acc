// What a double click in a table leads to.
#include <algorithm>

#include "shell/frm_main.h"
#include "tables/column_set.h"

namespace swiftroll {
namespace {

/// Cells that name a row of another table by the identifier in a column, a `SubItems` number.
struct Jump {
    Table TableSet::*from;
    ColumnSet columns;
    Table TableSet::*to;
    std::int16_t iIdCol;
};

constexpr Jump kJumps[] = {
    {&TableSet::lvwFamily, {1, 8}, &TableSet::lvwIn, 1},
    {&TableSet::lvwFamily, {2, 9}, &TableSet::lvwIn, 2},
    {&TableSet::lvwFamily, {3, 10}, &TableSet::lvwIn, 3},
    {&TableSet::lvwFamilyXref, {0, 4}, &TableSet::lvwFamily, 0},
    {&TableSet::lvwFamilyXref, {2, 5}, &TableSet::lvwIn, 2},
    {&TableSet::lvwXref, {0, 3}, &TableSet::lvwIn, 0},
    {&TableSet::lvwXref, {2, 4}, &TableSet::lvwIn, 2},
    {&TableSet::lvwXref, {5, 6}, &TableSet::lvwFamily, 5},
    {&TableSet::lvwKinship, {1, 2, 3}, &TableSet::lvwIn, 1},
    {&TableSet::lvwKinship, {4, 5}, &TableSet::lvwFamily, 4},
};

}  // namespace

void frmMain::lvw_DblClick(Table& table) {
    if (&table == &lvwOut) {
        if (lHitRow < 0 || lHitCol < 0) return;
        return trail.Guard(
            "lvwOut_DblClick", [this] { modSelectionIn.SelectGroups(); }, [] { return Text(); });
    }
    if (!bFamiliesRead || lHitRow < 0 || lHitRow >= table.Count()) return;
    const auto jump = std::find_if(std::begin(kJumps), std::end(kJumps), [&](const Jump& j) {
        return &(this->*j.from) == &table && j.columns.Contains(lHitCol);
    });
    if (jump != std::end(kJumps)) JumpTo(this->*jump->to, table.Item(lHitRow + 1).SubItems(jump->iIdCol));
}

/// Goes to the row of a key; a cell that names nobody leads nowhere.
void frmMain::JumpTo(Table& target, TextView sKey) {
    if (auto current = target.Current()) current->SetSelected(false);
    auto row = target.Find(sKey);
    if (!row) return;
    target.SetCurrent(*row);
    row->SetSelected(true);
    row->SetChecked(true);
    row->EnsureVisible();
    ShowTab(&target == &lvwFamily ? Tab::Family : Tab::In);
}

}  // namespace swiftroll
