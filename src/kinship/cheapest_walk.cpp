#include "kinship/cheapest_walk.h"

#include <algorithm>
#include <utility>

namespace swiftroll::modKinship {
namespace {

constexpr std::uint32_t kLooksBetweenPauses = 4096;

}  // namespace

CheapestWalk::CheapestWalk(const StepGraph& steps, const PathLimits& limits, std::function<bool()> goOn)
    : steps_(steps),
      limits_(limits),
      goOn_(std::move(goOn)),
      isOnPath_(static_cast<std::size_t>(steps.Links().NodeCount())),
      isBanned_(static_cast<std::size_t>(steps.Links().LinkCount())),
      firstSettled_(isOnPath_.size()) {
    const auto goesOn = [this] { return hasEnded_ = hasEnded_ || !goOn_(), !hasEnded_; };
    ahead_ = steps.FindWaysAhead(true, goesOn);
    if (limits.lines != PathLimits::kNone) linesAhead_ = steps.FindWaysAhead(false, goesOn);
}

void CheapestWalk::StandAt(std::int32_t from) {
    for (const std::int32_t node : path_) At(isOnPath_, node) = 0;
    path_.assign(1, from);
    At(isOnPath_, from) = 1;
    lastLink_ = kNobody;
    cost_ = costBefore_ = {};
}

void CheapestWalk::Advance(std::int32_t link) {
    PathCost cost = cost_ + steps_.CostOf(link);
    if (lastLink_ != kNobody && steps_.Folds(lastLink_, link))
        cost = std::min(cost, costBefore_ + StepGraph::kFoldedCost);
    costBefore_ = std::exchange(cost_, cost);
    lastLink_ = link;
    path_.push_back(steps_.Links().Target(link));
    At(isOnPath_, path_.back()) = 1;
}

/// Calls `visit(step, before)` for the steps on from the end of the path over other links than these,
/// `before` being what the path costs without the step.
template <class Visitor>
void CheapestWalk::VisitFirstSteps(std::span<const std::int32_t> bannedLinks, Visitor visit) {
    for (const std::int32_t link : bannedLinks) At(isBanned_, link) = 1;
    const LinkRange links = steps_.Links().LinksOf(path_.back());
    for (std::int32_t link = links.first; link < links.last; ++link) {
        if (At(isBanned_, link) != 0 || At(isOnPath_, steps_.Links().Target(link)) != 0) continue;
        steps_.VisitSteps(link, [&](const Step& step) { visit(step, cost_); });
    }
    // The last link of the path may fold with the first one of the way.
    if (lastLink_ != kNobody) {
        steps_.VisitFolded(lastLink_, [&](Step step) {
            if (At(isBanned_, step.second) != 0) return;
            step.first = std::exchange(step.second, kNobody);
            visit(step, costBefore_);
        });
    }
    for (const std::int32_t link : bannedLinks) At(isBanned_, link) = 0;
}

std::optional<PathCost> CheapestWalk::Bound(std::span<const std::int32_t> bannedLinks) {
    PathCost least = kNoPath;
    VisitFirstSteps(bannedLinks, [&](const Step& step, PathCost before) {
        least = std::min(least, TotalOf(step, PreviousOf(step), before + step.cost));
    });
    if (least == kNoPath) return std::nullopt;
    return least;
}

std::optional<PathCost> CheapestWalk::Find(std::span<const std::int32_t> bannedLinks,
                                           std::vector<std::int32_t>& links) {
    ++run_;
    settled_.clear();
    labels_.clear();
    open_.clear();
    newest_.reset();
    VisitFirstSteps(bannedLinks, [&](const Step& step, PathCost before) { Add(step, before, kNobody); });
    while (MayGoOn()) {
        const auto next = TakeFirst();
        if (!next) break;
        const Label label = At(labels_, next->label);
        if (label.step.target == steps_.Target()) {
            TakeWay(next->label, links);
            return next->total;
        }
        const std::int32_t node = label.step.target, previous = PreviousOf(label.step);
        if (IsSettled(node, previous, label.cost)) continue;
        Settle(node, previous, label.cost);
        const LinkRange range = steps_.Links().LinksOf(node);
        for (std::int32_t link = range.first; link < range.last; ++link) {
            const std::int32_t target = steps_.Links().Target(link);
            if (target == previous || At(isOnPath_, target) != 0) continue;
            steps_.VisitSteps(link, [&](const Step& step) { Add(step, label.cost, next->label); });
        }
    }
    return std::nullopt;
}

/// The links of the steps that led to a label.
void CheapestWalk::TakeWay(std::int32_t label, std::vector<std::int32_t>& links) const {
    links.clear();
    for (std::int32_t i = label; i != kNobody; i = At(labels_, i).previous) {
        const Step& step = At(labels_, i).step;
        if (step.second != kNobody) links.push_back(step.second);
        links.push_back(step.first);
    }
    std::reverse(links.begin(), links.end());
}

/// The node that a step leads to its target from.
std::int32_t CheapestWalk::PreviousOf(const Step& step) const {
    return steps_.Source(step.second != kNobody ? step.second : step.first);
}

/// What a path costs at least that a step leads on at this cost; kNoPath where none leads on.
PathCost CheapestWalk::TotalOf(const Step& step, std::int32_t previous, PathCost cost) const {
    if (At(isOnPath_, step.target) != 0) return kNoPath;
    const PathCost ahead = At(ahead_, step.target).From(previous);
    if (ahead == kNoPath) return kNoPath;
    const PathCost total = cost + ahead;
    if (total.marriages > limits_.marriages) return kNoPath;
    if (!linesAhead_.empty() &&
        cost.lines + At(linesAhead_, step.target).From(previous).lines > limits_.lines) {
        return kNoPath;
    }
    return total;
}

/// Notes a place that a step leads to, unless no path leads on from it.
void CheapestWalk::Add(const Step& step, PathCost before, std::int32_t label) {
    ++looks_;
    const std::int32_t previous = PreviousOf(step);
    const PathCost cost = before + step.cost, total = TotalOf(step, previous, cost);
    if (total == kNoPath || IsSettled(step.target, previous, cost)) return;
    Open open{total, cost.lines, static_cast<std::int32_t>(labels_.size())};
    labels_.push_back({step, cost, label});
    if (newest_ && *newest_ < open) std::swap(*newest_, open);
    if (newest_) {
        Push(open);
    } else {
        newest_ = open;
    }
}

void CheapestWalk::Push(const Open& open) {
    open_.push_back(open);
    std::push_heap(open_.begin(), open_.end());
}

/// The label that comes first; nothing when all were taken. Where nothing is in the way, it is one of those
/// that were added last, which need not pass through the heap.
std::optional<CheapestWalk::Open> CheapestWalk::TakeFirst() {
    if (const auto newest = std::exchange(newest_, std::nullopt)) {
        if (open_.empty() || open_.front() < *newest) return newest;
        Push(*newest);
    }
    if (open_.empty()) return std::nullopt;
    std::pop_heap(open_.begin(), open_.end());
    const Open first = open_.back();
    open_.pop_back();
    return first;
}

/// Whether all ways on from a node were taken before at no more marriages and no more lines: by who came from
/// the same neighbour, or by two who came from others, of whom one at least did not come from where the way
/// leads.
bool CheapestWalk::IsSettled(std::int32_t node, std::int32_t previous, PathCost cost) const {
    const First& first = At(firstSettled_, node);
    std::int32_t other = kNobody;
    for (std::int32_t i = first.run == run_ ? first.settled : kNobody; i != kNobody;
         i = At(settled_, i).next) {
        const Settled& settled = At(settled_, i);
        const bool costsMore = settled.cost > cost;
        if (costsMore || (!linesAhead_.empty() && settled.cost.lines > cost.lines)) continue;
        if (settled.previous == previous || (other != kNobody && other != settled.previous)) return true;
        other = settled.previous;
    }
    return false;
}

void CheapestWalk::Settle(std::int32_t node, std::int32_t previous, PathCost cost) {
    First& first = At(firstSettled_, node);
    settled_.push_back({previous, cost, first.run == run_ ? first.settled : kNobody});
    first = {run_, static_cast<std::int32_t>(settled_.size()) - 1};
}

bool CheapestWalk::MayGoOn() {
    if (looks_ >= kLooksBetweenPauses && !hasEnded_) {
        looks_ = 0;
        hasEnded_ = !goOn_();
    }
    return !hasEnded_;
}

}  // namespace swiftroll::modKinship
