#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <utility>
#include <vector>

namespace swiftroll::test {

/// Individuals from 1 and whom each is linked to, in order: what the searches below walk.
using PlainLinks = std::vector<std::vector<std::int32_t>>;
/// Links by the individuals at both ends.
using PlainPairs = std::set<std::pair<std::int32_t, std::int32_t>>;

/// The simplification of the links, step by step: an array of marks for each pass, every
/// neighbour list read anew. `goOn` is asked at every step; false gives up. Gives the links removed.
PlainPairs PlainRemoveIslands(PlainLinks& links, std::int32_t lFrom, std::int32_t lTo,
                              const std::function<bool()>& goOn);

/// The walk by plain backtracking. `onPath` gets every path as its individuals and tells whether to go on; so
/// does `goOn` at every visit.
void PlainWalk(const PlainLinks& links, std::int32_t lFrom, std::int32_t lTo,
               const std::function<bool(const std::vector<std::int32_t>&)>& onPath,
               const std::function<bool()>& goOn);

}  // namespace swiftroll::test
