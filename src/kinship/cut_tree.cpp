#include "kinship/cut_tree.h"

#include <numeric>

#include "tables/counting_sort.h"

namespace swiftroll::modKinshipOptimize {

using modKinship::At;
using modKinship::DepthFirstTree;
using modKinship::kNobody;

namespace {

std::vector<std::int32_t> OwnLowest(const DepthFirstTree& tree) {
    std::vector<std::int32_t> lowest(static_cast<std::size_t>(tree.Count()), tree.Count());
    for (std::int32_t v = 0; v < tree.Count(); ++v) {
        tree.VisitUpwards(
            v, [&](std::int32_t above) { At(lowest, v) = std::min(At(lowest, v), tree.DepthOf(above)); });
    }
    return lowest;
}

/// The numbers 0, 1, ... in the order of `ranks`, which are below `limit`.
std::vector<std::uint32_t> OrderByRank(const std::vector<std::int32_t>& ranks, std::int32_t limit) {
    return CountingOrder(ranks.size(), static_cast<std::size_t>(limit),
                         [&](std::size_t i) { return ranks[i]; });
}

}  // namespace

CutTree::CutTree(const modKinship::Neighbours& neighbours, std::int32_t root,
                 const std::vector<std::int32_t>& oneWayEnds)
    : tree_(neighbours, root), lowest_(LowestDepths(tree_)), ownLowest_(OwnLowest(tree_)) {
    FindHighestInside();
    GroupChildren();
    oneWayBefore_.assign(static_cast<std::size_t>(tree_.Count()) + 1, 0);
    for (const std::int32_t end : oneWayEnds) {
        const std::int32_t v = tree_.NumberOf(end);
        if (v != kNobody) ++At(oneWayBefore_, v + 1);
    }
    std::partial_sum(oneWayBefore_.begin(), oneWayBefore_.end(), oneWayBefore_.begin());
}

/// The ways up are taken from the deepest end to the highest: the first that passes a node's parent is the
/// answer for the node. Nodes that have theirs are skipped by a union-find, so that the whole is near linear.
void CutTree::FindHighestInside() {
    struct WayUp {
        std::int32_t from;
        std::int32_t toDepth;
    };
    std::vector<WayUp> ways;
    for (std::int32_t v = 0; v < tree_.Count(); ++v) {
        tree_.VisitUpwards(v, [&](std::int32_t above) { ways.push_back({v, tree_.DepthOf(above)}); });
    }
    std::vector<std::int32_t> depths(ways.size());
    std::transform(ways.begin(), ways.end(), depths.begin(), [](const WayUp& way) { return way.toDepth; });
    const std::vector<std::uint32_t> order = OrderByRank(depths, tree_.Count());

    inside_.assign(static_cast<std::size_t>(tree_.Count()), kNobody);
    std::vector<std::int32_t> open(
        inside_.size());  // a node at or above each, on the way to the next open one
    std::iota(open.begin(), open.end(), 0);
    const auto nextOpen = [&](std::int32_t v) {
        while (At(open, v) != v) v = At(open, v) = At(open, At(open, v));
        return v;
    };
    for (auto place = order.rbegin(); place != order.rend(); ++place) {
        const WayUp& way = ways[*place];
        for (std::int32_t v = nextOpen(way.from); tree_.DepthOf(v) > way.toDepth + 1; v = nextOpen(v)) {
            At(inside_, v) = way.toDepth;
            At(open, v) = tree_.ParentOf(v);
        }
    }
}

void CutTree::GroupChildren() {
    const auto count = static_cast<std::size_t>(tree_.Count());
    // The root, node 0, is nobody's child.
    const auto parentOf = [&](std::size_t child) {
        return tree_.ParentOf(static_cast<std::int32_t>(child) + 1);
    };
    firstChild_ = ListStarts(count - 1, count, parentOf);
    children_.resize(count - 1);
    childLowest_.resize(count - 1);
    bestInside_.resize(count - 1);
    PutIntoLists(count - 1, firstChild_, parentOf, [&](std::uint32_t place, std::size_t child) {
        children_[place] = static_cast<std::int32_t>(child) + 1;
    });
    std::vector<std::uint32_t> next = firstChild_;
    for (const std::uint32_t node : OrderByRank(lowest_, tree_.Count() + 1)) {
        if (node == 0) continue;
        const auto v = static_cast<std::int32_t>(node);
        const std::int32_t parent = tree_.ParentOf(v);
        const std::uint32_t place = At(next, parent)++;
        childLowest_[place] = At(lowest_, v);
        bestInside_[place] = At(inside_, v);
        if (place > At(firstChild_, parent)) {
            bestInside_[place] = std::max(bestInside_[place], bestInside_[place - 1]);
        }
    }
}

std::int32_t CutTree::ChildTowards(std::int32_t above, std::int32_t v) const {
    const auto first = children_.begin() + At(firstChild_, above);
    const auto last = children_.begin() + At(firstChild_, above + 1);
    return *std::prev(std::upper_bound(first, last, v));
}

bool CutTree::TakeAway(std::int32_t node, std::int32_t other) {
    upper_ = tree_.NumberOf(node);
    lower_ = kNobody;
    if (upper_ == kNobody) return false;
    if (other == kNobody) return true;
    lower_ = tree_.NumberOf(other);
    if (lower_ == kNobody) return false;
    if (lower_ < upper_) std::swap(lower_, upper_);
    if (!tree_.IsBelowOrSame(lower_, upper_)) return false;
    middleTop_ = ChildTowards(upper_, lower_);
    middleIsJoined_ = MiddleIsJoined();
    return true;
}

bool CutTree::MiddleIsJoined() const {
    const std::int32_t depth = tree_.DepthOf(upper_);
    if (ownLowest_.Of(middleTop_, lower_) < depth) return true;
    if (ownLowest_.Of(tree_.EndOf(lower_), tree_.EndOf(middleTop_)) < depth) return true;
    // Through a branch on the lower node that reaches both above the upper node and into the middle.
    const auto first = childLowest_.begin() + At(firstChild_, lower_);
    const auto last = childLowest_.begin() + At(firstChild_, lower_ + 1);
    const auto reaching =
        static_cast<std::size_t>(std::lower_bound(first, last, depth) - childLowest_.begin());
    return reaching > At(firstChild_, lower_) && bestInside_[reaching - 1] > depth;
}

CutTree::Verdict CutTree::Judge(bool joined, std::int32_t top) const {
    if (joined) return Verdict::Joined;
    const bool hasOneWay = At(oneWayBefore_, tree_.EndOf(top)) > At(oneWayBefore_, top);
    return hasOneWay ? Verdict::Unknown : Verdict::CutOff;
}

CutTree::Verdict CutTree::Of(std::int32_t node) const {
    const std::int32_t v = tree_.NumberOf(node);
    if (v == kNobody) return Verdict::Unknown;
    if (!tree_.IsBelowOrSame(v, upper_)) return Verdict::Joined;
    const std::int32_t depth = tree_.DepthOf(upper_);
    if (lower_ != kNobody && tree_.IsBelowOrSame(v, lower_)) {
        const std::int32_t branch = ChildTowards(lower_, v);
        if (At(lowest_, branch) < depth) return Verdict::Joined;
        const bool reachesMiddle = At(inside_, branch) > depth;
        return Judge(reachesMiddle && middleIsJoined_, reachesMiddle ? middleTop_ : branch);
    }
    if (lower_ != kNobody && tree_.IsBelowOrSame(v, middleTop_)) return Judge(middleIsJoined_, middleTop_);
    const std::int32_t branch = ChildTowards(upper_, v);
    return Judge(At(lowest_, branch) < depth, branch);
}

}  // namespace swiftroll::modKinshipOptimize
