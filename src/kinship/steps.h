#pragma once

#include <compare>
#include <functional>
#include <limits>
#include <span>

#include "kinship/link_graph.h"
#include "kinship/relations.h"
#include "tables/counting_sort.h"

namespace swiftroll::modKinship {

/// What a path is measured by. Fewer marriages count before fewer lines.
struct PathCost {
    std::int32_t marriages = 0;
    std::int32_t lines = 0;
    // The generated code compares with a literal 0.
    auto operator<=>(const PathCost&) const = default;  // NOLINT(modernize-use-nullptr)
    PathCost operator+(const PathCost& other) const {
        return {marriages + other.marriages, lines + other.lines};
    }
};
/// Where there is no path.
inline constexpr PathCost kNoPath{std::numeric_limits<std::int32_t>::max(), 0};

/// What a link says beside whom it joins.
struct LinkKind {
    bool isMarriage = false;
    Fold asFirst = Fold::None;
    Fold asSecond = Fold::None;
    std::int32_t family = 0;  // equal numbers are one family
};

/// A piece of a path that makes one line: a link, or two that fold, so that the person between has no line.
struct Step {
    std::int32_t first;
    std::int32_t second;  // kNobody for a single link
    std::int32_t target;
    PathCost cost;
};

/// What the cheapest way from a node to the target costs at least, the line of the target included, and the
/// cheapest one that does not begin with the same neighbour. No way turns back to where it just came from.
struct WaysAhead {
    PathCost best = kNoPath;
    std::int32_t neighbour = kNobody;  // the first one that the best way passes
    PathCost other = kNoPath;
    /// The cheapest for who comes from this neighbour.
    PathCost From(std::int32_t previous) const { return previous == neighbour ? other : best; }
};

/// A link graph with what its links say, as steps. Cut into steps in the cheapest way, a path costs what its
/// lines tell: three links of which the first two and the last two fold make two lines either way.
///
/// Linear in the links: those that fold meet in *crossings*, a person in a family, with the links that may
/// come before on one side and those that may come behind on the other.
class StepGraph {
  public:
    /// Steps towards `target`. `graph` must outlive them; `kinds` by link.
    StepGraph(const LinkGraph& graph, std::vector<LinkKind> kinds, std::int32_t target);

    const LinkGraph& Links() const { return graph_; }
    PathCost CostOf(std::int32_t link) const { return {At(kinds_, link).isMarriage ? 1 : 0, 1}; }
    bool Folds(std::int32_t first, std::int32_t second) const {
        return At(crossingAhead_, first) != kNobody &&
               At(crossingAhead_, first) == At(crossingBehind_, second);
    }
    /// Calls `visit(step)` for the steps of two links that begin with this one.
    template <class Visitor>
    void VisitFolded(std::int32_t first, Visitor visit) const {
        if (At(crossingAhead_, first) == kNobody) return;
        for (const std::int32_t second : seconds_.Of(static_cast<std::uint32_t>(At(crossingAhead_, first))))
            visit(Step{first, second, graph_.Target(second), kFoldedCost});
    }
    /// Calls `visit(step)` for the step of this link alone and then for those of two that begin with it.
    template <class Visitor>
    void VisitSteps(std::int32_t first, Visitor visit) const {
        visit(Step{first, kNobody, graph_.Target(first), CostOf(first)});
        VisitFolded(first, visit);
    }

    std::int32_t Target() const { return target_; }
    std::int32_t Source(std::int32_t link) const { return At(sources_, link); }
    /// What the ways from each node to the target cost, by node. Counts lines alone on request. `goOn` is
    /// asked again and again; what it leaves unfinished when it gives false is of no use.
    std::vector<WaysAhead> FindWaysAhead(bool countMarriages, const std::function<bool()>& goOn) const;

    /// What two links that fold cost.
    static constexpr PathCost kFoldedCost{0, 1};

  private:
    struct Crossing;
    void NumberCrossings();
    void ListLinks();

    const LinkGraph& graph_;
    std::int32_t target_;
    std::vector<LinkKind> kinds_;
    std::vector<std::int32_t> sources_;                         // by link
    std::vector<std::int32_t> crossingAhead_, crossingBehind_;  // by link, at its target and at its source
    RowLists seconds_, firsts_;                                 // by crossing
    RowLists arriving_;                                         // by node
};

}  // namespace swiftroll::modKinship
