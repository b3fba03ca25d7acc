#include "list/sort_keys.h"

#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/fold.h"
#include "text/literal.h"

namespace swiftroll::modCalcOut {
namespace {

constexpr std::size_t kNumberWidth = 30;

void WriteSortKey(const Positions& positions, const PerPosition<ColumnId>& keyColumns, const Row& row,
                  Text& sKey) {
    sKey.clear();
    for (std::int16_t position = 1; position <= positions.iPosNumber; ++position) {
        const ColumnId column = keyColumns[position];
        if (!column) continue;
        sKey += '\\';
        AppendComparisonForm(sKey, row.Cell(column));
    }
}

Text FormOf(const Positions& positions, SortMode iMode, const Row& row, ColumnId column) {
    switch (iMode) {
        case SortMode::Number:
            return AlignRight(row.Cell(column), kNumberWidth);
        case SortMode::GroupKey:
            return MakeSortKeyIn(positions, row);
        case SortMode::Folded:
            break;
    }
    return ComparisonForm(row.Cell(column));
}

}  // namespace

Text KeepAlphaNum(const OptionRecord& options, TextView sText, bool bForce) {
    if (bForce) return ComparisonForm(sText);
    Text out = options.chkDelAccents.Checked() ? FoldAccents(sText) : Text(sText);
    return options.chkIgnoreCase.Checked() ? UpperCase(out) : out;
}

Text MakeSortKeyIn(const Positions& positions, const Row& row) {
    Text sKey;
    WriteSortKeyIn(positions, row, sKey);
    return sKey;
}

Text MakeSortKeyOut(const Positions& positions, const Row& row) {
    Text sKey;
    WriteSortKeyOut(positions, row, sKey);
    return sKey;
}

void WriteSortKeyIn(const Positions& positions, const Row& row, Text& sKey) {
    WriteSortKey(positions, positions.iKeyColIn, row, sKey);
}

void WriteSortKeyOut(const Positions& positions, const Row& row, Text& sKey) {
    WriteSortKey(positions, positions.iKeyColOut, row, sKey);
}

void SortTable(const Positions& positions, Feedback& feedback, SortMode iMode, Table& table, Column& column) {
    const ScopedFlag lock(feedback.bTablesLocked);
    table.NeedAll();
    // The forms stand aside, one behind the other, for the length of the sort.
    TextStore formStore;
    std::vector<TextView> forms;
    forms.reserve(static_cast<std::size_t>(table.Count()));
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        forms.push_back(formStore.Get(formStore.Put(FormOf(positions, iMode, table.Item(i), column.Index))));
    }
    const bool wasSorted = table.Sorted();
    const bool toggles = iMode != SortMode::GroupKey;
    const bool descending = toggles && wasSorted && table.SortOrder() != 1;
    table.SortByForms(forms, toggles ? column.Index : ColumnId(In::ID), descending ? 1 : 0);
    if (toggles) SetColumnIcon(table, column, true);
}

void WarnWithoutColumns(Feedback& feedback, const Table& table) {
    for (const Column& column : table.Columns()) {
        if (column.IsOn()) return;
    }
    feedback.Box(" - Sélection Colonnes"_t,
                 Concat({"Aucune valeur ne sera écrite en sortie"_t, kLineEnd,
                         "puisqu'aucune colonne n'est sélectionnée"_t}),
                 BoxButtons::Ok, BoxIcon::Exclamation);
}

void lvw_ColumnClick(ArrangedTables& tables, Feedback& feedback, Table& table, Column& column,
                     bool shiftIsDown) {
    feedback.trail.Guard(
        "lvw_ColumnClick",
        [&] {
            if (!shiftIsDown) {
                const bool isText = column.Facts->kind == CellKind::Words;
                SortTable(tables.positions, feedback, isText ? SortMode::Folded : SortMode::Number, table,
                          column);
                return;
            }
            if (&table == &tables.lvwOut) return;
            column.Icon.replace(0, 2, column.IsOn() ? "Of" : "On");
            SetColumnIcon(table, column, false);
            WarnWithoutColumns(feedback, table);
        },
        [] { return Text(); });
}

}  // namespace swiftroll::modCalcOut
