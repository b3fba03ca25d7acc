#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace bench {

/// SplitMix64. The distributions of the standard library differ from one implementation to the next, and the
/// generated files must be the same bytes everywhere: hence this generator and its integer-only draws.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// An independent stream for one item, so that its details need not be stored until they are written.
    Random(std::uint64_t seed, std::uint64_t stream, std::uint64_t item)
        : state_(Mix(seed + stream * kGolden) ^ Mix((item + 1) * kGolden)) {}

    std::uint64_t Next() {
        state_ += kGolden;
        return Mix(state_);
    }

    /// Uniform in [0, bound); bound must be positive.
    std::uint32_t Below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(((Next() >> 32) * bound) >> 32);
    }

    /// Uniform in [low, high], both included.
    int Between(int low, int high) {
        return low + static_cast<int>(Below(static_cast<std::uint32_t>(high - low + 1)));
    }

    bool Chance(std::uint32_t perThousand) { return Below(1000) < perThousand; }

  private:
    static constexpr std::uint64_t kGolden = 0x9E3779B97F4A7C15ULL;

    static std::uint64_t Mix(std::uint64_t z) {
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    std::uint64_t state_;
};

/// Fisher-Yates, since std::shuffle is free to draw as each library likes.
template <typename Container>
void Shuffle(Container& items, Random& random) {
    for (std::size_t left = items.size(); left > 1; --left) {
        const std::size_t chosen = random.Below(static_cast<std::uint32_t>(left));
        std::swap(items[left - 1], items[chosen]);
    }
}

}  // namespace bench
