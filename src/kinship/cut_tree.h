#pragma once

#include "kinship/depth_first_tree.h"
#include "kinship/range_minimum.h"

namespace swiftroll::modKinshipOptimize {

/// Tells in logarithmic time whether a node stays joined to the root of an undirected graph when one node, or
/// two of which one stands above the other in a depth-first tree, as neighbours always do, are taken away.
///
/// Without an upper node U and a lower node L, the rest falls into the nodes that are not below U, the
/// branches that hang on U and on L, and the middle between U and L. A branch is joined to what is above U
/// when it reaches higher than U; a branch on L may also be joined to the middle, and the middle upwards by
/// itself or through such a branch. All of that is known from the depths to which branches reach.
class CutTree {
  public:
    enum class Verdict { Joined, CutOff, Unknown };

    /// `oneWayEnds` are the nodes at both ends of one-way links, which are no neighbours here.
    CutTree(const modKinship::Neighbours& neighbours, std::int32_t root,
            const std::vector<std::int32_t>& oneWayEnds);

    /// Asks from now on about the graph without `node` and, unless it is kNobody, `other`. False when that
    /// cannot be answered: a node cannot be reached from the root, or none of the two stands above the other.
    bool TakeAway(std::int32_t node, std::int32_t other);
    /// Whether `node`, which was not taken away, is joined to the root. Unknown when it is not, but a one-way
    /// link may lead out of the part that is cut off, or into it.
    Verdict Of(std::int32_t node) const;

  private:
    void FindHighestInside();
    void GroupChildren();
    std::int32_t ChildTowards(std::int32_t above, std::int32_t v) const;
    bool MiddleIsJoined() const;
    /// The verdict on a part that is joined or not, and lies among the nodes below `top`.
    Verdict Judge(bool joined, std::int32_t top) const;

    modKinship::DepthFirstTree tree_;
    // By number in the tree: the least depth that a node and those below it reach past their parents.
    std::vector<std::int32_t> lowest_;
    // The greatest depth above its parent that they reach, kNobody for none.
    std::vector<std::int32_t> inside_;
    // The least depth that each node reaches itself.
    modKinship::RangeMinimum ownLowest_;
    // The children of v, from firstChild_[v] up to firstChild_[v + 1], by number; and by what they reach,
    // where each entry of `bestInside_` is the greatest `inside_` of the child and those before it.
    std::vector<std::uint32_t> firstChild_;
    std::vector<std::int32_t> children_, childLowest_, bestInside_;
    std::vector<std::int32_t> oneWayBefore_;  // number of ends of one-way links before v

    std::int32_t upper_ = 0, lower_ = modKinship::kNobody;
    std::int32_t middleTop_ = modKinship::kNobody;  // the child of the upper node above the lower
    bool middleIsJoined_ = false;
};

}  // namespace swiftroll::modKinshipOptimize
