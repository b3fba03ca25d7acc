#include "tables/text_sort.h"

#include <algorithm>
#include <bit>
#include <cstring>

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
    std::memcpy(&head, rest.data(), std::min(rest.size(), sizeof head));
    if constexpr (std::endian::native == std::endian::little) head = __builtin_bswap64(head);
    return head;
}

bool IsInOrder(const std::vector<TextView>& texts, bool descending) {
    return std::is_sorted(texts.begin(), texts.end(),
                          [&](TextView a, TextView b) { return descending ? b < a : a < b; });
}

}  // namespace

std::vector<std::uint32_t> SortedOrder(const std::vector<TextView>& texts, bool descending) {
    if (texts.size() < 2 || IsInOrder(texts, descending)) return {};
    const std::size_t skipped = CommonPrefix(texts);
    std::vector<Entry> entries(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        entries[i] = {Head(texts[i], skipped), static_cast<std::uint32_t>(i)};
    }
    const std::size_t compared = skipped + sizeof(std::uint64_t);
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (a.head != b.head) return (a.head < b.head) != descending;
        const TextView x = texts[a.place], y = texts[b.place];
        if (x.size() > compared || y.size() > compared || x.size() != y.size()) {
            const int order = x.compare(y);
            if (order != 0) return (order < 0) != descending;
        }
        return a.place < b.place;
    });
    std::vector<std::uint32_t> order(texts.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = entries[i].place;
    return order;
}

}  // namespace swiftroll
