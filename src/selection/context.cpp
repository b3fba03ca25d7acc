#include "selection/context.h"

#include <algorithm>

namespace swiftroll::modSelectionIn {
namespace {

/// Clicked columns as bits.
constexpr std::uint32_t Columns(std::initializer_list<int> columns) {
    std::uint32_t bits = 0;
    for (const int column : columns) bits |= 1u << column;
    return bits;
}
constexpr std::uint32_t kAnyColumn = ~0u;

struct CellMeaning {
    Table TableSet::*table;
    std::uint32_t columns;
    const char* sIdKind;
    std::int16_t iIndiCol, iFamCol;
};

constexpr CellMeaning kMeanings[] = {
    {&TableSet::lvwIn, kAnyColumn, "I", 0, -1},
    {&TableSet::lvwFamily, Columns({0, 4, 5, 6, 7}), "F", -1, 0},
    {&TableSet::lvwFamily, Columns({1, 8}), "I", 1, 0},
    {&TableSet::lvwFamily, Columns({2, 9}), "I", 2, 0},
    {&TableSet::lvwFamily, Columns({3, 10}), "I", 3, 0},
    {&TableSet::lvwXref, Columns({0, 1, 3}), "I", 0, 5},
    {&TableSet::lvwXref, Columns({2, 4}), "I", 2, 5},
    {&TableSet::lvwXref, Columns({5, 6}), "F", -1, 5},
    {&TableSet::lvwFamilyXref, Columns({0, 4}), "F", 2, 0},
    {&TableSet::lvwFamilyXref, Columns({1, 2, 3, 5}), "I", 2, 0},
    {&TableSet::lvwKinship, Columns({0, 1, 2, 3}), "I", 1, 4},
    {&TableSet::lvwKinship, Columns({4, 5}), "F", 1, 4},
    {&TableSet::lvwOut, kAnyColumn, "S", -1, -1},
};

bool FormsGroups(const Application& app, std::int32_t column) {
    const Positions& positions = app.positions;
    return positions.Of(app.lvwOut).iPosOfCol[static_cast<std::int16_t>(column + 1)] < positions.iPosNumber;
}

}  // namespace

void SelectionContext::SetClickedCell(const Application& app, const Table& table, std::int32_t lHitCol) {
    sIdKind.clear();
    iClickedCol = 0;
    iIndiCol = iFamCol = -1;
    if (lHitCol < 0 || lHitCol >= table.ColumnCount()) return;
    iClickedCol = static_cast<std::int16_t>(lHitCol);
    const auto meaning = std::find_if(std::begin(kMeanings), std::end(kMeanings), [&](const CellMeaning& m) {
        return &(app.*m.table) == &table && (m.columns >> lHitCol & 1u) != 0;
    });
    if (meaning == std::end(kMeanings)) return;
    if (&table == &app.lvwOut && !FormsGroups(app, lHitCol)) return;
    sIdKind = meaning->sIdKind;
    iIndiCol = meaning->iIndiCol;
    iFamCol = meaning->iFamCol;
}

}  // namespace swiftroll::modSelectionIn
