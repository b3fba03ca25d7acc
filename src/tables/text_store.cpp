#include "tables/text_store.h"

#include <cstring>
#include <functional>
#include <limits>

#include "text/failure.h"

namespace swiftroll {

TextStore::TextStore() : index_(0, SymbolHash{&symbols_}, SymbolEqual{this}) {}

TextView TextStore::LongText(const char* head) {
    std::uint32_t length = 0;
    std::memcpy(&length, head + 1, sizeof length);
    return {head + 1 + sizeof length, length};
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

std::uint32_t TextStore::Write(TextView text) {
    if (text.size() > std::numeric_limits<std::int32_t>::max()) throw Failure(FailureKind::OutOfMemory);
    const bool isLong = text.size() >= kLongText;
    const std::size_t prefix = isLong ? 1 + sizeof(std::uint32_t) : 1;
    const std::size_t units = (prefix + text.size() + kUnit - 1) / kUnit;
    char* head = Reserve(units);
    if (isLong) {
        const auto length = static_cast<std::uint32_t>(text.size());
        *head = static_cast<char>(kLongText);
        std::memcpy(head + 1, &length, sizeof length);
    } else {
        *head = static_cast<char>(text.size());
    }
    std::memcpy(head + prefix, text.data(), text.size());
    const auto place = static_cast<std::uint32_t>(nextUnit_);
    nextUnit_ += units;
    return place;
}

TextRef TextStore::Put(TextView text) {
    return text.empty() ? TextRef() : TextRef(Write(text));
}

TextRef TextStore::Intern(TextView text) {
    if (text.empty()) return {};
    const Probe probe{text, static_cast<std::uint32_t>(std::hash<TextView>()(text))};
    const auto found = index_.find(probe);
    if (found != index_.end()) return TextRef(*found | TextRef::kInternedBit);
    const auto symbol = static_cast<std::uint32_t>(symbols_.size());
    symbols_.push_back({Write(text), probe.hash});
    index_.insert(symbol);
    return TextRef(symbol | TextRef::kInternedBit);
}

TextRef TextStore::FindInterned(TextView text) const {
    if (text.empty()) return {};
    const auto found = index_.find(Probe{text, static_cast<std::uint32_t>(std::hash<TextView>()(text))});
    return found == index_.end() ? TextRef() : TextRef(*found | TextRef::kInternedBit);
}

}  // namespace swiftroll
