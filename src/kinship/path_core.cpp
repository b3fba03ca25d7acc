#include "kinship/path_core.h"

#include "kinship/depth_first_tree.h"

namespace swiftroll::modKinship {
namespace {

/// Whether each node of the tree is in the biconnected component of the edge from the root to the node
/// numbered 1, by number.
std::vector<std::uint8_t> ComponentOfFirstEdge(const DepthFirstTree& tree) {
    const std::vector<std::int32_t> lowest = LowestDepths(tree);
    std::vector<std::uint8_t> isInside(static_cast<std::size_t>(tree.Count()));
    isInside[0] = isInside[1] = 1;
    for (std::int32_t v = 2; v < tree.Count(); ++v) {
        const std::int32_t parent = tree.ParentOf(v);
        // A branch belongs to the component of its parent when it is joined to what is above the parent.
        At(isInside, v) = At(isInside, parent) != 0 && At(lowest, v) < tree.DepthOf(parent) ? 1 : 0;
    }
    return isInside;
}

}  // namespace

PathCore::PathCore(const LinkGraph& whole, std::int32_t lFrom, std::int32_t lTo) {
    const Neighbours neighbours = Neighbours::LinkedEitherWay(whole);
    const DepthFirstTree tree(neighbours, lFrom, lTo);
    const std::vector<std::uint8_t> isInside = ComponentOfFirstEdge(tree);
    std::vector<std::int32_t> newNode(static_cast<std::size_t>(whole.NodeCount()), kNobody);
    for (std::int32_t node = 0; node < whole.NodeCount(); ++node) {
        const std::int32_t number = tree.NumberOf(node);
        if (number == kNobody || At(isInside, number) == 0) continue;
        At(newNode, node) = static_cast<std::int32_t>(nodes.size());
        nodes.push_back(node);
    }
    from = At(newNode, lFrom);
    to = At(newNode, lTo);
    std::vector<std::int32_t> firstLinks{0}, targets;
    for (const std::int32_t node : nodes) {
        const LinkRange range = whole.LinksOf(node);
        for (std::int32_t link = range.first; node != lTo && link < range.last; ++link) {
            const std::int32_t target = whole.Target(link);
            if (target == kNobody || target == lFrom || At(newNode, target) == kNobody) continue;
            targets.push_back(At(newNode, target));
            links.push_back(link);
        }
        firstLinks.push_back(static_cast<std::int32_t>(targets.size()));
    }
    graph = LinkGraph(std::move(firstLinks), std::move(targets));
}

}  // namespace swiftroll::modKinship
