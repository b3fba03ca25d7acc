#pragma once

#include "kinship/link_graph.h"

namespace swiftroll::modKinship {

/// The part of a link graph in which the paths between two nodes lie, its nodes numbered anew without gaps.
struct PathCore {
    /// Sets aside what lies on no simple path from `lFrom` to `lTo`: all that is not in the biconnected
    /// component of an edge between the two, and the links from the target on. Linear. The links keep their
    /// order. Where links exist in one direction alone, more may remain than paths can use.
    PathCore(const LinkGraph& whole, std::int32_t lFrom, std::int32_t lTo);

    LinkGraph graph;
    std::vector<std::int32_t> nodes;  // in the whole graph, by node here
    std::vector<std::int32_t> links;  // in the whole graph, by link here
    std::int32_t from = 0;
    std::int32_t to = 0;
};

}  // namespace swiftroll::modKinship
