#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <cstdint>
#include <optional>
#include <vector>

#include "tables/block_vector.h"
#include "tables/text_store.h"

namespace swiftroll {

/// The key of a row: one interned text, or two that stand for their concatenation (a family and an
/// individual, two individuals). Kept apart, a pair costs no text of its own and compares by references.
struct RowKey {
    TextRef first;
    TextRef second;

    RowKey() = default;
    /// An empty first part gives way to the second, as in the concatenation. The empty text is a key like any
    /// other: that of a family without identifier, or of the one group of a list without group columns.
    explicit RowKey(TextRef a, TextRef b = {})
        : first(a.IsEmpty() ? b : a), second(a.IsEmpty() ? TextRef() : b) {}
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

/// Where the row of each key is stored. All structures follow the numbers of the interned texts, so that what
/// stands together in the file stays together in memory: single keys are an array over the first parts; pairs
/// hang in short chains on their first parts, and the few that have longer chains continue in hash sets:
/// several small ones, so that none takes long to grow while a user waits.
class KeyIndex {
  public:
    using Slot = std::uint32_t;
    KeyIndex() : longChains_(kParts, LongChains(0, PairHash{&entries_}, PairEqual{&entries_})) {}

    /// Number of slots, and room for one more slot without a key.
    Slot SlotCount() const { return static_cast<Slot>(entries_.size()); }
    void AddSlot() { entries_.push_back(Entry()); }
    /// The key of a slot; empty also when it has none.
    const RowKey& KeyOf(Slot slot) const { return entries_[slot].key; }

    std::optional<Slot> Find(const RowKey& key) const {
        const Slot slot = key.IsPair() ? FindPair(key) : FindSingle(key);
        if (slot == kNone) return std::nullopt;
        return slot;
    }
    /// Gives a slot without a key one that no slot has.
    void Insert(Slot slot, const RowKey& key);
    /// Takes the key of a slot away.
    void Erase(Slot slot);
    void Clear();

  private:
    static constexpr Slot kNone = 0xFFFFFFFFu;
    static constexpr std::uint8_t kLongestChain = 24;
    static constexpr unsigned kPartBits = 6;
    static constexpr std::size_t kParts = std::size_t{1} << kPartBits;

    struct Entry {
        RowKey key;
        Slot nextInChain = kNone;
    };
    struct Chain {
        Slot first = kNone;
        std::uint16_t filter = 0;  // a bit for each second part that was ever inserted
        std::uint8_t length = 0;
        bool continues = false;  // in a hash set
    };
    static std::uint16_t FilterBit(const RowKey& key) {
        return static_cast<std::uint16_t>(1u << (key.second.Symbol() * 0x9E3779B9u >> 28));
    }
    struct PairHash {
        using is_transparent = void;
        const BlockVector<Entry>* entries;
        std::size_t operator()(Slot slot) const { return RowKeyHash()((*entries)[slot].key); }
        std::size_t operator()(const RowKey& key) const { return RowKeyHash()(key); }
    };
    struct PairEqual {
        using is_transparent = void;
        const BlockVector<Entry>* entries;
        bool operator()(Slot a, Slot b) const { return (*entries)[a].key == (*entries)[b].key; }
        bool operator()(Slot a, const RowKey& b) const { return (*entries)[a].key == b; }
        bool operator()(const RowKey& a, Slot b) const { return a == (*entries)[b].key; }
    };

    using LongChains = boost::unordered_flat_set<Slot, PairHash, PairEqual>;
    static std::size_t PartOf(const RowKey& key) { return RowKeyHash()(key) >> (64 - kPartBits); }

    Slot FindSingle(const RowKey& key) const {
        if (key.IsEmpty()) return empty_;
        if (key.first.Symbol() >= singles_.size()) return kNone;
        return singles_[key.first.Symbol()];
    }
    Slot FindPair(const RowKey& key) const;
    void InsertPair(Slot slot, const RowKey& key);
    void ErasePair(Slot slot, const RowKey& key);

    BlockVector<Entry> entries_;          // by slot
    Slot empty_ = kNone;                  // of the empty key
    std::vector<Slot> singles_;           // by symbol
    std::vector<Chain> chains_;           // by symbol of the first part
    std::vector<LongChains> longChains_;  // by PartOf
};

}  // namespace swiftroll
