#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <vector>

namespace swiftroll {

/// Where each of `lists` lists begins when the entries 0, 1, ... below `entries` are sorted into them by
/// counting, one list behind the other; and the end of the last one. `listOf(entry)` is the number of its
/// list.
template <class ListOf>
std::vector<std::uint32_t> ListStarts(std::size_t entries, std::size_t lists, const ListOf& listOf) {
    std::vector<std::uint32_t> starts(lists + 1);
    for (std::size_t entry = 0; entry < entries; ++entry)
        ++starts[static_cast<std::size_t>(listOf(entry)) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    return starts;
}

/// Calls `put(place, entry)` for every entry in turn; those of a list take the places from its start on in
/// their order.
template <class ListOf, class Put>
void PutIntoLists(std::size_t entries, std::vector<std::uint32_t> starts, const ListOf& listOf,
                  const Put& put) {
    for (std::size_t entry = 0; entry < entries; ++entry)
        put(starts[static_cast<std::size_t>(listOf(entry))]++, entry);
}

/// The entries 0, 1, ... below `entries` in the order of their lists.
template <class ListOf>
std::vector<std::uint32_t> CountingOrder(std::size_t entries, std::size_t lists, const ListOf& listOf) {
    std::vector<std::uint32_t> order(entries);
    PutIntoLists(
        entries, ListStarts(entries, lists, listOf), listOf,
        [&](std::uint32_t place, std::size_t entry) { order[place] = static_cast<std::uint32_t>(entry); });
    return order;
}

/// Rows sorted into numbered lists; within a list they keep their order.
class RowLists {
  public:
    struct Entry {
        std::uint32_t list;
        std::int32_t row;
    };
    explicit RowLists(const std::vector<Entry>& entries) : rows_(entries.size()) {
        std::uint32_t lists = 0;
        for (const Entry& entry : entries) lists = std::max(lists, entry.list + 1);
        const auto listOf = [&](std::size_t i) { return entries[i].list; };
        starts_ = ListStarts(entries.size(), lists, listOf);
        PutIntoLists(entries.size(), starts_, listOf,
                     [&](std::uint32_t place, std::size_t i) { rows_[place] = entries[i].row; });
    }

    /// The rows of a list; a list that nothing was sorted into is empty.
    std::span<const std::int32_t> Of(std::uint32_t list) const {
        if (list + std::size_t{1} >= starts_.size()) return {};
        return std::span(rows_).subspan(starts_[list], starts_[list + std::size_t{1}] - starts_[list]);
    }

  private:
    std::vector<std::uint32_t> starts_;
    std::vector<std::int32_t> rows_;
};

}  // namespace swiftroll
