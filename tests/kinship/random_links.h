#pragma once

#include <algorithm>
#include <random>

#include "kinship/link_graph.h"
#include "support/plain_kinship.h"

namespace swiftroll::test {

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
inline PlainLinks RandomLinks(const Shape& shape, std::mt19937& random) {
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
inline modKinship::LinkGraph ToGraph(const PlainLinks& links) {
    std::vector<std::int32_t> first{0}, targets;
    for (std::size_t i = 1; i < links.size(); ++i) {
        for (const std::int32_t target : links[i]) targets.push_back(target - 1);
        first.push_back(static_cast<std::int32_t>(targets.size()));
    }
    return {std::move(first), std::move(targets)};
}

inline PlainPairs PairsOf(const modKinship::LinkGraph& graph) {
    PlainPairs pairs;
    graph.VisitLinks(
        [&](std::int32_t source, std::int32_t link) { pairs.emplace(source + 1, graph.Target(link) + 1); });
    return pairs;
}

inline bool Always() { return true; }

}  // namespace swiftroll::test
