#pragma once

#include "tables/table.h"

namespace swiftroll {

/// A person of lvwIn as a choice shows it: "Dupont, Jean (1850-1910)"; years that are not known are left out.
Text NameAndYears(const RowView& person);

}  // namespace swiftroll
