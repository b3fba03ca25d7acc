#pragma once

#include "app/arranged_tables.h"

namespace swiftroll::modCalcOut {

/// Renders rows of a table as lines of text for the clipboard and for drag and drop.
class RowFormatter {
  public:
    /// Prepares for the rows of `table` (`InitListItem`): refreshes the position tables and, when headers are
    /// included, widens the columns to their captions.
    RowFormatter(ArrangedTables& tables, Feedback& feedback, Table& table, bool bIncludeHeaders);

    /// False after a failure, which was reported: there are no lines then.
    bool IsReady() const { return lastPosition_ > 0; }

    /// The line of a row, without line end: its cells in the order of the columns that are switched on, those
    /// of `lvwOut` up to `Number`. With `bTabs` tabs stand between them, else every column is padded to its
    /// width and a blank. A failure, such as a cell wider than its column, is reported and gives the empty
    /// text.
    Text FormatListItem(const Row& row, bool bTabs) const;
    /// The line of the captions.
    Text FormatHeaders(bool bTabs) const;

  private:
    template <class CellOf>
    Text Format(bool bTabs, const CellOf& cellOf) const;
    Widths& WidthsOfTable();

    ArrangedTables& tables_;
    Feedback& feedback_;
    Table& table_;
    std::int16_t lastPosition_ = 0;
    Widths lActiveMaxLen_;
};

}  // namespace swiftroll::modCalcOut
