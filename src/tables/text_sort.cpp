#include "tables/text_sort.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "tables/counting_sort.h"

namespace swiftroll {
namespace {

// The first bytes of a text behind the prefix that all texts share, most significant byte first, so that
// nearly all comparisons are of one number and touch no text.
struct Entry {
    std::uint64_t head;
    std::uint32_t place;
};

std::size_t CommonPrefix(const std::vector<TextView>& texts) {
    TextView prefix = texts.front();
    for (const TextView text : texts) {
        const auto end = std::mismatch(prefix.begin(), prefix.end(), text.begin(), text.end()).first;
        prefix = prefix.substr(0, static_cast<std::size_t>(end - prefix.begin()));
        if (prefix.empty()) break;
    }
    return prefix.size();
}

std::uint64_t Head(TextView text, std::size_t skipped) {
    const TextView rest = text.substr(skipped);
    std::uint64_t head = 0;
    if (rest.size() >= sizeof head) {
        std::memcpy(&head, rest.data(), sizeof head);
        return std::endian::native == std::endian::little ? __builtin_bswap64(head) : head;
    }
    for (std::size_t i = 0; i < sizeof head; ++i) {
        head = head << 8 | (i < rest.size() ? static_cast<unsigned char>(rest[i]) : 0u);
    }
    return head;
}

bool IsInOrder(const std::vector<TextView>& texts, bool descending) {
    return std::is_sorted(texts.begin(), texts.end(),
                          [&](TextView a, TextView b) { return descending ? b < a : a < b; });
}

/// Sorts by head, equal heads in their present order, by counting one byte after the other.
void SortByHead(std::vector<Entry>& entries, const Pause& pause) {
    constexpr std::size_t kByteValues = 256;
    std::vector<Entry> sorted(entries.size());
    for (unsigned shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [&](std::size_t i) { return entries[i].head >> shift & 0xFF; };
        const std::vector<std::uint32_t> starts = ListStarts(entries.size(), kByteValues, byteOf);
        // A byte that is the same everywhere needs no pass.
        const std::size_t first = byteOf(0);
        if (starts[first + 1] - starts[first] == entries.size()) continue;
        PutIntoLists(entries.size(), starts, byteOf,
                     [&](std::uint32_t place, std::size_t i) { sorted[place] = entries[i]; });
        entries.swap(sorted);
        if (pause) pause();
    }
}

/// Sorts runs of equal heads by the rest of their texts.
void SortEqualHeads(std::vector<Entry>& entries, const std::vector<TextView>& texts, bool descending,
                    const Pause& pause) {
    const auto isBefore = [&](const Entry& a, const Entry& b) {
        const int order = texts[a.place].compare(texts[b.place]);
        return descending ? order > 0 : order < 0;
    };
    for (auto first = entries.begin(); first != entries.end();) {
        const auto last =
            std::find_if(first, entries.end(), [&](const Entry& e) { return e.head != first->head; });
        if (last - first > 1) std::stable_sort(first, last, isBefore);
        PauseAt(static_cast<std::size_t>(last - entries.begin()), pause);
        first = last;
    }
}

}  // namespace

std::vector<std::uint32_t> SortedOrder(const std::vector<TextView>& texts, bool descending,
                                       const Pause& pause) {
    if (texts.size() < 2 || IsInOrder(texts, descending)) return {};
    const std::size_t skipped = CommonPrefix(texts);
    std::vector<Entry> entries(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::uint64_t head = Head(texts[i], skipped);
        entries[i] = {descending ? ~head : head, static_cast<std::uint32_t>(i)};
        PauseAt(i, pause);
    }
    SortByHead(entries, pause);
    SortEqualHeads(entries, texts, descending, pause);
    std::vector<std::uint32_t> order(texts.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = entries[i].place;
    return order;
}

}  // namespace swiftroll
