// The paths of the walk, held against plain backtracking.
#include "kinship/path_walk.h"

#include <gtest/gtest.h>

#include "kinship/path_core.h"
#include "kinship/random_links.h"

namespace swiftroll::test {
namespace {

using modKinship::PathCore;

using Path = std::vector<std::int32_t>;

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
    const PathCore core(modKinship::LinkGraph(first, targets), 10, kChain - 11);
    EXPECT_EQ(core.nodes.size(), kChain - 20u) << "what lies behind the ends is set aside";
    Keeper keeper(core, 2);
    modKinship::PathWalk(core.graph, core.from, core.to).Run(keeper);
    ASSERT_EQ(keeper.paths.size(), 1u);
    EXPECT_EQ(keeper.paths[0].size(), kChain - 20u);
}

}  // namespace
}  // namespace swiftroll::test
