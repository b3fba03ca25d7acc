#include "numbering.h"

#include "register_order.h"

namespace bench {
namespace {

template <typename Item>
std::vector<std::int32_t> OrderByVillage(const std::vector<Item>& items, std::size_t villageCount,
                                         std::uint64_t seed) {
    std::vector<VillageIndex> villages;
    villages.reserve(items.size());
    for (const Item& item : items) {
        villages.push_back(item.village);
    }
    return RegisterOrder(villages, villageCount, seed);
}

std::vector<int> NumbersOf(const std::vector<std::int32_t>& itemAt) {
    std::vector<int> numbers(itemAt.size());
    int next = 1;
    for (const std::int32_t item : itemAt) {
        numbers[static_cast<std::size_t>(item)] = next++;
    }
    return numbers;
}

}  // namespace

Numbering NumberRecords(const Population& population, std::uint64_t seed) {
    Numbering numbering;
    numbering.personAt = OrderByVillage(population.persons, population.villageCount, seed);
    numbering.familyAt = OrderByVillage(population.families, population.villageCount, seed);
    numbering.numberOfPerson = NumbersOf(numbering.personAt);
    numbering.numberOfFamily = NumbersOf(numbering.familyAt);
    return numbering;
}

}  // namespace bench
