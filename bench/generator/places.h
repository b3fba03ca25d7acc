#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace bench {

using CommuneIndex = std::uint16_t;

constexpr std::size_t kCommuneCount = 4000;

struct Commune {
    std::string name;
    std::string place;  // all levels: "Commune, Département, Région, France"
};

/// kCommuneCount communes in Windows-1252, department by department; always the same list.
std::vector<Commune> ComposeCommunes();

}  // namespace bench
