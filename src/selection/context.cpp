#include "selection/context.h"

#include <algorithm>

#include "tables/column_set.h"

namespace swiftroll::modSelectionIn {
namespace {

struct CellMeaning {
    Table TableSet::*table;
    ColumnSet columns;
    const char* sIdKind;
    std::int16_t iIndiCol, iFamCol;
};

constexpr CellMeaning kMeanings[] = {
    {&TableSet::lvwIn, ColumnSet::All(), "I", 0, -1},
    {&TableSet::lvwFamily, {0, 4, 5, 6, 7}, "F", -1, 0},
    {&TableSet::lvwFamily, {1, 8}, "I", 1, 0},
    {&TableSet::lvwFamily, {2, 9}, "I", 2, 0},
    {&TableSet::lvwFamily, {3, 10}, "I", 3, 0},
    {&TableSet::lvwXref, {0, 1, 3}, "I", 0, 5},
    {&TableSet::lvwXref, {2, 4}, "I", 2, 5},
    {&TableSet::lvwXref, {5, 6}, "F", -1, 5},
    {&TableSet::lvwFamilyXref, {0, 4}, "F", 2, 0},
    {&TableSet::lvwFamilyXref, {1, 2, 3, 5}, "I", 2, 0},
    {&TableSet::lvwKinship, {0, 1, 2, 3}, "I", 1, 4},
    {&TableSet::lvwKinship, {4, 5}, "F", 1, 4},
    {&TableSet::lvwOut, ColumnSet::All(), "S", -1, -1},
};

}  // namespace

bool FormsGroups(const Application& app, std::int32_t lOutCol) {
    const Positions& positions = app.positions;
    return positions.Of(app.lvwOut).iPosOfCol[static_cast<std::int16_t>(lOutCol + 1)] < positions.iPosNumber;
}

void SelectionContext::SetClickedCell(const Application& app, const Table& table, std::int32_t lHitCol) {
    sIdKind.clear();
    iClickedCol = 0;
    iIndiCol = iFamCol = -1;
    if (lHitCol < 0 || lHitCol >= table.ColumnCount()) return;
    iClickedCol = static_cast<std::int16_t>(lHitCol);
    const auto meaning = std::find_if(std::begin(kMeanings), std::end(kMeanings), [&](const CellMeaning& m) {
        return &(app.*m.table) == &table && m.columns.Contains(lHitCol);
    });
    if (meaning == std::end(kMeanings)) return;
    if (&table == &app.lvwOut && !FormsGroups(app, lHitCol)) return;
    sIdKind = meaning->sIdKind;
    iIndiCol = meaning->iIndiCol;
    iFamCol = meaning->iFamCol;
}

}  // namespace swiftroll::modSelectionIn
