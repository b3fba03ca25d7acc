#include "kinship/depth_first_tree.h"

#include <algorithm>

namespace swiftroll::modKinship {

DepthFirstTree::DepthFirstTree(const Neighbours& neighbours, std::int32_t root, std::int32_t firstChild)
    : neighbours_(&neighbours), numbers_(static_cast<std::size_t>(neighbours.NodeCount()), kNobody) {
    struct Step {
        std::int32_t number;
        std::int32_t nextPlace;
    };
    std::vector<Step> way;
    const auto reach = [&](std::int32_t node, std::int32_t parent) {
        const std::int32_t number = Count();
        At(numbers_, node) = number;
        nodes_.push_back(node);
        parents_.push_back(parent);
        depths_.push_back(parent == kNobody ? 0 : DepthOf(parent) + 1);
        ends_.push_back(0);
        way.push_back({number, neighbours.RangeOf(node).first});
    };
    reach(root, kNobody);
    if (firstChild != kNobody) reach(firstChild, 0);
    while (!way.empty()) {
        const std::int32_t v = way.back().number;
        const std::int32_t last = neighbours.RangeOf(NodeOf(v)).last;
        std::int32_t& place = way.back().nextPlace;
        while (place < last && NumberOf(neighbours[place]) != kNobody) ++place;
        if (place < last) {
            reach(neighbours[place++], v);
        } else {
            At(ends_, v) = Count();
            way.pop_back();
        }
    }
}

std::vector<std::int32_t> LowestDepths(const DepthFirstTree& tree) {
    std::vector<std::int32_t> lowest(static_cast<std::size_t>(tree.Count()), tree.Count());
    for (std::int32_t v = tree.Count() - 1; v >= 0; --v) {
        std::int32_t& own = At(lowest, v);
        tree.VisitUpwards(v, [&](std::int32_t above) { own = std::min(own, tree.DepthOf(above)); });
        if (tree.ParentOf(v) == kNobody) continue;
        std::int32_t& parents = At(lowest, tree.ParentOf(v));
        parents = std::min(parents, own);
    }
    return lowest;
}

}  // namespace swiftroll::modKinship
