#include "kinship/remove_islands.h"

#include "kinship/cut_tree.h"
#include "kinship/mark_pass.h"
#include "kinship/way_tree.h"

namespace swiftroll::modKinshipOptimize {

using modKinship::At;
using modKinship::kNobody;
using modKinship::LinkGraph;
using modKinship::LinkRange;
using modKinship::Neighbours;

namespace {

/// The nodes at both ends of the links that have none in the other direction, or that lead to oneself.
std::vector<std::int32_t> OneWayEnds(const LinkGraph& graph, const Neighbours& bothWays) {
    std::vector<std::int32_t> ends;
    std::vector<std::int32_t> neighbourOf(static_cast<std::size_t>(graph.NodeCount()), kNobody);
    for (std::int32_t node = 0; node < graph.NodeCount(); ++node) {
        const LinkRange links = graph.LinksOf(node), both = bothWays.RangeOf(node);
        for (std::int32_t i = both.first; i < both.last; ++i) At(neighbourOf, bothWays[i]) = node;
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const std::int32_t target = graph.Target(link);
            if (target != kNobody && At(neighbourOf, target) != node) ends.insert(ends.end(), {node, target});
        }
    }
    return ends;
}

class Simplification {
  public:
    Simplification(LinkGraph& graph, std::int32_t lTo)
        : graph_(graph),
          lTo_(lTo),
          bothWays_(Neighbours::LinkedBothWays(graph)),
          cuts_(bothWays_, lTo, OneWayEnds(graph, bothWays_)),
          ways_(graph, lTo),
          exploration_(graph),
          isIslandDone_(static_cast<std::size_t>(graph.NodeCount())) {}

    std::vector<std::int32_t> Run(std::int32_t lFrom, const std::function<bool()>& pause) {
        Enter(lFrom, kNobody);
        while (!way_.empty() && pause()) {
            Step& step = way_.back();
            if (step.nextLink == graph_.LinksOf(step.node).last) {
                way_.pop_back();
                continue;
            }
            const std::int32_t lN = graph_.Target(step.nextLink++);
            if (lN == kNobody || lN == lTo_ || At(isIslandDone_, lN) != 0 || lN == step.previous) continue;
            At(isIslandDone_, lN) = 1;
            Enter(lN, step.node);
        }
        return std::move(removed_);
    }

  private:
    struct Step {
        std::int32_t node;
        std::int32_t previous;
        std::int32_t nextLink;
    };

    void Enter(std::int32_t lThis, std::int32_t lPrev) {
        const std::size_t before = removed_.size();
        const LinkRange links = graph_.LinksOf(lThis);
        targets_.clear();
        for (std::int32_t link = links.first; link < links.last; ++link)
            targets_.push_back(graph_.Target(link));
        if (!TryByTrees(lThis, lPrev)) exploration_.Run(lThis, lTo_, lPrev, removed_);
        for (std::size_t i = before; i < removed_.size(); ++i) {
            ways_.LinkRemoved(lThis, At(targets_, removed_[i] - links.first));
        }
        way_.push_back({lThis, lPrev, links.first});
    }

    /// Answers all questions of a pass by the trees; false, and nothing is removed, when they cannot.
    ///
    /// A neighbour that is cut off even when no link at all counts as removed leads nowhere. One that has a
    /// way over links that exist in both directions would be found to lead to the target in whatever order
    /// the neighbours are explored. In between, the order decides.
    bool TryByTrees(std::int32_t lThis, std::int32_t lPrev) {
        if (!cuts_.TakeAway(lThis, lPrev)) return false;
        ways_.Bar(lThis, lPrev);
        const LinkRange links = graph_.LinksOf(lThis);
        toRemove_.clear();
        bool leads = false;  // an exploration has met the target
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const std::int32_t lN = graph_.Target(link);
            if (lN == kNobody || lN == lTo_ || lN == lPrev) continue;
            // Who is linked to himself is not barred from the ways of his own pass.
            if (lN == lThis) return false;
            const CutTree::Verdict verdict = cuts_.Of(lN);
            if (verdict == CutTree::Verdict::Unknown) return false;
            if (verdict == CutTree::Verdict::CutOff) {
                toRemove_.push_back(link);
            } else if (!removed_.empty() && !ways_.HasWay(lN)) {
                // What no exploration has come near yet is found in whatever order it is explored, too.
                if (leads || !ways_.HasExit()) return false;
                leads = true;
            } else {
                leads = true;
            }
        }
        for (const std::int32_t link : toRemove_) {
            graph_.Remove(link);
            removed_.push_back(link);
        }
        return true;
    }

    LinkGraph& graph_;
    std::int32_t lTo_;
    Neighbours bothWays_;
    CutTree cuts_;
    WayTree ways_;
    MarkPass exploration_;
    std::vector<std::uint8_t> isIslandDone_;
    std::vector<Step> way_;
    std::vector<std::int32_t> removed_;
    std::vector<std::int32_t> targets_, toRemove_;  // of one pass, kept for their memory
};

}  // namespace

std::vector<std::int32_t> RemoveIslands(LinkGraph& graph, std::int32_t lFrom, std::int32_t lTo,
                                        const std::function<bool()>& pause) {
    return Simplification(graph, lTo).Run(lFrom, pause);
}

}  // namespace swiftroll::modKinshipOptimize
