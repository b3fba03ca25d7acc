#include "tables/symbol_ranks.h"

#include "tables/text_sort.h"

namespace swiftroll {

SymbolRanks::SymbolRanks(const TextStore& store, const std::vector<TextRef>& refs, bool descending)
    : rank_(store.InternedCount() + 1) {
    std::vector<TextRef> distinct;
    for (const TextRef ref : refs) {
        std::uint32_t& seen = rank_[Place(ref)];
        if (seen == 0) distinct.push_back(ref);
        seen = 1;
    }
    count_ = distinct.size();
    std::vector<TextView> texts(count_);
    for (std::size_t i = 0; i < count_; ++i) texts[i] = store.Get(distinct[i]);
    const std::vector<std::uint32_t> order = SortedOrder(texts, descending);
    for (std::size_t i = 0; i < count_; ++i) {
        rank_[Place(distinct[order.empty() ? i : order[i]])] = static_cast<std::uint32_t>(i);
    }
}

}  // namespace swiftroll
