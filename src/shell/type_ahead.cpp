#include "shell/type_ahead.h"

#include <algorithm>

#include "text/edit.h"
#include "text/fold.h"

namespace swiftroll {
namespace {

ColumnId SearchedColumn(const Table& table) {
    if (table.Sorted()) return table.SortKey();
    const Column* first = nullptr;
    for (const Column& column : table.Columns()) {
        if (column.IsShown() && (first == nullptr || column.Position < first->Position)) first = &column;
    }
    return first == nullptr ? ColumnId::OfSection(0) : first->Index;
}

/// The next row that begins with a word, from a place on the screen on, and from the first row at the end.
std::optional<Row> NextRow(Table& table, const RowFilter& filter, TextView word, std::int32_t from) {
    const ColumnId column = SearchedColumn(table);
    for (std::int32_t i = 0; i < filter.Count(); ++i) {
        const Row row = table.Item(filter.RowAt((from + i) % filter.Count()));
        table.Need(row);
        if (FoldedStartsWith(row.Cell(column), word)) return row;
    }
    return std::nullopt;
}

}  // namespace

std::optional<Row> TypeAhead::Type(Table& table, TextView letters, bool startsAnew) {
    if (startsAnew) typed_.clear();
    typed_ += ReplaceAll(ComparisonForm(letters), " ", "");
    if (typed_.empty()) return std::nullopt;
    RowFilter& filter = filters_.Of(table);
    filter.Sync();
    const auto current = table.Current();
    const std::int32_t place = current ? std::max(filter.PlaceOf(current->Index()), 0) : 0;
    // The same letter again and again goes from row to row.
    const bool repeats = typed_.find_first_not_of(typed_.front()) == Text::npos;
    if (typed_.size() > 1) {
        const auto row = NextRow(table, filter, typed_, place);
        if (row || !repeats) return row;
    }
    return NextRow(table, filter, TextView(typed_).substr(0, 1), current ? place + 1 : 0);
}

}  // namespace swiftroll
