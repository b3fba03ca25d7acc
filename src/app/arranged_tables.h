#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "app/feedback.h"
#include "app/positions.h"

namespace swiftroll {

/// Width of the widest text of each column, for export in padded columns.
struct WidthTables {
    Widths lMaxLenIn, lMaxLenOut, lMaxLenXref, lMaxLenFamily, lMaxLenFamilyXref, lMaxLenKinship;
};

/// The year after which those are born who live, where nobody is asked to hide them.
inline constexpr std::int32_t kNobodyBornAfter = std::numeric_limits<std::int32_t>::max();

/// What a computation of lvwOut depends on: it gives the same list as long as this is the same.
struct ListBasis {
    /// Number of times that lvwIn was cleared, and that its places and dates were made anew; its rows.
    std::uint32_t lInClearings = 0, lInDatesMade = 0;
    std::int32_t lInCount = 0;
    /// The columns before `Number`: those that form groups in their order, the years in that of the schema.
    std::vector<ColumnId> groups, years;
    /// Those who live and were born after this year are left out.
    std::int32_t lBornAfter = kNobodyBornAfter;
    bool operator==(const ListBasis&) const = default;
};

/// The tables with what is known of their columns: where each stands, and how wide its texts are.
struct ArrangedTables : TableSet, WidthTables {
    Positions positions;
    /// What lvwOut was computed from; nothing before the first computation.
    std::optional<ListBasis> listedFrom;
    /// Number of times that places and dates of lvwIn were made.
    std::uint32_t lInDatesMade = 0;

    /// Refreshes the position tables; what is wrong with the columns is told in a box.
    void InitIndexes(Feedback& feedback) { positions.InitIndexes(*this, feedback); }
};

}  // namespace swiftroll
