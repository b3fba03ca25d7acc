#pragma once

#include <cstdint>
#include <vector>

namespace swiftroll {

/// The marks of all rows of a table at one moment, two bits a row. `Table` makes it and takes it back.
class MarkSnapshot {
  public:
    /// How the marks of a table differ from those of a snapshot.
    struct Difference {
        /// Rows that are marked and were not, and the other way round.
        std::int32_t added = 0, taken = 0;
        /// Whether any flag differs, as one of two on a row that stays marked.
        bool differs = false;
    };

  private:
    friend class Table;
    std::vector<std::uint64_t> selected_, checked_;  // a bit for each row as it is stored
    std::size_t rows_ = 0;
    std::uint32_t generation_ = 0;  // of the table: rows that went since leave their places to others
};

}  // namespace swiftroll
