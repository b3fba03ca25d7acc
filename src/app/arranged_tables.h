#pragma once

#include "app/feedback.h"
#include "app/positions.h"

namespace swiftroll {

/// Width of the widest text of each column, for export in padded columns.
struct WidthTables {
    Widths lMaxLenIn, lMaxLenOut, lMaxLenXref, lMaxLenFamily, lMaxLenFamilyXref, lMaxLenKinship;
};

/// The tables with what is known of their columns: where each stands, and how wide its texts are.
struct ArrangedTables : TableSet, WidthTables {
    Positions positions;

    /// Refreshes the position tables; what is wrong with the columns is told in a box.
    void InitIndexes(Feedback& feedback) { positions.InitIndexes(*this, feedback); }
};

}  // namespace swiftroll
