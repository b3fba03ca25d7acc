#include "kinship/neighbours.h"

#include "tables/counting_sort.h"

namespace swiftroll::modKinship {
namespace {

/// The nodes whose links lead to each node.
RowLists OriginsOf(const LinkGraph& graph) {
    std::vector<RowLists::Entry> links;
    links.reserve(static_cast<std::size_t>(graph.LinkCount()));
    graph.VisitLinks([&](std::int32_t source, std::int32_t link) {
        links.push_back({static_cast<std::uint32_t>(graph.Target(link)), source});
    });
    return RowLists(links);
}

}  // namespace

Neighbours::Neighbours(const LinkGraph& graph, bool eitherWay) {
    const RowLists origins = OriginsOf(graph);
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
        const auto sources = origins.Of(static_cast<std::uint32_t>(node));
        for (const std::int32_t source : sources) At(isOrigin, source) = node;
        const LinkRange links = graph.LinksOf(node);
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const std::int32_t target = graph.Target(link);
            if (target != kNobody && (eitherWay || At(isOrigin, target) == node)) note(target);
        }
        if (eitherWay) {
            for (const std::int32_t source : sources) note(source);
        }
        first_.push_back(static_cast<std::int32_t>(neighbours_.size()));
    }
}

Neighbours Neighbours::LinkedBothWays(const LinkGraph& graph) { return Neighbours(graph, false); }
Neighbours Neighbours::LinkedEitherWay(const LinkGraph& graph) { return Neighbours(graph, true); }

}  // namespace swiftroll::modKinship
