#include "tables/text_store.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "text/failure.h"

namespace swiftroll {
TextStore::TextStore() : others_(0, SymbolHash{this}, SymbolEqual{this}) {}

TextView TextStore::LongText(const char* head) {
    std::uint32_t length = 0;
    std::memcpy(&length, head + 1, sizeof length);
    return {head + 1 + sizeof length, length};
}

/// Takes eight bytes at a step: places are long, and each is looked up again and again.
std::size_t TextStore::HashOf(TextView text) {
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15u;
    std::uint64_t hash = text.size() * kOdd;
    const auto mix = [&](std::uint64_t word) {
        hash = (hash ^ word) * kOdd;
        hash ^= hash >> 32;
    };
    std::uint64_t word = 0;
    for (; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
        std::memcpy(&word, text.data(), sizeof word);
        mix(word);
    }
    word = 0;
    for (const char c : text) word = word << 8 | static_cast<unsigned char>(c);
    mix(word);
    return hash;
}

char* TextStore::Reserve(std::size_t units) {
    const std::size_t leftInChunk = chunks_.size() * kChunkUnits - nextUnit_;
    if (chunks_.empty() || units > leftInChunk) {
        // Texts never cross into another allocation. Unit 0 stays unused: place 0 is the empty text.
        const std::size_t first = chunks_.size();
        const std::size_t skipped = first == 0 ? 1 : 0;
        const std::size_t count = (skipped + units + kChunkUnits - 1) / kChunkUnits;
        if ((first + count) * kChunkUnits > TextRef::kInternedBit) throw Failure(FailureKind::OutOfMemory);
        allocations_.push_back(std::make_unique_for_overwrite<char[]>(count * kChunkUnits * kUnit));
        for (std::size_t i = 0; i < count; ++i) {
            chunks_.push_back(allocations_.back().get() + i * kChunkUnits * kUnit);
        }
        nextUnit_ = std::uint64_t{first} * kChunkUnits + skipped;
    }
    return chunks_[nextUnit_ >> kChunkBits] + (nextUnit_ & kChunkMask) * kUnit;
}

std::uint32_t TextStore::WriteBytes(TextView prefix, TextView text) {
    if (text.size() > std::numeric_limits<std::int32_t>::max()) throw Failure(FailureKind::OutOfMemory);
    const std::size_t units = (prefix.size() + text.size() + kUnit - 1) / kUnit;
    char* head = Reserve(units);
    std::copy(text.begin(), text.end(), std::copy(prefix.begin(), prefix.end(), head));
    const auto place = static_cast<std::uint32_t>(nextUnit_);
    nextUnit_ += units;
    return place;
}

TextRef TextStore::Put(TextView text) {
    if (text.empty()) return {};
    char prefix[1 + sizeof(std::uint32_t)];
    const auto length = static_cast<std::uint32_t>(text.size());
    const bool isLong = text.size() >= kLongText;
    prefix[0] = static_cast<char>(isLong ? kLongText : length);
    std::memcpy(prefix + 1, &length, sizeof length);
    return TextRef(WriteBytes({prefix, isLong ? sizeof prefix : 1}, text));
}

TextRef TextStore::Intern(TextView text) {
    if (text.empty()) return {};
    const auto place = NumberedTexts::PlaceOf(text);
    if (const auto known = Known(text, place)) return TextRef(*known | TextRef::kInternedBit);
    const auto symbol = static_cast<std::uint32_t>(symbols_.size());
    symbols_.push_back({WriteBytes({}, text), static_cast<std::uint32_t>(text.size())});
    if (!place || !numbered_.Insert(*place, symbol)) others_.insert(symbol);
    return TextRef(symbol | TextRef::kInternedBit);
}

std::optional<std::uint32_t> TextStore::Known(TextView text,
                                              const std::optional<NumberedTexts::Place>& place) const {
    bool mayBeElsewhere = true;
    if (place) {
        const auto symbol = numbered_.Find(*place, &mayBeElsewhere);
        if (symbol) return symbol;
    }
    if (!mayBeElsewhere) return std::nullopt;
    const auto found = others_.find(text);
    if (found == others_.end()) return std::nullopt;
    return *found;
}

std::optional<std::uint32_t> TextStore::NumberOf(TextView text) const {
    return Known(text, NumberedTexts::PlaceOf(text));
}

TextRef TextStore::FindInterned(TextView text) const {
    const auto known = NumberOf(text);
    return known ? TextRef(*known | TextRef::kInternedBit) : TextRef();
}

}  // namespace swiftroll
