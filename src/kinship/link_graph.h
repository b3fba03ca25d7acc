#pragma once

#include <cstdint>
#include <vector>

namespace swiftroll::modKinship {

/// No node: where a link leads to nobody, or where none is meant.
inline constexpr std::int32_t kNobody = -1;

/// Element `i` of a vector that is indexed with nodes or links.
template <class Value>
Value& At(std::vector<Value>& values, std::int32_t i) {
    return values[static_cast<std::size_t>(i)];
}
template <class Value>
const Value& At(const std::vector<Value>& values, std::int32_t i) {
    return values[static_cast<std::size_t>(i)];
}

/// The links that leave a node: numbers from `first` up to but not including `last`.
struct LinkRange {
    std::int32_t first;
    std::int32_t last;
};

/// Individuals as nodes 0, 1, 2, ... and the directed links between them. The links of a node stand side by
/// side in the order in which they are tried; a pair of nodes has one link in each direction at most.
class LinkGraph {
  public:
    LinkGraph() = default;
    /// `firstLinks` has one entry for each node, the number of its first link, and one more, the number of
    /// links; `targets` the node that each link leads to, or kNobody.
    LinkGraph(std::vector<std::int32_t> firstLinks, std::vector<std::int32_t> targets)
        : firstLinks_(std::move(firstLinks)), targets_(std::move(targets)) {}

    std::int32_t NodeCount() const { return static_cast<std::int32_t>(firstLinks_.size()) - 1; }
    std::int32_t LinkCount() const { return static_cast<std::int32_t>(targets_.size()); }
    LinkRange LinksOf(std::int32_t node) const { return {At(firstLinks_, node), At(firstLinks_, node + 1)}; }
    /// The node that a link leads to, kNobody when it was removed.
    std::int32_t Target(std::int32_t link) const { return At(targets_, link); }
    void Remove(std::int32_t link) { At(targets_, link) = kNobody; }
    /// Calls `visit(source, link)` for every link that leads to somebody, node by node.
    template <class Visitor>
    void VisitLinks(Visitor visit) const {
        for (std::int32_t node = 0; node < NodeCount(); ++node) {
            const LinkRange links = LinksOf(node);
            for (std::int32_t link = links.first; link < links.last; ++link) {
                if (Target(link) != kNobody) visit(node, link);
            }
        }
    }

  private:
    std::vector<std::int32_t> firstLinks_{0};
    std::vector<std::int32_t> targets_;
};

}  // namespace swiftroll::modKinship
