#include "selection/engine.h"

#include "list/sort_keys.h"
#include "selection/cell_values.h"
#include "selection/seen_texts.h"
#include "selection/value_targets.h"
#include "selection/wanted_values.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modSelectionIn {
namespace {

/// What a mode does with the identifier in each marked row.
struct LinkMode {
    TextView sMode;
    /// The kind of cell that it is for; empty for any.
    TextView sIdKind;
    ColumnId SelectionContext::*column;
    void (Relatives::*mark)(TextRef id);
};

constexpr LinkMode kLinkModes[] = {
    {"I", "", &SelectionContext::iIndiCol, &Relatives::MarkIndividual},
    {"P", "", &SelectionContext::iIndiCol, &Relatives::MarkParents},
    {"S", "I", &SelectionContext::iIndiCol, &Relatives::MarkSpouses},
    {"S", "F", &SelectionContext::iFamCol, &Relatives::MarkFamilySpouses},
    {"C", "I", &SelectionContext::iIndiCol, &Relatives::MarkChildren},
    {"C", "F", &SelectionContext::iFamCol, &Relatives::MarkFamilyChildren},
};

/// A mode that goes on from generation to generation.
struct LineageMode {
    TextView sMode;
    GenerationStep step;
};

constexpr LineageMode kLineageModes[] = {{"A", &Relatives::VisitParents}, {"D", &Relatives::VisitChildren}};

std::optional<Comparison> ComparisonOf(TextView sMode) {
    if (sMode == "V<=") return Comparison::AtMost;
    if (sMode == "V=") return Comparison::Equal;
    if (sMode == "V>=") return Comparison::AtLeast;
    return std::nullopt;
}

/// Calls `visit` for the marked rows in table order; each is tested when its turn comes.
template <class Visitor>
void ForEachMarked(Table& table, Visitor visit) {
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        if (row.Marked()) visit(i, row);
    }
}

}  // namespace

void Engine::Add_Remove_Selection(bool bSelect, TextView sMode, std::int32_t lGenerations) {
    const ScopedFlag wait(app_.bWaitCursor);
    context.bRestoreClickedRow = false;
    Table* const table = app_.lvwActiveListView;
    Relatives relatives(app_, Marker(app_.lvwIn, bSelect));
    app_.trail.Guard(
        "Add_Remove_Selection",
        [&] {
            if (table == nullptr) return;
            if (sMode == "?1" || sMode == "?N") return find.FindNext(app_, *table, context.iClickedCol);
            FollowLinks(relatives, *table, sMode);
            FollowLineage(relatives, *table, sMode, bSelect, lGenerations);
            CompareValues(*table, sMode, bSelect);
        },
        [&] {
            return Concat({table->Name(), "/", bSelect ? "-1" : "0", "/", sMode, "/", context.sIdKind, "/",
                           Decimal(context.iClickedCol.Section()), "/", Decimal(context.iIndiCol.Section()),
                           "/", Decimal(context.iFamCol.Section()), "/", relatives.Individual(), "/",
                           relatives.FamilyId()});
        });
}

void Engine::FollowLinks(Relatives& relatives, Table& table, TextView sMode) {
    for (const LinkMode& mode : kLinkModes) {
        if (mode.sMode != sMode || (!mode.sIdKind.empty() && mode.sIdKind != context.sIdKind)) continue;
        const IdColumn ids(table, context.*mode.column, app_.lvwIn.Store());
        SeenTexts seen;
        ForEachMarked(table, [&](std::int32_t, const Row& row) {
            const TextRef id = ids.Of(row);
            if (!id.IsEmpty() && seen.IsNew(id)) (relatives.*mode.mark)(id);
        });
    }
}

void Engine::FollowLineage(Relatives& relatives, Table& table, TextView sMode, bool bSelect,
                           std::int32_t lGenerations) {
    for (const LineageMode& mode : kLineageModes) {
        if (mode.sMode != sMode) continue;
        const IdColumn ids(table, context.iIndiCol, app_.lvwIn.Store());
        Lineage lineage;
        // All marks are tested before the first is changed: a generation is counted from those who were
        // marked.
        ForEachMarked(table, [&](std::int32_t, const Row& row) { lineage.Add(ids.Of(row)); });
        lineage.Mark(relatives, Marker(app_.lvwIn, bSelect), mode.step, lGenerations);
    }
}

void Engine::CompareValues(Table& table, TextView sMode, bool bSelect) {
    const auto comparison = ComparisonOf(sMode);
    const Way way = WayOf(app_, table, context.iClickedCol);
    if (!comparison || way.kind == Way::Kind::None) return;
    ValueTargets targets(app_, table, way, Marker(app_.lvwIn, bSelect));
    CellValues cells;
    WantedValues wanted(cells.store, *comparison);
    // All marks are tested before the first is changed. On lvwIn, where a matching row names itself, that
    // makes no difference: the value of a row that another one marks or unmarks compares to the other's, and
    // so leads to nobody but whom the other leads to.
    ForEachMarked(table, [&](std::int32_t i, const Row&) {
        if (cells.values.empty()) {
            if (way.kind == Way::Kind::PathNumber) {
                cells.ReadPathNumbers(table);
            } else {
                cells.ReadColumn(app_, table, context.iClickedCol);
            }
        }
        wanted.Add(cells.values[static_cast<std::size_t>(i - 1)]);
    });
    bool matches = false;
    for (std::size_t i = 0; i < cells.values.size(); ++i) {
        // Equal values often follow each other.
        if (i == 0 || cells.values[i] != cells.values[i - 1]) matches = wanted.Match(cells.values[i]);
        if (matches) targets.Take(table.Item(static_cast<std::int32_t>(i + 1)));
    }
    targets.Finish();
}

void Engine::SelectGroups() {
    ValueTargets targets(app_, app_.lvwOut, {Way::Kind::GroupKey, {}}, Marker(app_.lvwIn, true));
    ForEachMarked(app_.lvwOut, [&](std::int32_t, const Row& row) { targets.Take(row); });
    targets.Finish();
}

void Engine::SelectIn(TextView sId, bool bSelect) {
    if (!sId.empty()) Marker(app_.lvwIn, bSelect).Mark(app_.lvwIn.Item(sId));
}

Text Engine::GetCell(const Row& row, ColumnId column, bool bRaw) const {
    const TextView cell = row.Cell(column);
    return bRaw ? Text(cell) : modCalcOut::KeepAlphaNum(app_, cell, false);
}

}  // namespace swiftroll::modSelectionIn
