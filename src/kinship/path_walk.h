#pragma once

#include <span>

#include "kinship/link_graph.h"

namespace swiftroll::modKinship {

/// What a walk tells, and asks whether to go on.
class PathVisitor {
  public:
    virtual ~PathVisitor() = default;
    /// A node was entered as the `length`-th of the present path. False ends the walk.
    virtual bool Visit(std::int32_t length) = 0;
    /// The target was reached over these links, from the first node on. False ends the walk.
    virtual bool Found(std::span<const std::int32_t> links) = 0;
    /// The walk has been looking for its next path for some thousand steps. False ends it.
    virtual bool GoOn() = 0;
};

/// Enumerates all simple paths from one node to another, in the order of plain backtracking that tries the
/// links of a node in their order, without ever entering a branch that leads to no further path.
///
/// Before it enters anything the walk looks ahead for the next path, in the same order. A node from which the
/// search had to turn back is dead: every way from it to the target passes the present path. It stays dead
/// until a node of the path is left that it leads to, directly or through dead nodes (D. B. Johnson, "Finding
/// all the elementary circuits of a directed graph", 1975). So each link is looked at once at most between
/// two paths for each of its ends, whatever the graph, and what is found is entered without further search.
class PathWalk {
  public:
    /// `graph` must outlive the walk.
    PathWalk(const LinkGraph& graph, std::int32_t from, std::int32_t to);

    /// Walks to the end or until the visitor ends it. A chain of any length costs no recursion.
    void Run(PathVisitor& visitor);

  private:
    enum class State : std::uint8_t { Free, OnPath, Dead };
    struct Step {
        std::int32_t node;
        std::int32_t nextLink;
    };
    bool LookForTarget(PathVisitor& visitor);
    void Enter(std::int32_t node);
    void Leave();
    void Revive(std::int32_t node);
    bool TellPath(PathVisitor& visitor);

    const LinkGraph& graph_;
    std::int32_t from_, to_;
    // The nodes whose links lead to each node: from firstOrigin_[node] on, up to that of the next node.
    std::vector<std::int32_t> firstOrigin_, origins_;
    std::vector<State> states_;
    std::vector<std::uint8_t> bars_;  // whether a dead node may lead to the node
    std::vector<Step> path_;          // entered, and beyond `entered_` only looked at
    std::size_t entered_ = 0;
    std::vector<std::int32_t> pathLinks_, toRevive_;  // kept for their memory
    std::uint32_t steps_ = 0;
};

}  // namespace swiftroll::modKinship
