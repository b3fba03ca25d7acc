#include "villages.h"

#include <algorithm>
#include <numeric>

#include "places.h"
#include "zipf.h"

namespace bench {
namespace {

constexpr std::size_t kPersonsPerVillage = 250;
constexpr std::size_t kFlatteningOffset = 20;
constexpr std::size_t kPersonsPerGeneration = 20;  // of the smallest villages: fewer could not marry
constexpr int kFewestGenerations = 3;
constexpr std::uint32_t kIsolatedPerThousand = 120;
constexpr int kFarthestNeighbour = 6;

std::size_t VillageCountFor(std::size_t personCount) {
    return std::clamp<std::size_t>(personCount / kPersonsPerVillage, 1, kCommuneCount);
}

// Registers grow fuller as time goes: generation g weighs 10 + g.
std::size_t WeightBefore(int generation) {
    const auto g = static_cast<std::size_t>(generation);
    return 10 * g + g * (g - 1) / 2;
}

}  // namespace

VillagePlan::VillagePlan(std::size_t personCount, std::uint64_t seed) {
    Random random(seed, 'V', 0);
    std::vector<std::size_t> ranks(VillageCountFor(personCount));
    std::iota(ranks.begin(), ranks.end(), std::size_t{0});
    Shuffle(ranks, random);

    std::uint64_t totalWeight = 0;
    for (const std::size_t rank : ranks) {
        totalWeight += ZipfWeight(rank, kFlatteningOffset);
    }
    std::uint64_t weightSoFar = 0;
    std::size_t personsSoFar = 0;
    for (const std::size_t rank : ranks) {
        weightSoFar += ZipfWeight(rank, kFlatteningOffset);
        const auto personsUpTo = static_cast<std::size_t>(personCount * weightSoFar / totalWeight);
        const std::size_t persons = personsUpTo - personsSoFar;
        personsSoFar = personsUpTo;
        const int generations =
            std::clamp(static_cast<int>(persons / kPersonsPerGeneration), kFewestGenerations, kGenerations);
        const int firstGeneration = random.Between(0, kGenerations - generations);
        villages_.push_back({persons, firstGeneration, generations, random.Chance(kIsolatedPerThousand)});
    }
}

std::size_t VillagePlan::Size(VillageIndex village, int generation) const {
    const Village& plan = villages_[village];
    const int own = generation - plan.firstGeneration;
    if (own < 0 || own >= plan.generations) {
        return 0;
    }
    const std::size_t total = WeightBefore(plan.generations);
    return plan.persons * WeightBefore(own + 1) / total - plan.persons * WeightBefore(own) / total;
}

VillageIndex VillagePlan::NeighbourOf(VillageIndex village, Random& random) const {
    if (villages_[village].isolated) {
        return village;
    }
    const int shifted = village + random.Between(-kFarthestNeighbour, kFarthestNeighbour);
    const int last = static_cast<int>(villages_.size()) - 1;
    const auto neighbour = static_cast<VillageIndex>(std::clamp(shifted, 0, last));
    return villages_[neighbour].isolated ? village : neighbour;
}

}  // namespace bench
