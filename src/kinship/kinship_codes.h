#pragma once

#include <functional>

#include "app/trail.h"

namespace swiftroll::modKinship {

/// What a drawing makes of each row of a path: a way down to a child ("P", "p" right after a turn), a way up
/// to a parent ("E", "e" where the row after it turns down to a child of the same couple), a couple of one to
/// three cells ("C1" to "C3"), and nothing for the last row.
struct KinshipCodes {
    /// First and last row of the drawing.
    std::int32_t lFirst = 0;
    std::int32_t lLast = 0;
    /// The code of a row; empty for every row that is not drawn.
    TextView Of(std::int32_t row) const;

    std::vector<TextView> asCode;  // from lFirst on
};

/// Rows of `lvwKinship` by numbers that follow each other along a path.
using PathRows = std::function<Row(std::int32_t number)>;

/// The codes of a path from the row `lRow` on, which need not be its first. Beside spouses, `bSpouses`,
/// couples are wider. A row whose type shows no way forward, "ALIA" for one, ends the drawing.
/// @throws Failure when there is no such row
KinshipCodes MakeKinshipCodes(const PathRows& rowAt, std::int32_t lRow, bool bSpouses);
/// The same of the table, which stands in the order of `SeqNr`.
KinshipCodes MakeKinshipCodes(Table& lvwKinship, std::int32_t lRow, bool bSpouses);

/// What stands for a spouse who is not known.
inline constexpr TextView kUnknownID = "UnknownID";

/// The other spouse of a family: the wife of a man, the husband of a woman. `kUnknownID` when none is known,
/// or when there is no record of the one who is named; empty after a failure, which is reported.
Text GetSpouseID(TableSet& tables, Trail& trail, TextView sIndiID, TextView sFamID);

}  // namespace swiftroll::modKinship
