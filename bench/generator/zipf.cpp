#include "zipf.h"

#include <algorithm>

namespace bench {

ZipfTable::ZipfTable(std::size_t count, std::size_t offset) {
    cumulated_.reserve(count);
    std::uint32_t total = 0;
    for (std::size_t rank = 0; rank < count; ++rank) {
        total += ZipfWeight(rank, offset);
        cumulated_.push_back(total);
    }
}

std::size_t ZipfTable::Draw(Random& random) const {
    const std::uint32_t point = random.Below(cumulated_.back());
    const auto found = std::upper_bound(cumulated_.begin(), cumulated_.end(), point);
    return static_cast<std::size_t>(found - cumulated_.begin());
}

}  // namespace bench
