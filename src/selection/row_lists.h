#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll::modSelectionIn {

/// Numbers a reference of one store as the number of a list: the empty text is 0.
inline std::uint32_t ListOf(TextRef interned) { return interned.IsEmpty() ? 0 : interned.Symbol() + 1; }

/// Rows sorted into numbered lists that stand one behind the other; within a list the rows keep their order.
class RowLists {
  public:
    struct Entry {
        std::uint32_t list;
        std::int32_t row;
    };
    explicit RowLists(const std::vector<Entry>& entries) {
        for (const Entry& entry : entries) {
            if (entry.list + std::size_t{2} > starts_.size()) starts_.resize(entry.list + std::size_t{2});
            ++starts_[entry.list + std::size_t{1}];
        }
        for (std::size_t i = 1; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
        std::vector<std::uint32_t> next = starts_;
        rows_.resize(entries.size());
        for (const Entry& entry : entries) rows_[next[entry.list]++] = entry.row;
    }

    /// The rows of a list; a list that nothing was sorted into is empty.
    std::span<const std::int32_t> Of(std::uint32_t list) const {
        if (list + std::size_t{1} >= starts_.size()) return {};
        return std::span(rows_).subspan(starts_[list], starts_[list + std::size_t{1}] - starts_[list]);
    }

  private:
    std::vector<std::uint32_t> starts_;  // by list, and the end of the last one
    std::vector<std::int32_t> rows_;
};

}  // namespace swiftroll::modSelectionIn
