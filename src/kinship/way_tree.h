#pragma once

#include <map>

#include "kinship/link_graph.h"

namespace swiftroll::modKinshipOptimize {

/// Finds out whether a node has a way to the target over links that still exist in both directions, while
/// more and more links are removed. A breadth-first tree rooted at the target gives one way for each node;
/// only where that way passes a barred node or a removed link, the neighbourhood is searched for a node whose
/// way does not. The tree is built anew when the searches have cost as much as that.
class WayTree {
  public:
    WayTree(const modKinship::LinkGraph& graph, std::int32_t lTo);

    /// Bars `node`, and `other` unless it is kNobody, from all ways asked about next.
    void Bar(std::int32_t node, std::int32_t other);
    /// Whether `node`, which is not barred, has a way.
    bool HasWay(std::int32_t node);
    /// For the node that `HasWay` was last asked about, and that has none: whether a link that exists in one
    /// direction alone leads from those that it can reach to a node that has a way.
    bool HasExit();
    /// Tells that the link from `source` to `target` was removed from the graph.
    void LinkRemoved(std::int32_t source, std::int32_t target);

  private:
    void FindWaysBack();
    void Build();
    bool IsOpenBothWays(std::int32_t link) const {
        const std::int32_t back = modKinship::At(wayBack_, link);
        return graph_.Target(link) != modKinship::kNobody && back != modKinship::kNobody &&
               graph_.Target(back) != modKinship::kNobody;
    }
    bool IsBelow(std::int32_t node, std::int32_t above) const;
    bool IsBroken(std::int32_t node) const;
    bool TreeWayIsOpen(std::int32_t node) const;

    const modKinship::LinkGraph& graph_;
    std::int32_t lTo_;
    std::vector<std::int32_t> wayBack_;  // the link from the other end to this one, by link
    // The tree: parent by node, and numbers such that the nodes below a node are a range.
    std::vector<std::int32_t> parents_, numbers_, ends_;
    std::map<std::int32_t, std::int32_t> broken_;  // ranges of numbers whose tree ways have a removed link
    std::int32_t barred_ = modKinship::kNobody, otherBarred_ = modKinship::kNobody;
    // The last search that saw each node. All that was seen since `firstSearch_` has a way.
    std::vector<std::uint32_t> lastSearch_;
    std::uint32_t search_ = 0, firstSearch_ = 0;
    std::vector<std::int32_t> seen_;   // the nodes of the present search
    std::vector<std::int32_t> exits_;  // where one-way links lead from them
    std::size_t searchedSinceBuild_ = 0;
};

}  // namespace swiftroll::modKinshipOptimize
