#pragma once

#include <cstdint>
#include <vector>

#include "tables/pause.h"
#include "tables/text_store.h"

namespace swiftroll {

/// The ranks of interned texts in the order of their byte values, from 0 and without gaps.
class SymbolRanks {
  public:
    /// Of the texts that occur in `refs`, all of them interned in `store` or empty.
    SymbolRanks(const TextStore& store, const std::vector<TextRef>& refs, bool descending,
                const Pause& pause = {});
    std::uint32_t Of(TextRef ref) const { return rank_[Place(ref)]; }
    std::size_t Count() const { return count_; }

  private:
    // The empty text stands before the symbols.
    static std::size_t Place(TextRef ref) { return ref.IsEmpty() ? 0 : ref.Symbol() + std::size_t{1}; }
    std::vector<std::uint32_t> rank_;
    std::size_t count_ = 0;
};

}  // namespace swiftroll
