#include "tables/key_index.h"

namespace swiftroll {
namespace {

/// Grows `entries` to hold number `symbol`, with room for more.
template <class Entry>
Entry& EntryOf(std::vector<Entry>& entries, std::uint32_t symbol, const Entry& none) {
    if (symbol >= entries.size()) entries.resize(symbol + std::size_t{symbol} / 2 + 16, none);
    return entries[symbol];
}

}  // namespace

KeyIndex::Slot KeyIndex::FindPair(const RowKey& key) const {
    const std::uint32_t symbol = key.first.Symbol();
    if (symbol >= chains_.size()) return kNone;
    const Chain& chain = chains_[symbol];
    // Most pairs asked for are new; the filter tells so without a walk.
    if ((chain.filter & FilterBit(key)) == 0) return kNone;
    for (Slot slot = chain.first; slot != kNone; slot = entries_[slot].nextInChain) {
        if (entries_[slot].key.second == key.second) return slot;
    }
    if (!chain.continues) return kNone;
    const auto found = longChains_.find(key);
    return found == longChains_.end() ? kNone : *found;
}

void KeyIndex::InsertPair(Slot slot, const RowKey& key) {
    Chain& chain = EntryOf(chains_, key.first.Symbol(), Chain());
    chain.filter = static_cast<std::uint16_t>(chain.filter | FilterBit(key));
    if (chain.length == kLongestChain) {
        chain.continues = true;
        longChains_.insert(slot);
        return;
    }
    entries_[slot].nextInChain = chain.first;
    chain.first = slot;
    ++chain.length;
}

void KeyIndex::Insert(Slot slot, const RowKey& key) {
    entries_[slot].key = key;
    if (key.IsPair()) {
        InsertPair(slot, key);
    } else if (!key.IsEmpty()) {
        EntryOf(singles_, key.first.Symbol(), kNone) = slot;
    }
}

void KeyIndex::Erase(Slot slot) {
    const RowKey key = KeyOf(slot);
    if (key.IsPair()) {
        ErasePair(slot, key);
    } else if (!key.IsEmpty()) {
        singles_[key.first.Symbol()] = kNone;
    }
    entries_[slot] = Entry();
}

void KeyIndex::ErasePair(Slot slot, const RowKey& key) {
    Chain& chain = chains_[key.first.Symbol()];
    for (Slot* link = &chain.first; *link != kNone; link = &entries_[*link].nextInChain) {
        if (*link != slot) continue;
        *link = entries_[slot].nextInChain;
        --chain.length;
        return;
    }
    longChains_.erase(slot);
}

void KeyIndex::Clear() {
    entries_.Clear();
    singles_ = {};
    chains_ = {};
    longChains_ = decltype(longChains_)(0, longChains_.hash_function(), longChains_.key_eq());
}

}  // namespace swiftroll
