#pragma once

#include <functional>

#include "kinship/link_graph.h"

namespace swiftroll::modKinshipOptimize {

/// Removes from `graph` the links that lead into parts from which `lTo` cannot be reached without coming
/// back: walks from `lFrom`, each node once, and at each node `lThis` that was reached from `lPrev` removes
/// the links to neighbours from which `lTo` cannot be reached without `lThis` and `lPrev`. Gives the links
/// removed, in that order.
///
/// `pause` is called again and again meanwhile; the walk ends where it stands when it gives false.
///
/// Near linear in the links: each question is answered by a CutTree in logarithmic time. Only next to links
/// that exist in one direction alone, which files that contradict themselves have, is a node explored.
std::vector<std::int32_t> RemoveIslands(modKinship::LinkGraph& graph, std::int32_t lFrom, std::int32_t lTo,
                                        const std::function<bool()>& pause);

}  // namespace swiftroll::modKinshipOptimize
