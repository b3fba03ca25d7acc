#pragma once

#include "kinship/cheapest_walk.h"
#include "kinship/path_walk.h"

namespace swiftroll::modKinship {

/// Finds the nearest simple paths from a node to the target of the steps, one after the other, without
/// finding the others: those of fewest marriages first and of fewest lines among those. Equals come in an
/// order that depends on the graph alone.
///
/// E. L. Lawler's partition: the paths that are left are kept as sets, each of those that begin as a path
/// found before and leave it at one node, over none of the links that were taken there. Each set is known by
/// what its cheapest path costs at least; the one that costs least is searched, and what is left of it is
/// divided anew. A set takes a few numbers, a path found its links.
class NearestPaths {
  public:
    /// `steps` must outlive the search.
    NearestPaths(const StepGraph& steps, std::int32_t from, const PathLimits& limits);

    /// Tells at most `count` paths, each with the nodes that are entered beyond the path that it leaves.
    void Run(PathVisitor& visitor, std::int64_t count);

  private:
    /// Paths that leave a walk found before at its node `place`.
    struct Set {
        PathCost bound;
        std::int64_t number;  // of the sets with equal bounds, the oldest comes first
        std::int32_t walk;
        std::int32_t place;
        bool operator<(const Set& other) const {
            return std::tie(other.bound, other.number) < std::tie(bound, number);
        }
    };
    /// A walk found, as far as it passes nobody twice.
    struct Walk {
        std::vector<std::int32_t> links;
        std::int32_t parent;  // the walk that it leaves, kNobody for the first
        std::int32_t place;   // where
    };
    void Keep(const Set& set);
    Set TakeFirst();
    std::span<const std::int32_t> BannedLinks(std::int32_t walk, std::int32_t place);
    bool CutAtRepeat(std::vector<std::int32_t>& links);
    void Divide(std::int32_t walk, CheapestWalk& search);

    const StepGraph& steps_;
    std::int32_t from_;
    PathLimits limits_;
    std::vector<Walk> walks_;
    std::vector<Set> sets_;  // a heap
    std::int64_t setCount_ = 0;
    std::vector<std::int32_t> banned_;      // kept for its memory
    std::vector<std::int32_t> passedWith_;  // by node, the last walk that was seen to pass it
};

}  // namespace swiftroll::modKinship
