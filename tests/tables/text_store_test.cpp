#include "tables/text_store.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "text/literal.h"

namespace swiftroll {
namespace {

constexpr std::size_t kChunk = std::size_t{1} << 20;

/// A text of which every cut and every shift differs.
Text TextOfLength(std::size_t length) {
    Text text(length, ' ');
    for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<char>(i * 31 + i / 251);
    return text;
}

TEST(TextStore, TextsOfAnyLengthComeBackWhereverTheyStand) {
    for (const std::size_t firstLength : {std::size_t{1}, std::size_t{255}, kChunk - 5, 3 * kChunk + 7}) {
        TextStore store;
        std::vector<std::pair<TextRef, std::size_t>> put = {
            {store.Put(TextOfLength(firstLength)), firstLength}};
        const char* const place = store.Get(put[0].first).data();
        for (const std::size_t length :
             {std::size_t{1}, std::size_t{3}, std::size_t{4}, std::size_t{254}, std::size_t{255},
              std::size_t{256}, kChunk - 9, kChunk - 5, kChunk, kChunk + 1, 3 * kChunk + 7}) {
            put.emplace_back(store.Put(TextOfLength(length)), length);
            put.emplace_back(store.Intern(TextOfLength(length + 1)), length + 1);
        }
        for (const auto& [ref, length] : put) {
            ASSERT_TRUE(store.Get(ref) == TextOfLength(length)) << length << " behind " << firstLength;
        }
        EXPECT_EQ(store.Get(put[0].first).data(), place);
    }
}

// Identifiers numbered in any order, densely and with gaps, in more series than one file has; and texts that
// look like them.
TEST(TextStore, InternedTextsAreStoredOnce) {
    TextStore store;
    std::map<Text, TextRef> known = {{"", TextRef()}};
    std::mt19937 random(1);
    const TextView ends[] = {"@", "@", "@", "@", "@", "", "@@", "@\0"_t};
    for (int i = 0; i < 60000; ++i) {
        Text text =
            random() % 4 > 0 ? Text("@I") : Text(random() % 11, static_cast<char>('A' + random() % 4));
        if (random() % 50 == 0) text += random() % 2 == 0 ? '0' : '\0';
        text +=
            std::to_string(random() % (random() % 20 == 0 ? 4000000000u : static_cast<unsigned>(i / 4) + 1));
        text += ends[random() % std::size(ends)];
        const auto before = known.find(text);
        ASSERT_EQ(store.FindInterned(text), before == known.end() ? TextRef() : before->second);
        const TextRef ref = store.Intern(text);
        ASSERT_TRUE(ref.IsInterned() && (before == known.end() || before->second == ref)) << text;
        known.emplace(text, ref);
        ASSERT_EQ(store.InternedCount(), known.size() - 1) << text;
    }
    for (const auto& [text, ref] : known) ASSERT_EQ(store.Get(ref), text);
    EXPECT_TRUE(store.Intern("").IsEmpty());
    EXPECT_FALSE(store.Put("@I1@").IsInterned());
}

}  // namespace
}  // namespace swiftroll
