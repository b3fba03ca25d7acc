#pragma once

#include "kinship/neighbours.h"

namespace swiftroll::modKinship {

/// A depth-first tree of an undirected graph. Its nodes are numbered anew in the order in which they were
/// reached, the root 0, so that the nodes below a node are a range of numbers. Any two neighbours stand one
/// above the other: what a branch is joined to outside itself are nodes above it.
class DepthFirstTree {
  public:
    /// The tree of all nodes that can be reached from `root`. `firstChild` is reached first, as if it were a
    /// neighbour of the root, unless it is kNobody. Linear in nodes and neighbours.
    DepthFirstTree(const Neighbours& neighbours, std::int32_t root, std::int32_t firstChild = kNobody);

    std::int32_t Count() const { return static_cast<std::int32_t>(nodes_.size()); }
    /// Number in the tree of a node of the graph, kNobody when it was not reached; and the way back.
    std::int32_t NumberOf(std::int32_t node) const { return At(numbers_, node); }
    std::int32_t NodeOf(std::int32_t number) const { return At(nodes_, number); }

    // All that follows is by number in the tree.
    /// kNobody for the root.
    std::int32_t ParentOf(std::int32_t v) const { return At(parents_, v); }
    std::int32_t DepthOf(std::int32_t v) const { return At(depths_, v); }
    /// The first number behind the nodes below `v`.
    std::int32_t EndOf(std::int32_t v) const { return At(ends_, v); }
    bool IsBelowOrSame(std::int32_t v, std::int32_t above) const { return above <= v && v < EndOf(above); }
    /// Calls `visit(ancestor)` for the neighbours of `v` above it, its parent left out.
    template <class Visitor>
    void VisitUpwards(std::int32_t v, Visitor visit) const {
        const LinkRange range = neighbours_->RangeOf(NodeOf(v));
        for (std::int32_t i = range.first; i < range.last; ++i) {
            const std::int32_t other = NumberOf((*neighbours_)[i]);
            if (other < v && other != ParentOf(v)) visit(other);
        }
    }

  private:
    const Neighbours* neighbours_;
    std::vector<std::int32_t> numbers_;                          // by node of the graph
    std::vector<std::int32_t> nodes_, parents_, depths_, ends_;  // by number
};

/// The depth of the highest node that each node and those below it are joined to past their parents; the
/// number of nodes where there is none.
std::vector<std::int32_t> LowestDepths(const DepthFirstTree& tree);

}  // namespace swiftroll::modKinship
