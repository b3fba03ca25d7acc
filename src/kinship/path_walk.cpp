#include "kinship/path_walk.h"

namespace swiftroll::modKinship {
namespace {

constexpr std::uint32_t kStepsBetweenPauses = 4096;

}  // namespace

PathWalk::PathWalk(const LinkGraph& graph, std::int32_t from, std::int32_t to)
    : graph_(graph),
      from_(from),
      to_(to),
      firstOrigin_(static_cast<std::size_t>(graph.NodeCount()) + 1),
      origins_(static_cast<std::size_t>(graph.LinkCount())),
      states_(static_cast<std::size_t>(graph.NodeCount())),
      bars_(static_cast<std::size_t>(graph.NodeCount())) {
    graph.VisitLinks([&](std::int32_t, std::int32_t link) { ++At(firstOrigin_, graph.Target(link) + 1); });
    for (std::size_t node = 1; node < firstOrigin_.size(); ++node)
        firstOrigin_[node] += firstOrigin_[node - 1];
    std::vector<std::int32_t> next = firstOrigin_;
    graph.VisitLinks([&](std::int32_t source, std::int32_t link) {
        At(origins_, At(next, graph.Target(link))++) = source;
    });
}

void PathWalk::Run(PathVisitor& visitor) {
    Enter(from_);
    while (LookForTarget(visitor) && TellPath(visitor)) {
    }
}

void PathWalk::Enter(std::int32_t node) {
    At(states_, node) = State::OnPath;
    path_.push_back({node, graph_.LinksOf(node).first});
}

/// Goes on from the end of the path to the next place where a link leads to the target. False at the end.
bool PathWalk::LookForTarget(PathVisitor& visitor) {
    while (!path_.empty()) {
        if (++steps_ % kStepsBetweenPauses == 0 && !visitor.GoOn()) return false;
        Step& step = path_.back();
        const std::int32_t last = graph_.LinksOf(step.node).last;
        std::int32_t next = kNobody;
        while (step.nextLink < last && next == kNobody) {
            const std::int32_t target = graph_.Target(step.nextLink++);
            if (target == to_) return true;
            if (At(states_, target) == State::Free) next = target;
        }
        if (next == kNobody) {
            Leave();
        } else {
            Enter(next);
        }
    }
    return false;
}

/// Leaves the last node of the path. One that was entered led to a path, and is free again; one that was only
/// looked at is dead.
void PathWalk::Leave() {
    const std::int32_t node = path_.back().node;
    path_.pop_back();
    if (path_.size() < entered_) {
        entered_ = path_.size();
        At(states_, node) = State::Free;
        if (At(bars_, node) != 0) Revive(node);
        return;
    }
    At(states_, node) = State::Dead;
    const LinkRange links = graph_.LinksOf(node);
    for (std::int32_t link = links.first; link < links.last; ++link) At(bars_, graph_.Target(link)) = 1;
}

/// Frees the dead nodes that lead to a node that was left.
void PathWalk::Revive(std::int32_t node) {
    toRevive_.assign(1, node);
    while (!toRevive_.empty()) {
        const std::int32_t freed = toRevive_.back();
        toRevive_.pop_back();
        if (At(bars_, freed) == 0) continue;
        At(bars_, freed) = 0;
        for (std::int32_t i = At(firstOrigin_, freed); i < At(firstOrigin_, freed + 1); ++i) {
            const std::int32_t origin = At(origins_, i);
            if (At(states_, origin) != State::Dead) continue;
            At(states_, origin) = State::Free;
            toRevive_.push_back(origin);
        }
    }
}

/// Enters what was looked at, one by one, and the target.
bool PathWalk::TellPath(PathVisitor& visitor) {
    for (; entered_ < path_.size(); ++entered_) {
        if (!visitor.Visit(static_cast<std::int32_t>(entered_) + 1)) return false;
    }
    if (!visitor.Visit(static_cast<std::int32_t>(entered_) + 1)) return false;
    pathLinks_.resize(path_.size());
    for (std::size_t i = 0; i < path_.size(); ++i) pathLinks_[i] = path_[i].nextLink - 1;
    return visitor.Found(pathLinks_);
}

}  // namespace swiftroll::modKinship
