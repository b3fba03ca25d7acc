#pragma once

#include "app/application.h"
#include "text/literal.h"

namespace swiftroll::modSelectionIn {

/// What is told when no row is found.
inline constexpr TextView kNotFound = "Non trouvé !"_t;

/// What a cell must hold: a text, as a whole, at its beginning or anywhere. An empty text begins every cell,
/// and stands anywhere in those that are not empty.
struct FindCondition {
    enum class Match { Whole, Beginning, Anywhere };
    Text text;
    Match match = Match::Beginning;

    /// Whether a cell holds the text; both in their comparison forms.
    bool Holds(TextView sCell) const;
};

/// The search for rows by the text of one column, or two: its conditions, and where it has come to.
struct FindState {
    FindCondition first, second;
    /// The column of the second condition; that of the first is the clicked one.
    ColumnId iSecondCol = ColumnId::OfSection(0);
    /// Index of the row at which the next search begins; 0 before the first.
    std::int32_t lFindNext = 0;
    /// Whether the last search found a row; true before the first.
    bool bFound = true;

    /// Goes to the next row of the table in which the column `iFirstCol` holds the text of the first
    /// condition, and the second column that of the second unless it is empty. The row gets `Selected`, is
    /// scrolled into view and becomes the current one, and the next search begins behind it; without one
    /// nothing changes. The message line tells which. @throws Failure IndexOutOfRange for a column that the
    /// table lacks
    void FindNext(Application& app, Table& table, ColumnId iFirstCol);
};

}  // namespace swiftroll::modSelectionIn
