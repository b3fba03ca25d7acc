#include "kinship/steps.h"

#include <algorithm>
#include <queue>
#include <tuple>
#include <utility>

namespace swiftroll::modKinship {
namespace {

constexpr std::uint32_t kLooksBetweenPauses = 4096;

RowLists ByNumber(const std::vector<std::int32_t>& numberOfLink) {
    std::vector<RowLists::Entry> entries;
    for (std::size_t link = 0; link < numberOfLink.size(); ++link) {
        if (numberOfLink[link] == kNobody) continue;
        entries.push_back({static_cast<std::uint32_t>(numberOfLink[link]), static_cast<std::int32_t>(link)});
    }
    return RowLists(entries);
}

}  // namespace

/// A person in a family, and how the links before and behind fold.
struct StepGraph::Crossing {
    std::int32_t node;
    std::int32_t family;
    Fold fold;
    auto operator<=>(const Crossing&) const = default;
};

StepGraph::StepGraph(const LinkGraph& graph, std::vector<LinkKind> kinds, std::int32_t target)
    : graph_(graph),
      target_(target),
      kinds_(std::move(kinds)),
      sources_(kinds_.size(), kNobody),
      crossingAhead_(kinds_.size(), kNobody),
      crossingBehind_(kinds_.size(), kNobody),
      seconds_({}),
      firsts_({}),
      arriving_({}) {
    // A link to oneself is on no path.
    graph_.VisitLinks([&](std::int32_t source, std::int32_t link) {
        if (graph_.Target(link) != source) At(sources_, link) = source;
    });
    const std::vector<Crossing> crossings = FindCrossings();
    const auto numberOf = [&](const Crossing& crossing) {
        const auto found = std::lower_bound(crossings.begin(), crossings.end(), crossing);
        const bool isThere = found != crossings.end() && *found == crossing;
        return isThere ? static_cast<std::int32_t>(found - crossings.begin()) : kNobody;
    };
    for (std::int32_t link = 0; link < graph_.LinkCount(); ++link) {
        if (At(sources_, link) == kNobody) continue;
        const LinkKind& kind = At(kinds_, link);
        if (kind.asFirst != Fold::None)
            At(crossingAhead_, link) = numberOf({graph_.Target(link), kind.family, kind.asFirst});
        if (kind.asSecond != Fold::None)
            At(crossingBehind_, link) = numberOf({At(sources_, link), kind.family, kind.asSecond});
    }
    ListLinks();
}

/// The crossings that a link may come behind of, in order.
std::vector<StepGraph::Crossing> StepGraph::FindCrossings() {
    std::vector<Crossing> crossings;
    for (std::int32_t link = 0; link < graph_.LinkCount(); ++link) {
        const LinkKind& kind = At(kinds_, link);
        if (At(sources_, link) == kNobody || kind.asSecond == Fold::None) continue;
        crossings.push_back({At(sources_, link), kind.family, kind.asSecond});
    }
    std::sort(crossings.begin(), crossings.end());
    crossings.erase(std::unique(crossings.begin(), crossings.end()), crossings.end());
    return crossings;
}

void StepGraph::ListLinks() {
    seconds_ = ByNumber(crossingBehind_);
    firsts_ = ByNumber(crossingAhead_);
    std::vector<std::int32_t> targets(kinds_.size(), kNobody);
    for (std::int32_t link = 0; link < graph_.LinkCount(); ++link) {
        if (At(sources_, link) != kNobody) At(targets, link) = graph_.Target(link);
    }
    arriving_ = ByNumber(targets);
}

std::vector<WaysAhead> StepGraph::FindWaysAhead(bool countMarriages,
                                                const std::function<bool()>& goOn) const {
    std::vector<WaysAhead> ways(static_cast<std::size_t>(graph_.NodeCount()));
    std::vector<std::uint8_t> isCrossed(kinds_.size());
    using Entry = std::tuple<PathCost, std::int32_t, std::int32_t>;  // cost, node, neighbour
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> open;
    /// A link leads to who goes on at this cost.
    const auto arrive = [&](std::int32_t link, PathCost cost) {
        const PathCost single = CostOf(link);
        const std::int32_t source = At(sources_, link);
        open.emplace(cost + PathCost{countMarriages ? single.marriages : 0, single.lines}, source,
                     graph_.Target(link));
        // Whoever comes to a crossing first comes from it in the cheapest way.
        const std::int32_t crossing = At(crossingBehind_, link);
        if (crossing == kNobody || std::exchange(At(isCrossed, crossing), std::uint8_t{1}) != 0) return;
        for (const std::int32_t first : firsts_.Of(static_cast<std::uint32_t>(crossing)))
            open.emplace(cost + kFoldedCost, At(sources_, first), source);
    };
    open.emplace(PathCost{0, 1}, target_, kNobody);
    for (std::uint32_t looks = 1; !open.empty(); ++looks) {
        if (looks % kLooksBetweenPauses == 0 && !goOn()) break;
        const auto [cost, node, neighbour] = open.top();
        open.pop();
        WaysAhead& way = At(ways, node);
        const bool isBest = way.best == kNoPath;
        if (!isBest && (way.other != kNoPath || neighbour == way.neighbour || node == target_)) continue;
        if (isBest) {
            way.best = cost;
            way.neighbour = neighbour;
        } else {
            way.other = cost;
        }
        for (const std::int32_t link : arriving_.Of(static_cast<std::uint32_t>(node))) {
            if ((At(sources_, link) != way.neighbour) == isBest) arrive(link, cost);
        }
    }
    return ways;
}

}  // namespace swiftroll::modKinship
