#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "shell/frm_main.h"

namespace bench {

/// People from 0 and whom each is linked to, in both directions, in the order of the links.
using People = std::vector<std::vector<std::int32_t>>;

/// Two sides of `rungs` people each, linked along the sides and across at every rung.
People Ladder(std::int32_t rungs);
/// A rectangle of people, each linked to those beside, above and below.
People Grid(std::int32_t width, std::int32_t height);
/// Groups of `size` people who are all linked to each other, each group joined by two links to the next; from
/// the middle group another one hangs that leads nowhere.
People Cliques(std::int32_t groups, std::int32_t size);
/// Generations of one person each.
People Chain(std::int32_t generations);
/// Everybody linked to everybody: a graph without dead ends.
People Complete(std::int32_t size);

/// Fills the tables as a read would: one island, everybody a child of those before.
void Fill(swiftroll::frmMain& main, const People& people);

/// Pairs of people of the biggest island, each of a person and one as far away as can be.
std::vector<std::pair<std::string, std::string>> FarPairs(swiftroll::frmMain& main, std::size_t count);

}  // namespace bench
