#pragma once

#include <cstddef>
#include <cstdint>

#include "customs.h"
#include "population.h"

namespace bench {

/// Lets villages live from the end of the 16th century to the 20th, generation by generation. A child always
/// belongs to a later generation than its parents: no one can be his own ancestor.
Population Simulate(std::size_t personCount, std::uint64_t seed, const Customs& customs);

}  // namespace bench
