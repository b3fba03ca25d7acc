// What a double click in a table leads to.
#include <algorithm>

#include "shell/frm_main.h"
#include "tables/column_set.h"

namespace swiftroll {
namespace {

/// Cells that name a row of another table by the identifier in a column, a `SubItems` number.
struct Jump {
    Table TableSet::*from;
    Table TableSet::*to;
    ColumnSet columns;
    std::int16_t iIdCol;
};

constexpr Jump kJumps[] = {
    {&TableSet::lvwFamily, &TableSet::lvwIn, {1, 8}, 1},
    {&TableSet::lvwFamily, &TableSet::lvwIn, {2, 9}, 2},
    {&TableSet::lvwFamily, &TableSet::lvwIn, {3, 10}, 3},
    {&TableSet::lvwFamilyXref, &TableSet::lvwFamily, {0, 4}, 0},
    {&TableSet::lvwFamilyXref, &TableSet::lvwIn, {2, 5}, 2},
    {&TableSet::lvwXref, &TableSet::lvwIn, {0, 3}, 0},
    {&TableSet::lvwXref, &TableSet::lvwIn, {2, 4}, 2},
    {&TableSet::lvwXref, &TableSet::lvwFamily, {5, 6}, 5},
    {&TableSet::lvwKinship, &TableSet::lvwIn, {1, 2, 3}, 1},
    {&TableSet::lvwKinship, &TableSet::lvwFamily, {4, 5}, 4},
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
    auto row = sKey.empty() ? std::nullopt : target.Find(sKey);
    if (!row) return;
    target.SetCurrent(*row);
    row->SetSelected(true);
    row->SetChecked(true);
    row->EnsureVisible();
    ShowTab(&target == &lvwFamily ? Tab::Family : Tab::In);
}

}  // namespace swiftroll
