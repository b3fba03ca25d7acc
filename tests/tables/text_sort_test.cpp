#include "tables/text_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace swiftroll {
namespace {

std::vector<std::uint32_t> PlainOrder(const std::vector<TextView>& texts, bool descending) {
    std::vector<std::uint32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        return descending ? texts[b] < texts[a] : texts[a] < texts[b];
    });
    return order;
}

TEST(TextSort, IsTheStableSortByBytes) {
    const Text prefixes[] = {"", "", "\\DUPONT\\", "                         1", Text(4, '\0'), "\xFF\xFF"};
    // Few characters, so that equal texts, equal heads of eight bytes and texts that end inside another are
    // frequent.
    const TextView characters("\0\0 aA\x7F\x80\xFF", 8);
    std::mt19937 random(1);
    for (int round = 0; round < 600; ++round) {
        std::vector<Text> texts(random() % 40);
        const Text& shared = prefixes[random() % std::size(prefixes)];
        const auto longest = random() % 20 + 1;
        for (Text& text : texts) {
            if (random() % 8 == 0 && round % 2 == 0) continue;  // empty
            text = shared;
            for (auto length = random() % longest; length > 0; --length) text += characters[random() % 8];
        }
        std::vector<TextView> views;  // an empty text need not have a place in memory
        for (const Text& text : texts) views.push_back(text.empty() ? TextView() : TextView(text));
        for (const bool descending : {false, true}) {
            const auto expected = PlainOrder(views, descending);
            const auto order = SortedOrder(views, descending);
            const bool sortedAlready = std::is_sorted(expected.begin(), expected.end());
            ASSERT_EQ(order, sortedAlready ? std::vector<std::uint32_t>() : expected) << "round " << round;
        }
    }
}

}  // namespace
}  // namespace swiftroll
