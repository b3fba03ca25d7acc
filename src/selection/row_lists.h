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

    /// Where a list begins and ends among all rows; a list that nothing was sorted into is empty.
    std::size_t Begin(std::uint32_t list) const { return list < starts_.size() ? starts_[list] : Count(); }
    std::size_t End(std::uint32_t list) const { return Begin(list + 1); }
    std::size_t Count() const { return rows_.size(); }
    /// The rows from one place to before another; none when `from` is not before `to`.
    std::span<const std::int32_t> Between(std::size_t from, std::size_t to) const {
        return std::span(rows_).subspan(from, from < to ? to - from : 0);
    }
    std::span<const std::int32_t> Of(std::uint32_t list) const { return Between(Begin(list), End(list)); }

  private:
    std::vector<std::uint32_t> starts_;  // by list, and the end of the last one
    std::vector<std::int32_t> rows_;
};

}  // namespace swiftroll::modSelectionIn
