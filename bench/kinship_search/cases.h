#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "shell/frm_main.h"

namespace bench {

/// People from 0 and whom each is linked to, in both directions, in the order of the links. Paths are
/// searched from the first to `to`.
struct Graph {
    std::vector<std::vector<std::int32_t>> links;
    std::int32_t to;
};

/// Two sides of `rungs` people each, linked along the sides and across at every rung.
Graph Ladder(std::int32_t rungs);
/// A rectangle of people, each linked to those beside, above and below.
Graph Grid(std::int32_t width, std::int32_t height);
/// Groups of `size` people who are all linked to each other, each group joined by two links to the next; from
/// the middle group another one hangs that leads nowhere.
Graph Cliques(std::int32_t groups, std::int32_t size);
/// Generations of one person each.
Graph Chain(std::int32_t generations);
/// Everybody linked to everybody: a graph without dead ends.
Graph Complete(std::int32_t size);

/// Fills the tables as a read would: one island, everybody a child of those before.
void Fill(swiftroll::frmMain& main, const Graph& graph);

/// Pairs of people of the biggest island, each of a person and one as far away as can be.
std::vector<std::pair<std::string, std::string>> FarPairs(swiftroll::frmMain& main, std::size_t count);

}  // namespace bench
