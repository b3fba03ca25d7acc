#include "tables/symbol_ranks.h"

#include "tables/text_sort.h"

namespace swiftroll {

SymbolRanks::SymbolRanks(const TextStore& store, const std::vector<TextRef>& refs, bool descending,
                         const Pause& pause)
    : rank_(store.InternedCount() + 1) {
    std::vector<TextRef> distinct;
    for (std::size_t i = 0; i < refs.size(); ++i) {
        std::uint32_t& seen = rank_[Place(refs[i])];
        if (seen == 0) distinct.push_back(refs[i]);
        seen = 1;
        PauseAt(i, pause);
    }
    count_ = distinct.size();
    std::vector<TextView> texts(count_);
    for (std::size_t i = 0; i < count_; ++i) {
        texts[i] = store.Get(distinct[i]);
        PauseAt(i, pause);
    }
    const std::vector<std::uint32_t> order = SortedOrder(texts, descending, pause);
    for (std::size_t i = 0; i < count_; ++i) {
        rank_[Place(distinct[order.empty() ? i : order[i]])] = static_cast<std::uint32_t>(i);
        PauseAt(i, pause);
    }
}

}  // namespace swiftroll
