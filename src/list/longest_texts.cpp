#include "list/longest_texts.h"

#include <algorithm>

namespace swiftroll {

std::vector<TextView> LongestTexts(Table& table, ColumnId column) {
    constexpr std::size_t kMost = 64;
    std::vector<TextView> longest;
    if (table.Count() == 0) return longest;
    table.NeedAll();
    const TextStore& store = table.Store();
    const auto isLonger = [](TextView a, TextView b) { return a.size() > b.size(); };
    for (std::size_t stored = 0; stored < table.StoredCount(); ++stored) {
        const TextView text =
            store.Get(table.StoredCells(stored)[static_cast<std::size_t>(column.Section())]);
        // The shortest of them stands in front.
        if (text.empty() || (longest.size() == kMost && text.size() <= longest.front().size())) continue;
        if (std::ranges::find(longest, text) != longest.end()) continue;
        if (longest.size() == kMost) {
            std::ranges::pop_heap(longest, isLonger);
            longest.pop_back();
        }
        longest.push_back(text);
        std::ranges::push_heap(longest, isLonger);
    }
    return longest;
}

}  // namespace swiftroll
