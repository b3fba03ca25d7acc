#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "population.h"
#include "random.h"

namespace bench {

constexpr int kGenerations = 12;

/// How many persons every village has in every generation, and which villages exchange spouses.
class VillagePlan {
  public:
    VillagePlan(std::size_t personCount, std::uint64_t seed);

    std::size_t Count() const { return villages_.size(); }

    /// The sizes of all villages in all generations add up to the number of persons asked for.
    std::size_t Size(VillageIndex village, int generation) const;

    /// A neighbour to marry into; an isolated village has itself only, and stays an island of the graph.
    VillageIndex NeighbourOf(VillageIndex village, Random& random) const;

  private:
    struct Village {
        std::size_t persons;
        int firstGeneration;
        int generations;
        bool isolated;
    };

    std::vector<Village> villages_;
};

}  // namespace bench
