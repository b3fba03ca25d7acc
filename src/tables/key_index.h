#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <cstdint>
#include <optional>
#include <vector>

#include "tables/block_vector.h"
#include "tables/text_store.h"

namespace swiftroll {

/// The key of a row: one interned text, or two that stand for their concatenation (a family and an individual,
/// two individuals). Kept apart, a pair costs no text of its own and compares by references.
struct RowKey {
    TextRef first;
    TextRef second;

    RowKey() = default;
    /// An empty first part gives way to the second, as in the concatenation.
    explicit RowKey(TextRef a, TextRef b = {}) : first(a.IsEmpty() ? b : a), second(a.IsEmpty() ? TextRef() : b) {}
    bool IsEmpty() const { return first.IsEmpty(); }
    bool IsPair() const { return !second.IsEmpty(); }
    friend bool operator==(const RowKey&, const RowKey&) = default;
};

struct RowKeyHash {
    std::size_t operator()(const RowKey& key) const {
        const std::uint64_t both = std::uint64_t{key.first.bits_} << 32 | key.second.bits_;
        const std::uint64_t mixed = both * 0x9E3779B97F4A7C15u;
        return mixed ^ (mixed >> 32);
    }
};

/// Where the row of each key is stored. Single keys are an array over the numbers of the interned texts:
/// individuals that stand together in the file stay together in memory. Pairs are a hash set of slots.
class KeyIndex {
  public:
    using Slot = std::uint32_t;
    explicit KeyIndex(const BlockVector<RowKey>& keys) : pairs_(0, PairHash{&keys}, PairEqual{&keys}) {}

    std::optional<Slot> Find(const RowKey& key) const;
    /// Notes that `keys[slot]` is the key of `slot`; false when another slot has that key already.
    bool Insert(Slot slot, const RowKey& key);
    void Erase(Slot slot, const RowKey& key);
    void Clear();

  private:
    static constexpr Slot kNone = 0xFFFFFFFFu;

    struct PairHash {
        using is_transparent = void;
        const BlockVector<RowKey>* keys;
        std::size_t operator()(Slot slot) const { return RowKeyHash()((*keys)[slot]); }
        std::size_t operator()(const RowKey& key) const { return RowKeyHash()(key); }
    };
    struct PairEqual {
        using is_transparent = void;
        const BlockVector<RowKey>* keys;
        bool operator()(Slot a, Slot b) const { return (*keys)[a] == (*keys)[b]; }
        bool operator()(Slot a, const RowKey& b) const { return (*keys)[a] == b; }
        bool operator()(const RowKey& a, Slot b) const { return a == (*keys)[b]; }
    };

    std::vector<Slot> slotOfSymbol_;
    boost::unordered_flat_set<Slot, PairHash, PairEqual> pairs_;
};

}  // namespace swiftroll
