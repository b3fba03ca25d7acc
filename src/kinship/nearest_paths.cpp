#include "kinship/nearest_paths.h"

#include <algorithm>
#include <utility>

namespace swiftroll::modKinship {

NearestPaths::NearestPaths(const StepGraph& steps, std::int32_t from, const PathLimits& limits)
    : steps_(steps),
      from_(from),
      limits_(limits),
      passedWith_(static_cast<std::size_t>(steps.Links().NodeCount()), kNobody) {}

void NearestPaths::Run(PathVisitor& visitor, std::int64_t count) {
    CheapestWalk search(steps_, limits_, [&] { return visitor.GoOn(); });
    std::vector<std::int32_t> way;
    search.StandAt(from_);
    if (const auto bound = search.Bound({})) Keep({*bound, 0, kNobody, 0});
    while (!sets_.empty() && count > 0) {
        const Set set = TakeFirst();
        std::vector<std::int32_t> links;
        if (set.walk != kNobody) {
            const std::vector<std::int32_t>& left = At(walks_, set.walk).links;
            links.assign(left.begin(), left.begin() + set.place);
        }
        search.StandAt(from_);
        for (const std::int32_t link : links) search.Advance(link);
        const auto cost = search.Find(BannedLinks(set.walk, set.place), way);
        if (search.HasEnded()) return;
        if (!cost) continue;
        if (*cost > set.bound) {
            Keep({*cost, set.number, set.walk, set.place});
            continue;
        }
        links.insert(links.end(), way.begin(), way.end());
        const bool isPath = !CutAtRepeat(links);
        if (isPath) {
            const std::int32_t known = set.walk == kNobody ? 0 : set.place + 1;
            for (auto i = known; i <= static_cast<std::int32_t>(links.size()); ++i) {
                if (!visitor.Visit(i + 1)) return;
            }
            if (!visitor.Found(links)) return;
            --count;
        }
        walks_.push_back({std::move(links), set.walk, set.place});
        Divide(static_cast<std::int32_t>(walks_.size()) - 1, search);
    }
}

void NearestPaths::Keep(const Set& set) {
    sets_.push_back(set);
    std::push_heap(sets_.begin(), sets_.end());
}

NearestPaths::Set NearestPaths::TakeFirst() {
    std::pop_heap(sets_.begin(), sets_.end());
    const Set first = sets_.back();
    sets_.pop_back();
    return first;
}

/// The links that were taken at a node of a walk, by it and by those that it leaves there.
std::span<const std::int32_t> NearestPaths::BannedLinks(std::int32_t walk, std::int32_t place) {
    banned_.clear();
    while (walk != kNobody) {
        const Walk& taken = At(walks_, walk);
        banned_.push_back(At(taken.links, place));
        walk = taken.place == place ? taken.parent : kNobody;
    }
    return banned_;
}

/// Ends the links where they come to a node for the second time; false when they do not.
bool NearestPaths::CutAtRepeat(std::vector<std::int32_t>& links) {
    const auto number = static_cast<std::int32_t>(walks_.size());
    At(passedWith_, from_) = number;
    for (std::size_t i = 0; i < links.size(); ++i) {
        if (std::exchange(At(passedWith_, steps_.Links().Target(links[i])), number) != number) continue;
        links.resize(i + 1);
        return true;
    }
    return false;
}

/// Keeps all paths of the set of a walk but the walk itself as sets that leave it at one node each.
void NearestPaths::Divide(std::int32_t walk, CheapestWalk& search) {
    search.StandAt(from_);
    const auto length = static_cast<std::int32_t>(At(walks_, walk).links.size());
    for (std::int32_t i = 0; i < length; ++i) {
        if (i >= At(walks_, walk).place) {
            if (const auto bound = search.Bound(BannedLinks(walk, i))) Keep({*bound, ++setCount_, walk, i});
        }
        search.Advance(At(At(walks_, walk).links, i));
    }
}

}  // namespace swiftroll::modKinship
