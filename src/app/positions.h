#pragma once

#include <array>
#include <map>

#include "app/ports.h"
#include "tables/schema.h"

namespace swiftroll {

inline constexpr std::int16_t kMaxColumns = 20;
inline constexpr std::int16_t kNoColumn = -999;

/// One entry for each of at most 20 columns or positions, numbered from 1.
template <class Value>
class PerColumn {
  public:
    explicit PerColumn(Value value = {}) { entries_.fill(value); }
    /// @throws std::out_of_range
    Value& operator[](std::int16_t i) { return entries_.at(static_cast<std::size_t>(i - 1)); }
    const Value& operator[](std::int16_t i) const { return entries_.at(static_cast<std::size_t>(i - 1)); }

  private:
    std::array<Value, kMaxColumns> entries_;
};

/// Widest text by column index.
using Widths = PerColumn<std::int32_t>;
/// Raises the entries of `widths` to the lengths of the row's cells.
inline void SetMaxLen(const Row& row, Widths& widths) {
    row.VisitLengths([&](std::int16_t column, std::size_t length) {
        std::int32_t& width = widths[column];
        if (static_cast<std::size_t>(width) < length) width = static_cast<std::int32_t>(length);
    });
}

/// Writes a cell and raises the entry of its column: what `SetMaxLen` does, for one cell.
inline void SetCell(Row& row, std::int16_t column, TextRef ref, Widths& widths) {
    const auto length = static_cast<std::int32_t>(row.Write(column, ref));
    std::int32_t& width = widths[column];
    if (width < length) width = length;
}

/// Where the columns of each table stand, as of the last `InitIndexes`. Logic reads these and not the
/// columns, so that a computation and what follows from it agree on one arrangement.
class Positions {
  public:
    struct OfTable {
        /// Position to column index, and column index to position.
        PerColumn<std::int16_t> iColAtPos{kNoColumn};
        PerColumn<std::int16_t> iPosOfCol{kNoColumn};
    };

    /// Refreshes everything from the present arrangement of the columns. A column of `lvwOut` with an unknown
    /// key is told in a box titled with `caption`.
    void InitIndexes(TableSet& tables, Dialogs& dialogs, TextView caption);

    const OfTable& Of(const Table& table) const { return byTable_.at(&table); }
    /// Position of the column `Number` of `lvwOut`: the columns before it form the groups.
    std::int16_t iPosNumber = 0;
    /// By position of `lvwOut`: the column index of `lvwIn` or `lvwOut` of a text column that can form the
    /// group key, negative for a year column, -999 for `Number` or no column.
    PerColumn<std::int16_t> iKeyColIn{kNoColumn};
    PerColumn<std::int16_t> iKeyColOut{kNoColumn};
    /// Position of the `lvwOut` column of a key.
    std::int16_t OutPosition(TextView key) const;

  private:
    std::map<const Table*, OfTable> byTable_;
    std::map<Text, std::int16_t, std::less<>> outPositions_;
};

}  // namespace swiftroll
