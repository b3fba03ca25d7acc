#include "kinship/steps.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace swiftroll::modKinship {
namespace {

constexpr std::uint32_t kLooksBetweenPauses = 4096;

/// Places in the order of their costs, without a heap: what is added costs a line more than what was taken
/// last, and as many marriages or one more.
class CostQueue {
  public:
    struct Entry {
        PathCost cost;
        std::int32_t node, neighbour;
    };
    void Add(const Entry& entry) {
        (entry.cost.marriages == marriages_ ? own_ : further_).entries.push_back(entry);
    }
    /// The first one; nothing when all were taken.
    std::optional<Entry> Take() {
        if (own_.IsTaken() && handedOn_.IsTaken()) {
            if (further_.IsTaken()) return std::nullopt;
            ++marriages_;
            handedOn_ = std::exchange(further_, {});
            own_ = {};
        }
        const bool isHandedOn =
            own_.IsTaken() || (!handedOn_.IsTaken() && handedOn_.First().cost <= own_.First().cost);
        Queue& queue = isHandedOn ? handedOn_ : own_;
        return queue.entries[queue.taken++];
    }

  private:
    struct Queue {
        std::vector<Entry> entries;  // lines ascend
        std::size_t taken = 0;
        bool IsTaken() const { return taken == entries.size(); }
        const Entry& First() const { return entries[taken]; }
    };
    std::int32_t marriages_ = 0;
    Queue own_, handedOn_;  // of so many marriages: added at as many, and at one less
    Queue further_;         // of one more
};

RowLists ByNumber(const std::vector<std::int32_t>& numberOfLink) {
    std::vector<RowLists::Entry> entries;
    for (std::size_t link = 0; link < numberOfLink.size(); ++link) {
        if (numberOfLink[link] == kNobody) continue;
        entries.push_back({static_cast<std::uint32_t>(numberOfLink[link]), static_cast<std::int32_t>(link)});
    }
    return RowLists(entries);
}

}  // namespace

/// A family of the person between two links, and how these fold.
struct StepGraph::Crossing {
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
    NumberCrossings();
    ListLinks();
}

/// Gives the links numbers of the crossings at both of their ends; only those that a link may come behind of
/// have one.
void StepGraph::NumberCrossings() {
    std::vector<Crossing> crossings;  // node by node, in order
    std::vector<std::size_t> firsts{0};
    for (std::int32_t node = 0; node < graph_.NodeCount(); ++node) {
        const LinkRange links = graph_.LinksOf(node);
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const LinkKind& kind = At(kinds_, link);
            if (At(sources_, link) == kNobody || kind.asSecond == Fold::None) continue;
            crossings.push_back({kind.family, kind.asSecond});
        }
        const auto first = crossings.begin() + static_cast<std::ptrdiff_t>(firsts.back());
        std::sort(first, crossings.end());
        crossings.erase(std::unique(first, crossings.end()), crossings.end());
        firsts.push_back(crossings.size());
    }
    const auto numberOf = [&](std::int32_t node, const Crossing& crossing) {
        const auto first = crossings.begin() + static_cast<std::ptrdiff_t>(At(firsts, node));
        const auto last = crossings.begin() + static_cast<std::ptrdiff_t>(At(firsts, node + 1));
        const auto found = std::lower_bound(first, last, crossing);
        const bool isThere = found != last && *found == crossing;
        return isThere ? static_cast<std::int32_t>(found - crossings.begin()) : kNobody;
    };
    for (std::int32_t link = 0; link < graph_.LinkCount(); ++link) {
        if (At(sources_, link) == kNobody) continue;
        const LinkKind& kind = At(kinds_, link);
        if (kind.asFirst != Fold::None)
            At(crossingAhead_, link) = numberOf(graph_.Target(link), {kind.family, kind.asFirst});
        if (kind.asSecond != Fold::None)
            At(crossingBehind_, link) = numberOf(At(sources_, link), {kind.family, kind.asSecond});
    }
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
    CostQueue open;
    /// A link leads to who goes on at this cost.
    const auto arrive = [&](std::int32_t link, PathCost cost) {
        const PathCost single = CostOf(link);
        const std::int32_t source = At(sources_, link);
        open.Add({cost + PathCost{countMarriages ? single.marriages : 0, single.lines}, source,
                  graph_.Target(link)});
        // Whoever comes to a crossing first comes from it in the cheapest way.
        const std::int32_t crossing = At(crossingBehind_, link);
        if (crossing == kNobody || std::exchange(At(isCrossed, crossing), std::uint8_t{1}) != 0) return;
        for (const std::int32_t first : firsts_.Of(static_cast<std::uint32_t>(crossing)))
            open.Add({cost + kFoldedCost, At(sources_, first), source});
    };
    open.Add({{0, 1}, target_, kNobody});
    std::uint32_t looks = 0;
    while (const auto next = open.Take()) {
        if (++looks % kLooksBetweenPauses == 0 && !goOn()) break;
        const auto [cost, node, neighbour] = *next;
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
