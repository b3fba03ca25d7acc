#pragma once

#include "kinship/kin_terms.h"
#include "kinship/parentage.h"

namespace swiftroll::modKinship {

/// Somebody of one's own blood, by the nearest relation.
struct BloodRelative {
    std::int32_t individual;
    BloodLine line;
    /// Whom both descend from by this relation, in the order of their numbers; in a line straight up or down,
    /// the elder one.
    std::vector<std::int32_t> ancestors;
};

/// All blood relatives of an individual up to a civil degree, each once: by the relation of the lowest civil
/// degree, then of the lowest canonical one, then with fewer generations up. Ordered likewise, and among
/// equals by their numbers. Everybody is visited once at each number of generations up that is as near.
std::vector<BloodRelative> FindBloodRelatives(const Parentage& parentage, std::int32_t individual,
                                              std::int32_t mostCivil);

}  // namespace swiftroll::modKinship
