#include "list/format_row.h"

#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modCalcOut {

RowFormatter::RowFormatter(ArrangedTables& tables, Feedback& feedback, Table& table, bool bIncludeHeaders)
    : tables_(tables), feedback_(feedback), table_(table) {
    feedback_.trail.Guard(
        "InitListItem",
        [&] {
            tables_.InitIndexes(feedback_);
            Widths& widths = WidthsOfTable();
            lastPosition_ = &table_ == &tables_.lvwOut ? tables_.positions.iPosNumber : table_.ColumnCount();
            for (const Column& column : table_.Columns()) {
                if (!bIncludeHeaders || column.Position > lastPosition_) continue;
                std::int32_t& width = widths[column.Index];
                width = std::max(width, static_cast<std::int32_t>(column.Caption.size()));
            }
            lActiveMaxLen_ = widths;
        },
        [] { return Text(); });
}

Widths& RowFormatter::WidthsOfTable() {
    if (&table_ == &tables_.lvwIn) return tables_.lMaxLenIn;
    if (&table_ == &tables_.lvwOut) return tables_.lMaxLenOut;
    if (&table_ == &tables_.lvwXref) return tables_.lMaxLenXref;
    if (&table_ == &tables_.lvwFamily) return tables_.lMaxLenFamily;
    if (&table_ == &tables_.lvwFamilyXref) return tables_.lMaxLenFamilyXref;
    if (&table_ == &tables_.lvwKinship) return tables_.lMaxLenKinship;
    // Nothing measures the links of a kinship search when they are copied, nor the names of its paths.
    table_.NeedAll();
    for (std::int32_t i = 1; i <= table_.Count(); ++i) SetMaxLen(table_.Item(i), lActiveMaxLen_);
    return lActiveMaxLen_;
}

template <class CellOf>
Text RowFormatter::Format(bool bTabs, const CellOf& cellOf) const {
    std::int16_t position = 1;
    return feedback_.trail.Guard(
        "FormatListItem",
        [&] {
            Text sRowText;
            for (; position <= lastPosition_; ++position) {
                const ColumnId index = tables_.positions.Of(table_).iColAtPos[position];
                const Column& column = table_.ColumnAt(index);
                if (!column.IsOn()) continue;
                const auto width = static_cast<std::size_t>(lActiveMaxLen_[index]);
                Text sCell(cellOf(column));
                if (&table_ == &tables_.lvwOut && index == Out::Number) sCell = AlignRight(sCell, width);
                if (!bTabs && sCell.size() > width + 1) throw Failure(FailureKind::InvalidArgument);
                sRowText += bTabs ? sCell + '\t' : PadRight(sCell, width + 1);
            }
            if (bTabs && !sRowText.empty()) sRowText.pop_back();
            return sRowText;
        },
        [&] {
            return Concat({Decimal(position), "/lvwActiveListView=", table_.Name(), "/", bTabs ? "-1" : "0"});
        });
}

Text RowFormatter::FormatListItem(const Row& row, bool bTabs) const {
    return Format(bTabs, [&](const Column& column) { return row.Cell(column.Index); });
}

Text RowFormatter::FormatHeaders(bool bTabs) const {
    return Format(bTabs, [](const Column& column) { return TextView(column.Caption); });
}

}  // namespace swiftroll::modCalcOut
