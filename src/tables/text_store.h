#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <cassert>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "tables/block_vector.h"
#include "tables/numbered_texts.h"
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
    /// Number of an interned text that is not empty, dense from 0 in the order of first use.
    std::uint32_t Symbol() const {
        assert((bits_ & kInternedBit) != 0);
        return bits_ & ~kInternedBit;
    }

  private:
    friend class TextStore;
    friend struct RowKeyHash;
    friend std::size_t hash_value(TextRef ref) { return ref.bits_; }
    static constexpr std::uint32_t kInternedBit = 0x80000000u;
    explicit TextRef(std::uint32_t bits) : bits_(bits) {}
    std::uint32_t bits_ = 0;
};

/// The texts of one or several tables: written once, never moved, freed together. A text takes its bytes, one
/// byte for the length (five for long ones, none for interned ones) and padding to four.
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
        if (ref.IsInterned()) {
            const Symbol& symbol = symbols_[ref.Symbol()];
            return {At(symbol.place), symbol.length};
        }
        const char* head = At(ref.bits_);
        const auto length = static_cast<unsigned char>(*head);
        if (length != kLongText) return {head + 1, length};
        return LongText(head);
    }
    /// Number of an interned text, dense from 0 in the order of first use.
    std::optional<std::uint32_t> NumberOf(TextView text) const;
    std::size_t InternedCount() const { return symbols_.size(); }

  private:
    // Texts stand at multiples of kUnit bytes; a place is the number of the unit, unit 0 unused.
    static constexpr std::uint32_t kUnit = 4;
    static constexpr std::uint32_t kChunkBits = 18;
    static constexpr std::uint32_t kChunkUnits = 1u << kChunkBits;
    static constexpr std::uint32_t kChunkMask = kChunkUnits - 1;
    static constexpr unsigned char kLongText = 255;

    // The set holds the numbers of the texts that are not told by a number of their own; it is asked with
    // texts.
    struct SymbolHash {
        using is_transparent = void;
        const TextStore* store;
        std::size_t operator()(std::uint32_t symbol) const { return (*this)(store->SymbolText(symbol)); }
        std::size_t operator()(TextView text) const { return HashOf(text); }
    };
    struct SymbolEqual {
        using is_transparent = void;
        const TextStore* store;
        bool operator()(std::uint32_t a, std::uint32_t b) const { return a == b; }
        bool operator()(TextView text, std::uint32_t symbol) const {
            return store->SymbolText(symbol) == text;
        }
        bool operator()(std::uint32_t symbol, TextView text) const { return (*this)(text, symbol); }
    };
    TextView SymbolText(std::uint32_t symbol) const { return Get(TextRef(symbol | TextRef::kInternedBit)); }

    // The length of an interned text stands here, so that asking for it touches no text.
    struct Symbol {
        std::uint32_t place;
        std::uint32_t length;
    };
    const char* At(std::uint32_t place) const {
        return chunks_[place >> kChunkBits] + std::size_t{place & kChunkMask} * kUnit;
    }
    static TextView LongText(const char* head);
    static std::size_t HashOf(TextView text);
    std::optional<std::uint32_t> Known(TextView text, const std::optional<NumberedTexts::Place>& place) const;
    std::uint32_t WriteBytes(TextView prefix, TextView text);
    char* Reserve(std::size_t units);

    std::vector<std::unique_ptr<char[]>> allocations_;
    // One entry a chunk; a text longer than a chunk spans several entries of one allocation.
    std::vector<char*> chunks_;
    std::uint64_t nextUnit_ = 1;
    BlockVector<Symbol> symbols_;
    NumberedTexts numbered_;
    boost::unordered_flat_set<std::uint32_t, SymbolHash, SymbolEqual> others_;
};

}  // namespace swiftroll
