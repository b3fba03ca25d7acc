#include "selection/value_targets.h"

#include "list/sort_keys.h"

namespace swiftroll::modSelectionIn {
namespace {

/// What the last row of each path ends with, which names nobody.
constexpr TextView kEndOfPath = "999999";

std::vector<ColumnId> OtherSpouses(ColumnId iClickedCol) {
    std::vector<ColumnId> columns{Family::IDHusb, Family::IDWife, Family::IDFams};
    std::erase(columns, iClickedCol);
    return columns;
}

}  // namespace

Way WayOf(const TableSet& tables, const Table& table, ColumnId iClickedCol) {
    using Kind = Way::Kind;
    if (&table == &tables.lvwIn) return {Kind::Identifier, {In::ID}};
    // From somebody to the other individual of his links.
    if (&table == &tables.lvwXref) {
        return {Kind::Identifier, {iClickedCol == Xref::IDIndi1 ? Xref::IDIndi2 : Xref::IDIndi1}};
    }
    if (&table == &tables.lvwFamily) return {Kind::Identifier, OtherSpouses(iClickedCol)};
    if (&table == &tables.lvwFamilyXref) return {Kind::Identifier, {FamilyXref::IDIndi}};
    if (&table == &tables.lvwKinship) {
        return {iClickedCol == Kinship::SeqNr ? Kind::PathNumber : Kind::Identifier, {Kinship::IDIndi}};
    }
    if (&table == &tables.lvwOut) return {Kind::GroupKey, {}};
    return {};
}

ValueTargets::ValueTargets(Application& app, Table& table, const Way& way, Marker marker)
    : app_(app), marker_(marker), kind_(way.kind) {
    // Growing would hash every key again.
    if (kind_ == Way::Kind::GroupKey) groups_.reserve(static_cast<std::size_t>(table.Count()));
    for (const ColumnId column : way.idColumns) {
        idColumns_.emplace_back(table, column, app.lvwIn.Store());
    }
}

void ValueTargets::Take(const Row& row) {
    if (kind_ == Way::Kind::PathNumber && row.Text().ends_with(kEndOfPath)) return;
    if (kind_ == Way::Kind::GroupKey) {
        modCalcOut::WriteSortKeyOut(app_.positions, row, key_);
        if (!groups_.contains(key_)) groups_.insert(groupKeys_.Get(groupKeys_.Put(key_)));
    }
    for (const IdColumn& column : idColumns_) marker_.MarkIfKnown(column.Of(row));
}

void ValueTargets::Finish() {
    if (groups_.empty()) return;
    for (std::int32_t i = 1; i <= app_.lvwIn.Count(); ++i) {
        const Row individual = app_.lvwIn.Item(i);
        modCalcOut::WriteSortKeyIn(app_.positions, individual, key_);
        if (groups_.contains(key_)) marker_.Mark(individual);
    }
}

}  // namespace swiftroll::modSelectionIn
