#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "population.h"

namespace bench {

/// The order in which a genealogist would have entered the items: village by village, in an arbitrary order
/// of the villages, some items having come with another village. Without it neighbours in the graph would be
/// neighbours in the file, which flatters caches. Returns the item at each place.
std::vector<std::int32_t> RegisterOrder(const std::vector<VillageIndex>& villageOfItem,
                                        std::size_t villageCount, std::uint64_t seed);

}  // namespace bench
