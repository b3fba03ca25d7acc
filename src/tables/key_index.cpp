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
    const LongChains& part = longChains_[PartOf(key)];
    const auto found = part.find(key);
    return found == part.end() ? kNone : *found;
}

void KeyIndex::InsertPair(Slot slot, const RowKey& key) {
    Chain& chain = EntryOf(chains_, key.first.Symbol(), Chain());
    chain.filter = static_cast<std::uint16_t>(chain.filter | FilterBit(key));
    if (chain.length == kLongestChain) {
        chain.continues = true;
        longChains_[PartOf(key)].insert(slot);
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
    } else if (key.IsEmpty()) {
        empty_ = slot;
    } else {
        EntryOf(singles_, key.first.Symbol(), kNone) = slot;
    }
}

void KeyIndex::Erase(Slot slot) {
    const RowKey key = KeyOf(slot);
    if (key.IsPair()) {
        ErasePair(slot, key);
    } else if (key.IsEmpty()) {
        if (empty_ == slot) empty_ = kNone;
    } else {
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
    longChains_[PartOf(key)].erase(slot);
}

void KeyIndex::Clear() {
    entries_.Clear();
    empty_ = kNone;
    singles_ = {};
    chains_ = {};
    for (LongChains& part : longChains_) part = LongChains(0, part.hash_function(), part.key_eq());
}

}  // namespace swiftroll
