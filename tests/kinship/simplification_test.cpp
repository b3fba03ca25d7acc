// The links that the simplification removes, held against a direct simulation.
#include <gtest/gtest.h>

#include "kinship/random_links.h"
#include "kinship/remove_islands.h"

namespace swiftroll::test {
namespace {

using modKinship::LinkGraph;
using modKinshipOptimize::RemoveIslands;

/// The links that remain of a graph after the search from one node to another.
PlainPairs Remaining(LinkGraph graph, std::int32_t lFrom, std::int32_t lTo) {
    RemoveIslands(graph, lFrom - 1, lTo - 1, Always);
    return PairsOf(graph);
}

TEST(Simplification, RemovesWhatTheLiteralOneRemoves) {
    const struct {
        Shape shape;
        int rounds;
    } cases[] = {{{.nodes = 6, .loops = 0.7}, 2000},
                 {{.nodes = 12, .loops = 0.5}, 1500},
                 {{.nodes = 12, .loops = 0.4, .reach = 3}, 1500},
                 {{.nodes = 40, .loops = 0.4}, 1000},
                 {{.nodes = 40, .loops = 0.6, .reach = 4}, 1000},
                 {{.nodes = 150, .loops = 0.3, .reach = 6}, 100},
                 // Files that contradict themselves.
                 {{.nodes = 8, .loops = 1, .oneWay = 0.1}, 2000},
                 {{.nodes = 12, .loops = 1, .oneWay = 0.4, .selfLinked = 0.1}, 2000},
                 {{.nodes = 40, .loops = 0.5, .oneWay = 0.03, .selfLinked = 0.02}, 600}};
    std::mt19937 random(20261123);
    std::size_t removals = 0;
    for (const auto& [shape, rounds] : cases) {
        for (int round = 0; round < rounds; ++round) {
            const PlainLinks links = RandomLinks(shape, random);
            const auto node = [&] { return static_cast<std::int32_t>(1 + random() % (links.size() - 1)); };
            const std::int32_t lFrom = node(), lTo = node();
            if (lFrom == lTo) continue;
            const LinkGraph graph = ToGraph(links);
            PlainLinks plain = links;
            removals += PlainRemoveIslands(plain, lFrom, lTo, Always).size();
            ASSERT_EQ(Remaining(graph, lFrom, lTo), PairsOf(ToGraph(plain)))
                << "nodes " << shape.nodes << ", round " << round << ", from " << lFrom << " to " << lTo;
        }
    }
    EXPECT_GT(removals, 10'000u);
}

TEST(Simplification, AWayBackToTheStartMayRemoveLinksOutOfIt) {
    const PlainLinks links{{}, {3, 2, 4}, {1, 3, 4}, {1, 2}, {1, 2}};
    PlainPairs expected = PairsOf(ToGraph(links));
    expected.erase({1, 3});
    EXPECT_EQ(Remaining(ToGraph(links), 1, 4), expected);
}

TEST(Simplification, LongLaddersAndTailsCostNoRecursion) {
    // Two sides of a ladder, and a tail behind the start that leads nowhere.
    constexpr int kRungs = 100'000;
    PlainLinks links(3 * kRungs + 1);
    const auto link = [&](int a, int b) {
        links[static_cast<std::size_t>(a)].push_back(b);
        links[static_cast<std::size_t>(b)].push_back(a);
    };
    for (int i = 1; i <= kRungs; ++i) {
        link(i, kRungs + i);
        if (i < kRungs) link(i, i + 1);
        if (i < kRungs) link(kRungs + i, kRungs + i + 1);
        link(i == 1 ? 1 : 2 * kRungs + i - 1, 2 * kRungs + i);
    }
    const PlainPairs before = PairsOf(ToGraph(links)), after = Remaining(ToGraph(links), 1, kRungs);
    EXPECT_FALSE(after.contains({1, 2 * kRungs + 1}));
    EXPECT_TRUE(after.contains({2 * kRungs + 1, 1})) << "only the direction into the tail goes";
    EXPECT_EQ(before.size() - after.size(), kRungs - 1u) << "the tail, and one way back at every rung";
}

}  // namespace
}  // namespace swiftroll::test
