#pragma once

#include <cstdint>
#include <initializer_list>

namespace swiftroll {

/// Columns of a table by their `SubItems` numbers, 0 for `Text`.
class ColumnSet {
  public:
    constexpr ColumnSet(std::initializer_list<int> columns) {
        for (const int column : columns) bits_ |= 1u << column;
    }
    static constexpr ColumnSet All() {
        ColumnSet all({});
        all.bits_ = ~0u;
        return all;
    }
    constexpr bool Contains(std::int32_t column) const {
        return column >= 0 && column < 32 && (bits_ >> column & 1u) != 0;
    }

  private:
    std::uint32_t bits_ = 0;
};

}  // namespace swiftroll
