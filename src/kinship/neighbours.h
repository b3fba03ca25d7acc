#pragma once

#include "kinship/link_graph.h"

namespace swiftroll::modKinship {

/// Undirected neighbours of each node, side by side.
class Neighbours {
  public:
    /// Pairs that are linked in both directions; a link to oneself is none.
    static Neighbours LinkedBothWays(const LinkGraph& graph);
    /// Pairs that are linked in one direction at least.
    static Neighbours LinkedEitherWay(const LinkGraph& graph);

    std::int32_t NodeCount() const { return static_cast<std::int32_t>(first_.size()) - 1; }
    LinkRange RangeOf(std::int32_t node) const { return {At(first_, node), At(first_, node + 1)}; }
    std::int32_t operator[](std::int32_t place) const { return At(neighbours_, place); }

  private:
    explicit Neighbours(const LinkGraph& graph, bool eitherWay);
    std::vector<std::int32_t> first_;
    std::vector<std::int32_t> neighbours_;
};

}  // namespace swiftroll::modKinship
