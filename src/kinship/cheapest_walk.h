#pragma once

#include <optional>
#include <tuple>

#include "kinship/path_limits.h"
#include "kinship/steps.h"

namespace swiftroll::modKinship {

/// Finds the cheapest way on from the end of a path to the target, which keeps clear of the path and never
/// turns back to where it just came from. It may still pass somebody twice: it is a path, or costs no more
/// than the cheapest path does.
///
/// A* search: what the way from a person to the target costs at least is known in advance for all, so that
/// the search goes straight where nothing is in its way.
class CheapestWalk {
  public:
    /// `steps` must outlive the search. `goOn` is asked again and again; once it gives false, nothing is
    /// found any more.
    CheapestWalk(const StepGraph& steps, const PathLimits& limits, std::function<bool()> goOn);

    /// Forgets the path and stands at a node, which is all of it.
    void StandAt(std::int32_t from);
    /// Goes on over a link.
    void Advance(std::int32_t link);

    /// What the cheapest way that begins with none of these links costs at least, path included, as one look
    /// ahead tells; nothing where no way is left.
    std::optional<PathCost> Bound(std::span<const std::int32_t> bannedLinks);
    /// What that way costs, path included; nothing where there is none, or after the end. `links` are those
    /// of the way then.
    std::optional<PathCost> Find(std::span<const std::int32_t> bannedLinks, std::vector<std::int32_t>& links);

    /// Whether `goOn` has ended the search.
    bool HasEnded() const { return hasEnded_; }

  private:
    /// A place that the search has come to.
    struct Label {
        Step step;
        PathCost cost;
        std::int32_t previous;  // label
    };
    /// A label that is to be looked at. The one that costs least in all comes first, of equals the one that
    /// has come farthest.
    struct Open {
        PathCost total;
        std::int32_t lines;
        std::int32_t label;
        bool operator<(const Open& other) const {
            return std::tie(other.total, lines, other.label) < std::tie(total, other.lines, label);
        }
    };
    /// That ways on from a node were taken, by who came from `previous`.
    struct Settled {
        std::int32_t previous;
        PathCost cost;
        std::int32_t next;  // of the same node
    };
    struct First {
        std::uint64_t run = 0;
        std::int32_t settled = kNobody;
    };
    template <class Visitor>
    void VisitFirstSteps(std::span<const std::int32_t> bannedLinks, Visitor visit);
    std::int32_t PreviousOf(const Step& step) const;
    PathCost TotalOf(const Step& step, std::int32_t previous, PathCost cost) const;
    void Add(const Step& step, PathCost before, std::int32_t label);
    void Push(const Open& open);
    std::optional<Open> TakeFirst();
    bool IsSettled(std::int32_t node, std::int32_t previous, PathCost cost) const;
    void Settle(std::int32_t node, std::int32_t previous, PathCost cost);
    bool MayGoOn();
    void TakeWay(std::int32_t label, std::vector<std::int32_t>& links) const;

    const StepGraph& steps_;
    PathLimits limits_;
    std::function<bool()> goOn_;
    std::vector<WaysAhead> ahead_;        // by node
    std::vector<WaysAhead> linesAhead_;   // the same without marriages, where lines are limited
    std::vector<std::uint8_t> isOnPath_;  // by node
    std::vector<std::int32_t> path_;      // its nodes
    std::int32_t lastLink_ = kNobody;
    PathCost cost_, costBefore_;          // of the path, and without its last link
    std::vector<std::uint8_t> isBanned_;  // by link
    std::vector<First> firstSettled_;     // by node
    std::vector<Settled> settled_;
    std::uint64_t run_ = 0;
    std::vector<Label> labels_;
    std::vector<Open> open_;  // a heap, but for the first one of those that were added last
    std::optional<Open> newest_;
    std::uint32_t looks_ = 0;
    bool hasEnded_ = false;
};

}  // namespace swiftroll::modKinship
