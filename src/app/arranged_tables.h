#pragma once

#include <limits>

#include "app/feedback.h"
#include "app/positions.h"

namespace swiftroll {

/// Width of the widest text of each column, for export in padded columns.
struct WidthTables {
    Widths lMaxLenIn, lMaxLenOut, lMaxLenXref, lMaxLenFamily, lMaxLenFamilyXref, lMaxLenKinship;
};

/// The year after which those are born who live, where nobody is asked to hide them.
inline constexpr std::int32_t kNobodyBornAfter = std::numeric_limits<std::int32_t>::max();

/// The tables with what is known of their columns: where each stands, and how wide its texts are.
struct ArrangedTables : TableSet, WidthTables {
    Positions positions;
    /// lvwOut was computed without those who live and were born after this year.
    std::int32_t lListedBornAfter = kNobodyBornAfter;

    /// Refreshes the position tables; what is wrong with the columns is told in a box.
    void InitIndexes(Feedback& feedback) { positions.InitIndexes(*this, feedback); }
};

}  // namespace swiftroll
