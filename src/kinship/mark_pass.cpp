#include "kinship/mark_pass.h"

namespace swiftroll::modKinshipOptimize {

using modKinship::kNobody;
using modKinship::LinkRange;

void MarkPass::Run(std::int32_t lThis, std::int32_t lTo, std::int32_t lPrev,
                   std::vector<std::int32_t>& removed) {
    ++pass_;
    const LinkRange links = graph_.LinksOf(lThis);
    // As it is now: a neighbour keeps its place, and may be marked anew, after the link to it was removed.
    neighbours_.clear();
    for (std::int32_t link = links.first; link < links.last; ++link)
        neighbours_.push_back(graph_.Target(link));
    SetMark(lThis, Mark::This);
    for (const std::int32_t lN : neighbours_) {
        if (lN != kNobody) SetMark(lN, Mark::Neighbour);
    }
    if (lPrev != kNobody) SetMark(lPrev, Mark::Previous);
    SetMark(lTo, Mark::Target);
    for (std::size_t i = 0; i < neighbours_.size(); ++i) {
        if (neighbours_[i] == kNobody || MarkOf(neighbours_[i]) != Mark::Neighbour) continue;
        const bool leads = MarkNeighbors(neighbours_[i]);
        // What the exploration saw of the other neighbours shares its result.
        for (std::size_t j = i; j < neighbours_.size(); ++j) {
            const std::int32_t lN = neighbours_[j];
            if (lN == kNobody || (MarkOf(lN) != Mark::Exploring && MarkOf(lN) != Mark::Fails)) continue;
            SetMark(lN, leads ? Mark::Leads : Mark::Fails);
            const std::int32_t link = links.first + static_cast<std::int32_t>(j);
            if (leads || graph_.Target(link) == kNobody) continue;
            graph_.Remove(link);
            removed.push_back(link);
        }
    }
}

/// Explores from a node until the target, or a node that leads to it, is met.
bool MarkPass::MarkNeighbors(std::int32_t lThis) {
    const auto enter = [&](std::int32_t node) {
        SetMark(node, Mark::Exploring);
        way_.push_back({node, graph_.LinksOf(node).first});
    };
    bool leads = false;
    enter(lThis);
    while (!way_.empty() && !leads) {
        Step& step = way_.back();
        if (step.nextLink == graph_.LinksOf(step.node).last) {
            SetMark(step.node, Mark::Fails);
            way_.pop_back();
            continue;
        }
        const std::int32_t lN = graph_.Target(step.nextLink++);
        if (lN == kNobody) continue;
        const Mark mark = MarkOf(lN);
        if (mark == Mark::Unreached || mark == Mark::Neighbour) enter(lN);
        leads = mark == Mark::Leads || mark == Mark::Target;
    }
    for (const Step& step : way_) SetMark(step.node, Mark::Leads);
    way_.clear();
    return leads;
}

}  // namespace swiftroll::modKinshipOptimize
