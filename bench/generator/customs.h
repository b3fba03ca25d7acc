#pragma once

#include <cstdint>

namespace bench {

/// How the villagers marry. The shares are per thousand.
struct Customs {
    std::uint32_t newcomers;      // of a generation: persons whose parents are unknown
    std::uint32_t leavers;        // of those who marry: into another village
    std::uint32_t cousinSeekers;  // of those who marry: look for a cousin first
};

constexpr Customs kOrdinaryCustoms = {.newcomers = 120, .leavers = 200, .cousinSeekers = 20};
constexpr Customs kManyCousinMarriages = {.newcomers = 30, .leavers = 40, .cousinSeekers = 800};

}  // namespace bench
