#pragma once

#include "privacy/living.h"

namespace swiftroll::modKinship {

/// The civil degree up to which relatives are looked for unless somebody wants others.
inline constexpr std::int32_t kUsualDegree = 8;

/// Fills `lvwRelatives` with the blood relatives of the individual in the `lvwIn` row `lRow` up to a civil
/// degree, one row each: by the nearest relation, the nearest relatives first, and without those who are
/// hidden as living. @throws Failure IndexOutOfRange
void ListRelatives(TableSet& tables, std::int32_t lRow, std::int32_t mostCivil,
                   const modPrivacy::Living& living);

}  // namespace swiftroll::modKinship
