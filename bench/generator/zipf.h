#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "random.h"

namespace bench {

/// Weight of the item at `rank` in a Zipf-Mandelbrot law, in integers so that every machine agrees.
constexpr std::uint32_t ZipfWeight(std::size_t rank, std::size_t offset) {
    return static_cast<std::uint32_t>(1'000'000 / (rank + offset));
}

/// Draws ranks 0..count-1 with a Zipf-like skew: the larger the offset, the flatter the head.
class ZipfTable {
  public:
    ZipfTable(std::size_t count, std::size_t offset);

    std::size_t Draw(Random& random) const;

  private:
    std::vector<std::uint32_t> cumulated_;
};

}  // namespace bench
