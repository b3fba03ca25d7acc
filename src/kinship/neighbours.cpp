#include "kinship/neighbours.h"

namespace swiftroll::modKinship {
namespace {

/// The nodes whose links lead to each node: `first[n]` up to `first[n + 1]` in `sources`.
struct Origins {
    explicit Origins(const LinkGraph& graph) : first(static_cast<std::size_t>(graph.NodeCount()) + 1) {
        graph.VisitLinks([&](std::int32_t, std::int32_t link) { ++At(first, graph.Target(link) + 1); });
        for (std::size_t node = 1; node < first.size(); ++node) first[node] += first[node - 1];
        sources.resize(static_cast<std::size_t>(first.back()));
        std::vector<std::int32_t> next = first;
        graph.VisitLinks([&](std::int32_t source, std::int32_t link) {
            At(sources, At(next, graph.Target(link))++) = source;
        });
    }
    std::vector<std::int32_t> first, sources;
};

}  // namespace

Neighbours::Neighbours(const LinkGraph& graph, bool eitherWay) {
    const Origins origins(graph);
    // The last node that a node was noted for, as source of a link and as neighbour.
    const auto count = static_cast<std::size_t>(graph.NodeCount());
    std::vector<std::int32_t> isOrigin(count, kNobody), isNoted(count, kNobody);
    first_.reserve(count + 1);
    first_.push_back(0);
    neighbours_.reserve(static_cast<std::size_t>(graph.LinkCount()));
    for (std::int32_t node = 0; node < graph.NodeCount(); ++node) {
        const auto note = [&](std::int32_t other) {
            if (other == node || At(isNoted, other) == node) return;
            At(isNoted, other) = node;
            neighbours_.push_back(other);
        };
        const LinkRange from{At(origins.first, node), At(origins.first, node + 1)};
        for (std::int32_t i = from.first; i < from.last; ++i) At(isOrigin, At(origins.sources, i)) = node;
        const LinkRange links = graph.LinksOf(node);
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const std::int32_t target = graph.Target(link);
            if (target != kNobody && (eitherWay || At(isOrigin, target) == node)) note(target);
        }
        for (std::int32_t i = from.first; eitherWay && i < from.last; ++i) note(At(origins.sources, i));
        first_.push_back(static_cast<std::int32_t>(neighbours_.size()));
    }
}

Neighbours Neighbours::LinkedBothWays(const LinkGraph& graph) { return Neighbours(graph, false); }
Neighbours Neighbours::LinkedEitherWay(const LinkGraph& graph) { return Neighbours(graph, true); }

}  // namespace swiftroll::modKinship
