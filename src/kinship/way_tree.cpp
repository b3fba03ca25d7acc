#include "kinship/way_tree.h"

#include <algorithm>

namespace swiftroll::modKinshipOptimize {

using modKinship::At;
using modKinship::kNobody;
using modKinship::LinkRange;

WayTree::WayTree(const modKinship::LinkGraph& graph, std::int32_t lTo)
    : graph_(graph), lTo_(lTo), lastSearch_(static_cast<std::size_t>(graph.NodeCount())) {
    FindWaysBack();
    Build();
}

void WayTree::FindWaysBack() {
    const auto count = static_cast<std::size_t>(graph_.NodeCount());
    std::vector<std::int32_t> next(count + 1);
    graph_.VisitLinks([&](std::int32_t, std::int32_t link) { ++At(next, graph_.Target(link) + 1); });
    for (std::size_t node = 1; node <= count; ++node) next[node] += next[node - 1];
    // Of all links in the order of their targets, and then of their sources.
    struct Origin {
        std::int32_t source, link;
    };
    std::vector<Origin> origins(static_cast<std::size_t>(next.back()));
    graph_.VisitLinks([&](std::int32_t source, std::int32_t link) {
        At(origins, At(next, graph_.Target(link))++) = {source, link};
    });
    wayBack_.assign(static_cast<std::size_t>(graph_.LinkCount()), kNobody);
    std::vector<std::int32_t> linkFrom(count, kNobody);  // to the present node, by source
    std::size_t origin = 0;
    for (std::int32_t node = 0; node < graph_.NodeCount(); ++node) {
        const std::size_t first = origin;
        for (; origin < static_cast<std::size_t>(At(next, node)); ++origin) {
            At(linkFrom, origins[origin].source) = origins[origin].link;
        }
        const LinkRange links = graph_.LinksOf(node);
        for (std::int32_t link = links.first; link < links.last; ++link) {
            if (graph_.Target(link) != kNobody) At(wayBack_, link) = At(linkFrom, graph_.Target(link));
        }
        for (std::size_t i = first; i < origin; ++i) At(linkFrom, origins[i].source) = kNobody;
    }
}

void WayTree::Build() {
    const auto count = static_cast<std::size_t>(graph_.NodeCount());
    parents_.assign(count, kNobody);
    numbers_.assign(count, kNobody);
    ends_.assign(count, 0);
    broken_.clear();
    searchedSinceBuild_ = 0;
    std::vector<std::int32_t> reached{lTo_};
    At(parents_, lTo_) = lTo_;
    for (std::size_t i = 0; i < reached.size(); ++i) {
        const LinkRange links = graph_.LinksOf(reached[i]);
        for (std::int32_t link = links.first; link < links.last; ++link) {
            if (!IsOpenBothWays(link) || At(parents_, graph_.Target(link)) != kNobody) continue;
            At(parents_, graph_.Target(link)) = reached[i];
            reached.push_back(graph_.Target(link));
        }
    }
    // First the sizes of the branches, from the leaves on; then a range for each, from the root on.
    for (std::size_t i = reached.size(); i-- > 0;) {
        const std::int32_t size = ++At(ends_, reached[i]);
        if (i > 0) At(ends_, At(parents_, reached[i])) += size;
    }
    std::vector<std::int32_t> nextNumber(count);
    for (const std::int32_t node : reached) {
        std::int32_t& number = At(numbers_, node);
        number = At(nextNumber, At(parents_, node));
        At(nextNumber, At(parents_, node)) += At(ends_, node);
        At(nextNumber, node) = number + 1;
        At(ends_, node) += number;
    }
}

void WayTree::Bar(std::int32_t node, std::int32_t other) {
    barred_ = node;
    otherBarred_ = other;
    firstSearch_ = search_ + 1;
    const auto cost =
        static_cast<std::size_t>(graph_.NodeCount()) + static_cast<std::size_t>(graph_.LinkCount());
    if (!broken_.empty() && searchedSinceBuild_ > 2 * cost) Build();
}

bool WayTree::IsBelow(std::int32_t node, std::int32_t above) const {
    if (above == kNobody || At(numbers_, above) == kNobody) return false;
    return At(numbers_, above) <= At(numbers_, node) && At(numbers_, node) < At(ends_, above);
}

bool WayTree::IsBroken(std::int32_t node) const {
    const auto behind = broken_.upper_bound(At(numbers_, node));
    return behind != broken_.begin() && At(numbers_, node) < std::prev(behind)->second;
}

bool WayTree::TreeWayIsOpen(std::int32_t node) const {
    return At(numbers_, node) != kNobody && !IsBelow(node, barred_) && !IsBelow(node, otherBarred_) &&
           !IsBroken(node);
}

bool WayTree::HasWay(std::int32_t node) {
    if (At(lastSearch_, node) >= firstSearch_ || TreeWayIsOpen(node)) return true;
    ++search_;
    seen_.assign(1, node);
    exits_.clear();
    At(lastSearch_, node) = search_;
    for (std::size_t i = 0; i < seen_.size(); ++i) {
        const LinkRange links = graph_.LinksOf(seen_[i]);
        searchedSinceBuild_ += static_cast<std::size_t>(links.last - links.first) + 1;
        for (std::int32_t link = links.first; link < links.last; ++link) {
            const std::int32_t other = graph_.Target(link);
            if (other == kNobody || other == barred_ || other == otherBarred_) continue;
            if (!IsOpenBothWays(link)) {
                exits_.push_back(other);
                continue;
            }
            if (At(lastSearch_, other) == search_) continue;
            if (At(lastSearch_, other) >= firstSearch_ || TreeWayIsOpen(other)) return true;
            At(lastSearch_, other) = search_;
            seen_.push_back(other);
        }
    }
    firstSearch_ = search_ + 1;  // nothing of what was seen has a way
    return false;
}

bool WayTree::HasExit() {
    const std::vector<std::int32_t> exits = std::move(exits_);
    return std::any_of(exits.begin(), exits.end(), [&](std::int32_t exit) { return HasWay(exit); });
}

void WayTree::LinkRemoved(std::int32_t source, std::int32_t target) {
    std::int32_t below = kNobody;
    if (At(parents_, target) == source) below = target;
    if (At(parents_, source) == target) below = source;
    if (below == kNobody || IsBroken(below)) return;
    const std::int32_t first = At(numbers_, below), last = At(ends_, below);
    broken_.erase(broken_.lower_bound(first), broken_.lower_bound(last));
    broken_[first] = last;
}

}  // namespace swiftroll::modKinshipOptimize
