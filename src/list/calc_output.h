#pragma once

#include "app/arranged_tables.h"

namespace swiftroll::modCalcOut {

/// Computes the Relevé-vif: groups the individuals of `lvwIn` by the text columns that stand before `Number`
/// in `lvwOut`, and writes one row a group with its years and its count. `lvwIn` stands in group-key order
/// after. An empty `lvwIn` changes nothing.
void CalcOuptut(ArrangedTables& tables, Feedback& feedback);

}  // namespace swiftroll::modCalcOut
