#include "register_order.h"

#include <numeric>

#include "random.h"

namespace bench {
namespace {

constexpr std::uint32_t kEnteredElsewherePerThousand = 150;

}  // namespace

std::vector<std::int32_t> RegisterOrder(const std::vector<VillageIndex>& villageOfItem,
                                        std::size_t villageCount, std::uint64_t seed) {
    Random random(seed, 'R', 0);
    std::vector<VillageIndex> rankOfVillage(villageCount);
    std::iota(rankOfVillage.begin(), rankOfVillage.end(), VillageIndex{0});
    Shuffle(rankOfVillage, random);

    std::vector<VillageIndex> rankOfItem;
    rankOfItem.reserve(villageOfItem.size());
    std::vector<std::size_t> placeOfRank(villageCount + 1, 0);  // counted, then cumulated
    for (const VillageIndex village : villageOfItem) {
        const bool elsewhere = random.Chance(kEnteredElsewherePerThousand);
        const auto rank =
            elsewhere ? static_cast<VillageIndex>(random.Below(static_cast<std::uint32_t>(villageCount)))
                      : rankOfVillage[village];
        rankOfItem.push_back(rank);
        ++placeOfRank[rank + std::size_t{1}];
    }
    std::partial_sum(placeOfRank.begin(), placeOfRank.end(), placeOfRank.begin());

    std::vector<std::int32_t> itemAt(villageOfItem.size());
    for (std::size_t item = 0; item < rankOfItem.size(); ++item) {
        itemAt[placeOfRank[rankOfItem[item]]++] = static_cast<std::int32_t>(item);
    }
    return itemAt;
}

}  // namespace bench
