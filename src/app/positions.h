#pragma once

#include <array>
#include <map>

#include "app/feedback.h"
#include "tables/schema.h"

namespace swiftroll {

inline constexpr std::int16_t kMaxColumns = 20;

/// One entry for each of at most 20 columns.
template <class Value>
class PerColumn {
  public:
    /// @throws std::out_of_range
    Value& operator[](ColumnId column) { return entries_.at(static_cast<std::size_t>(column.Section())); }
    const Value& operator[](ColumnId column) const {
        return entries_.at(static_cast<std::size_t>(column.Section()));
    }

  private:
    std::array<Value, kMaxColumns> entries_{};
};

/// One entry for each of at most 20 places on the screen, numbered from 1.
template <class Value>
class PerPosition {
  public:
    /// @throws std::out_of_range
    Value& operator[](std::int16_t position) { return entries_.at(static_cast<std::size_t>(position - 1)); }
    const Value& operator[](std::int16_t position) const {
        return entries_.at(static_cast<std::size_t>(position - 1));
    }

  private:
    std::array<Value, kMaxColumns> entries_{};
};

/// Widest text by column index.
using Widths = PerColumn<std::int32_t>;
/// Raises the entries of `widths` to the lengths of the row's cells.
inline void SetMaxLen(const Row& row, Widths& widths) {
    row.VisitLengths([&](ColumnId column, std::size_t length) {
        std::int32_t& width = widths[column];
        if (static_cast<std::size_t>(width) < length) width = static_cast<std::int32_t>(length);
    });
}

/// Writes a cell and raises the entry of its column: what `SetMaxLen` does, for one cell.
inline void SetCell(Row& row, ColumnId column, TextRef ref, Widths& widths) {
    const auto length = static_cast<std::int32_t>(row.Write(column, ref));
    std::int32_t& width = widths[column];
    if (width < length) width = length;
}

/// Where the columns of each table stand, as of the last `InitIndexes`. Logic reads these and not the
/// columns, so that a computation and what follows from it agree on one arrangement.
class Positions {
  public:
    struct OfTable {
        /// The column at each position, and the position of each column.
        PerPosition<ColumnId> iColAtPos;
        PerColumn<std::int16_t> iPosOfCol;
    };

    /// Refreshes everything from the present arrangement of the columns. A column of `lvwOut` with an unknown
    /// key is told in a box.
    void InitIndexes(TableSet& tables, Feedback& feedback);

    const OfTable& Of(const Table& table) const { return byTable_.at(&table); }
    /// Position of the column `Number` of `lvwOut`: the columns before it form the groups.
    std::int16_t iPosNumber = 0;
    /// By position of `lvwOut`: the column of `lvwIn` or `lvwOut` whose text can form the group key there;
    /// none for a year, for `Number` and for no column.
    PerPosition<ColumnId> iKeyColIn, iKeyColOut;

  private:
    std::map<const Table*, OfTable> byTable_;
};

}  // namespace swiftroll
