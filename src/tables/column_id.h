#pragma once

#include <compare>
#include <cstdint>

namespace swiftroll {

/// Whether an enumeration numbers the columns of a table.
template <class Enum>
inline constexpr bool kNumbersColumns = false;

/// Which column of a table: its place in the schema, which is not where the user has put it on the screen.
/// Logic names columns by the enumerations of tables/columns.h; everything else that counts columns is
/// converted here, once.
class ColumnId {
  public:
    /// No column.
    constexpr ColumnId() = default;
    template <class Enum>
    requires kNumbersColumns<Enum>
    constexpr ColumnId(Enum column) : index_(column) {}
    /// By the index of the schema, from 1.
    static constexpr ColumnId OfIndex(int index) { return ColumnId(Raw{index}); }
    /// As views, combos and clicked cells count them, from 0; -1 is no column.
    static constexpr ColumnId OfSection(int section) { return ColumnId(Raw{section + 1}); }

    constexpr std::int16_t Index() const { return index_; }
    constexpr int Section() const { return index_ - 1; }
    constexpr explicit operator bool() const { return index_ > 0; }
    friend constexpr auto operator<=>(ColumnId, ColumnId) = default;

  private:
    struct Raw {
        int index;
    };
    constexpr explicit ColumnId(Raw raw) : index_(static_cast<std::int16_t>(raw.index)) {}
    std::int16_t index_ = 0;
};

}  // namespace swiftroll
