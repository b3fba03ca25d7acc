#pragma once

#include "app/arranged_tables.h"
#include "privacy/living.h"

namespace swiftroll::modCalcOut {

/// Computes the Relevé-vif: groups the individuals of `lvwIn` by the text columns that stand before `Number`
/// in `lvwOut`, and writes one row a group with its years and its count. `lvwIn` stands in group-key order
/// after. Those who are hidden as living are in no group. An empty `lvwIn` changes nothing. False when there
/// was nothing to compute from, and after a failure.
bool CalcOuptut(ArrangedTables& tables, Feedback& feedback, const modPrivacy::Living& living);

/// What a computation would depend on now, when those are left out who live and were born after a year.
ListBasis BasisOf(const ArrangedTables& tables, std::int32_t lBornAfter);

/// Computes the list anew when it was computed with others hidden than now, so that no output shows somebody
/// whom the options hide since. The groups keep their marks.
void HideInList(ArrangedTables& tables, Feedback& feedback, const modPrivacy::Living& living);

}  // namespace swiftroll::modCalcOut
