#include "tables/key_index.h"

namespace swiftroll {

std::optional<KeyIndex::Slot> KeyIndex::Find(const RowKey& key) const {
    if (key.IsPair()) {
        const auto found = pairs_.find(key);
        if (found == pairs_.end()) return std::nullopt;
        return *found;
    }
    if (key.IsEmpty()) return std::nullopt;
    const std::uint32_t symbol = key.first.Symbol();
    if (symbol >= slotOfSymbol_.size() || slotOfSymbol_[symbol] == kNone) return std::nullopt;
    return slotOfSymbol_[symbol];
}

bool KeyIndex::Insert(Slot slot, const RowKey& key) {
    if (key.IsPair()) return pairs_.insert(slot).second;
    const std::uint32_t symbol = key.first.Symbol();
    if (symbol >= slotOfSymbol_.size()) slotOfSymbol_.resize(symbol + symbol / 2 + 16, kNone);
    if (slotOfSymbol_[symbol] != kNone) return false;
    slotOfSymbol_[symbol] = slot;
    return true;
}

void KeyIndex::Erase(Slot slot, const RowKey& key) {
    if (key.IsPair()) {
        pairs_.erase(slot);
    } else if (!key.IsEmpty()) {
        slotOfSymbol_[key.first.Symbol()] = kNone;
    }
}

void KeyIndex::Clear() {
    slotOfSymbol_ = {};
    pairs_ = decltype(pairs_)(0, pairs_.hash_function(), pairs_.key_eq());
}

}  // namespace swiftroll
