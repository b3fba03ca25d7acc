// The links that the simplification removes and the paths of the walk, held against the same step by step.
#include "kinship/path_walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "kinship/path_core.h"
#include "kinship/remove_islands.h"
#include "support/plain_kinship.h"

namespace swiftroll::test {
namespace {

using modKinship::LinkGraph;
using modKinship::PathCore;
using Path = std::vector<std::int32_t>;

/// What a random graph is like.
struct Shape {
    int nodes;
    /// Links beyond those of a tree, per node, and how far apart in number the linked may be (0: any).
    double loops = 0.5;
    int reach = 0;
    /// Share of links that exist in one direction alone, and of nodes that are linked to themselves.
    double oneWay = 0, selfLinked = 0;
};

/// A connected graph, the links of each node in random order.
PlainLinks RandomLinks(const Shape& shape, std::mt19937& random) {
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const auto happens = [&](double share) { return static_cast<double>(random()) < share * 4294967296.0; };
    PlainPairs pairs;
    const auto link = [&](int a, int b) {
        if (pairs.contains({a, b}) || pairs.contains({b, a})) return;
        const bool oneWay = happens(shape.oneWay), forward = happens(0.5);
        if (!oneWay || forward) pairs.emplace(a, b);
        if (!oneWay || !forward) pairs.emplace(b, a);
    };
    for (int i = 2; i <= shape.nodes; ++i) {
        link(i, shape.reach > 0 ? std::max(1, i - 1 - below(shape.reach)) : 1 + below(i - 1));
    }
    for (int i = 0; i < shape.loops * shape.nodes; ++i) {
        const int a = 1 + below(shape.nodes);
        const int b = shape.reach > 0
                          ? std::clamp(a + below(2 * shape.reach + 1) - shape.reach, 1, shape.nodes)
                          : 1 + below(shape.nodes);
        if (a != b) link(a, b);
    }
    for (int i = 1; i <= shape.nodes; ++i) {
        if (happens(shape.selfLinked)) pairs.emplace(i, i);
    }
    PlainLinks links(static_cast<std::size_t>(shape.nodes) + 1);
    for (const auto& [from, to] : pairs) links[static_cast<std::size_t>(from)].push_back(to);
    for (auto& targets : links) std::shuffle(targets.begin(), targets.end(), random);
    return links;
}

/// The same as a graph whose nodes count from 0.
LinkGraph ToGraph(const PlainLinks& links) {
    std::vector<std::int32_t> first{0}, targets;
    for (std::size_t i = 1; i < links.size(); ++i) {
        for (const std::int32_t target : links[i]) targets.push_back(target - 1);
        first.push_back(static_cast<std::int32_t>(targets.size()));
    }
    return {std::move(first), std::move(targets)};
}

PlainPairs PairsOf(const LinkGraph& graph) {
    PlainPairs pairs;
    graph.VisitLinks(
        [&](std::int32_t source, std::int32_t link) { pairs.emplace(source + 1, graph.Target(link) + 1); });
    return pairs;
}

/// Keeps the first paths of a walk, as numbers of the whole graph from 1, and the beginnings it entered.
class Keeper : public modKinship::PathVisitor {
  public:
    Keeper(const PathCore& core, std::size_t most) : core_(core), most_(most) {}
    bool Visit(std::int32_t length) override {
        EXPECT_LE(length, longest + 1) << "a node was passed over";
        longest = length;
        ++visits;
        return true;
    }
    bool GoOn() override { return ++pauses < 1'000'000; }
    bool Found(std::span<const std::int32_t> links) override {
        Path path{Number(core_.from)};
        for (const std::int32_t link : links) path.push_back(Number(core_.graph.Target(link)));
        paths.push_back(path);
        EXPECT_EQ(static_cast<std::size_t>(longest), path.size());
        return paths.size() < most_;
    }
    std::vector<Path> paths;
    std::int32_t longest = 0;
    std::size_t visits = 0, pauses = 0;

  private:
    std::int32_t Number(std::int32_t node) const { return core_.nodes[static_cast<std::size_t>(node)] + 1; }
    const PathCore& core_;
    std::size_t most_;
};

Keeper Walk(const PlainLinks& links, std::int32_t lFrom, std::int32_t lTo, std::size_t most) {
    const PathCore core(ToGraph(links), lFrom - 1, lTo - 1);
    Keeper keeper(core, most);
    modKinship::PathWalk(core.graph, core.from, core.to).Run(keeper);
    return keeper;
}

TEST(PathWalk, GivesThePathsOfPlainBacktrackingAndEntersNothingElse) {
    constexpr std::size_t kMost = 2000;
    const struct {
        Shape shape;
        int rounds;
    } cases[] = {{{.nodes = 5, .loops = 1.5, .selfLinked = 0.1}, 1000},
                 {{.nodes = 12, .loops = 0.8}, 600},
                 {{.nodes = 12, .loops = 2, .oneWay = 0.5}, 600},
                 {{.nodes = 12, .loops = 3, .oneWay = 0.95}, 600},
                 {{.nodes = 24, .loops = 0.5, .reach = 4, .oneWay = 0.2}, 400}};
    std::mt19937 random(4);
    std::size_t found = 0;
    for (const auto& [shape, rounds] : cases) {
        for (int round = 0; round < rounds; ++round) {
            const PlainLinks links = RandomLinks(shape, random);
            const std::int32_t lTo =
                2 + static_cast<std::int32_t>(random() % static_cast<unsigned>(shape.nodes - 1));
            std::vector<Path> expected;
            std::set<Path> beginnings;
            std::size_t steps = 0;
            PlainWalk(
                links, 1, lTo,
                [&](const Path& path) {
                    expected.push_back(path);
                    for (std::size_t k = 1; k <= path.size(); ++k) {
                        beginnings.insert(Path(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(k)));
                    }
                    return expected.size() < kMost;
                },
                [&] { return ++steps < 2'000'000; });
            if (steps == 2'000'000) continue;
            const Keeper walk = Walk(links, 1, lTo, kMost);
            ASSERT_EQ(walk.paths, expected) << shape.nodes << " nodes, round " << round;
            ASSERT_EQ(walk.visits, beginnings.size()) << "a branch without a path was entered";
            found += expected.size();
        }
    }
    EXPECT_GT(found, 20'000u);
}

TEST(PathWalk, ComesOutOfRegionsThatLeadNowhereAnyMore) {
    // A clique hangs on the first two people of a chain: it can be entered by one and left by the other, and
    // then is of no more use. Plain backtracking would try every way through it again and again.
    constexpr std::int32_t kClique = 40, kChain = 60;
    PlainLinks links(kClique + kChain + 1);
    const auto link = [&](std::int32_t a, std::int32_t b) {
        links[static_cast<std::size_t>(a)].push_back(b);
        links[static_cast<std::size_t>(b)].push_back(a);
    };
    for (std::int32_t a = kChain + 1; a <= kChain + kClique; ++a) {
        for (std::int32_t b = a + 1; b <= kChain + kClique; ++b) link(a, b);
    }
    link(2, kChain + 1);
    link(4, kChain + kClique);
    for (std::int32_t i = 1; i < kChain; ++i) link(i, i + 1);
    link(3, kChain - 1);
    const Keeper walk = Walk(links, 1, kChain, 1000);
    EXPECT_EQ(walk.paths.size(), 1000u);
    EXPECT_LT(walk.pauses, 1000u);
}

TEST(PathWalk, AChainOfAMillionIsOnePathAndWhatHangsOnItNone) {
    constexpr std::int32_t kChain = 1'000'000;
    std::vector<std::int32_t> first, targets;
    for (std::int32_t i = 0; i < kChain; ++i) {
        first.push_back(static_cast<std::int32_t>(targets.size()));
        if (i > 0) targets.push_back(i - 1);
        if (i + 1 < kChain) targets.push_back(i + 1);
    }
    first.push_back(static_cast<std::int32_t>(targets.size()));
    const PathCore core(LinkGraph(first, targets), 10, kChain - 11);
    EXPECT_EQ(core.nodes.size(), kChain - 20u) << "what lies behind the ends is set aside";
    Keeper keeper(core, 2);
    modKinship::PathWalk(core.graph, core.from, core.to).Run(keeper);
    ASSERT_EQ(keeper.paths.size(), 1u);
    EXPECT_EQ(keeper.paths[0].size(), kChain - 20u);
}

/// The links that remain of a graph after the search from one node to another.
PlainPairs Remaining(LinkGraph graph, std::int32_t lFrom, std::int32_t lTo) {
    modKinshipOptimize::RemoveIslands(graph, lFrom - 1, lTo - 1, [] { return true; });
    return PairsOf(graph);
}

TEST(Simplification, RemovesWhatTheDirectOneRemoves) {
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
            removals += PlainRemoveIslands(plain, lFrom, lTo, [] { return true; }).size();
            ASSERT_EQ(Remaining(graph, lFrom, lTo), PairsOf(ToGraph(plain)))
                << "nodes " << shape.nodes << ", round " << round << ", from " << lFrom << " to " << lTo;
        }
    }
    EXPECT_GT(removals, 10'000u);
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
