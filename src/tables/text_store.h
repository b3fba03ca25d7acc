#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <cstdint>
#include <memory>
#include <vector>

#include "tables/block_vector.h"
#include "text/text.h"

namespace swiftroll {

/// A text of a TextStore in four bytes; the default one is the empty text of every store.
class TextRef {
  public:
    TextRef() = default;
    bool IsEmpty() const { return bits_ == 0; }
    /// Whether equal texts of the store share this reference, so that comparing references compares texts.
    bool IsInterned() const { return IsEmpty() || (bits_ & kInternedBit) != 0; }
    friend bool operator==(TextRef, TextRef) = default;

  private:
    friend class TextStore;
    friend class KeyIndex;
    friend struct RowKeyHash;
    static constexpr std::uint32_t kInternedBit = 0x80000000u;
    explicit TextRef(std::uint32_t bits) : bits_(bits) {}
    /// Number of an interned text, dense from 0 in the order of first use.
    std::uint32_t Symbol() const { return bits_ & ~kInternedBit; }
    std::uint32_t bits_ = 0;
};

/// The texts of one or several tables: written once, never moved, freed together. A text takes its bytes, one
/// byte for the length (five for long ones) and padding to four.
class TextStore {
  public:
    TextStore();
    TextStore(const TextStore&) = delete;
    TextStore& operator=(const TextStore&) = delete;

    /// Stores a copy of `text`. The view that `Get` gives stays valid as long as the store.
    /// @throws Failure OutOfMemory when the store is full (8 GiB of texts).
    TextRef Put(TextView text);
    /// As Put, but every text once: for identifiers, keys and texts that come again and again.
    TextRef Intern(TextView text);
    /// The reference of a text that was interned; the empty reference when it never was.
    TextRef FindInterned(TextView text) const;

    TextView Get(TextRef ref) const {
        if (ref.IsEmpty()) return {};
        const std::uint32_t place = ref.bits_ & TextRef::kInternedBit ? symbols_[ref.Symbol()].place : ref.bits_;
        const char* head = chunks_[place >> kChunkBits] + std::size_t{place & kChunkMask} * kUnit;
        const auto length = static_cast<unsigned char>(*head);
        if (length != kLongText) return {head + 1, length};
        return LongText(head);
    }
    std::size_t InternedCount() const { return symbols_.size(); }

  private:
    // Texts stand at multiples of kUnit bytes; a place is the number of the unit, unit 0 unused.
    static constexpr std::uint32_t kUnit = 4;
    static constexpr std::uint32_t kChunkBits = 18;
    static constexpr std::uint32_t kChunkUnits = 1u << kChunkBits;
    static constexpr std::uint32_t kChunkMask = kChunkUnits - 1;
    static constexpr unsigned char kLongText = 255;

    struct Symbol {
        std::uint32_t place;
        std::uint32_t hash;
    };
    // The set holds symbol numbers; it is asked with a text and its hash.
    struct Probe {
        TextView text;
        std::uint32_t hash;
    };
    struct SymbolHash {
        using is_transparent = void;
        const BlockVector<Symbol>* symbols;
        std::size_t operator()(std::uint32_t symbol) const { return Mix((*symbols)[symbol].hash); }
        std::size_t operator()(const Probe& probe) const { return Mix(probe.hash); }
        static std::size_t Mix(std::uint32_t hash) { return hash * 0x9E3779B97F4A7C15u; }
    };
    struct SymbolEqual {
        using is_transparent = void;
        const TextStore* store;
        bool operator()(std::uint32_t a, std::uint32_t b) const { return a == b; }
        bool operator()(const Probe& probe, std::uint32_t symbol) const {
            return store->symbols_[symbol].hash == probe.hash &&
                   store->Get(TextRef(symbol | TextRef::kInternedBit)) == probe.text;
        }
        bool operator()(std::uint32_t symbol, const Probe& probe) const { return (*this)(probe, symbol); }
    };

    static TextView LongText(const char* head);
    std::uint32_t Write(TextView text);
    char* Reserve(std::size_t units);

    std::vector<std::unique_ptr<char[]>> allocations_;
    // One entry a chunk; a text longer than a chunk spans several entries of one allocation.
    std::vector<char*> chunks_;
    std::uint64_t nextUnit_ = 1;
    BlockVector<Symbol> symbols_;
    boost::unordered_flat_set<std::uint32_t, SymbolHash, SymbolEqual> index_;
};

}  // namespace swiftroll
