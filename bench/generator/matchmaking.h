#pragma once

#include <vector>

#include "customs.h"
#include "population.h"
#include "random.h"

namespace bench {

struct Couple {
    PersonIndex man;
    PersonIndex woman;
};

/// The persons of one village who may marry in one generation.
struct MarriagePool {
    std::vector<PersonIndex> men;
    std::vector<PersonIndex> women;
};

bool AreSiblings(const Population& population, PersonIndex one, PersonIndex other);

/// Pairs persons of suitable ages who are not siblings; the pool keeps those who found no one.
std::vector<Couple> MatchCouples(MarriagePool& pool, const Population& population, const Customs& customs,
                                 Random& random);

}  // namespace bench
