#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "population.h"

namespace bench {

/// The numbers @I1@.. and @F1@.. of persons and families, and the order of their records in the file.
struct Numbering {
    std::vector<PersonIndex> personAt;
    std::vector<FamilyIndex> familyAt;
    std::vector<int> numberOfPerson;
    std::vector<int> numberOfFamily;
};

Numbering NumberRecords(const Population& population, std::uint64_t seed);

}  // namespace bench
