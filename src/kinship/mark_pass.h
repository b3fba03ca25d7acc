#pragma once

#include "kinship/link_graph.h"

namespace swiftroll::modKinshipOptimize {

/// One pass of the simplification by exploration: finds which neighbours of a node lead to the target without
/// the node and the one before it. The order of the visits decides where links go in one direction only, so
/// that nothing can be left out: a pass takes as long as what it explores.
class MarkPass {
  public:
    explicit MarkPass(modKinship::LinkGraph& graph)
        : graph_(graph), marks_(static_cast<std::size_t>(graph.NodeCount())) {}

    /// Removes the links of `lThis` to neighbours that lead nowhere and appends them to `removed`. `lPrev` is
    /// kNobody for the first node.
    void Run(std::int32_t lThis, std::int32_t lTo, std::int32_t lPrev, std::vector<std::int32_t>& removed);

  private:
    enum class Mark : std::uint8_t { Unreached, This, Neighbour, Exploring, Leads, Fails, Previous, Target };
    struct Stamped {
        std::uint32_t pass = 0;  // what was marked in another pass is not marked
        Mark mark = Mark::Unreached;
    };
    struct Step {
        std::int32_t node;
        std::int32_t nextLink;
    };
    Mark MarkOf(std::int32_t node) const {
        const Stamped& stamped = modKinship::At(marks_, node);
        return stamped.pass == pass_ ? stamped.mark : Mark::Unreached;
    }
    void SetMark(std::int32_t node, Mark mark) { modKinship::At(marks_, node) = {pass_, mark}; }
    bool MarkNeighbors(std::int32_t lThis);

    modKinship::LinkGraph& graph_;
    std::vector<Stamped> marks_;
    std::uint32_t pass_ = 0;
    std::vector<std::int32_t> neighbours_;  // of the node of the pass
    std::vector<Step> way_;                 // the nodes under exploration
};

}  // namespace swiftroll::modKinshipOptimize
