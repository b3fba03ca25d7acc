#pragma once

#include "tables/schema.h"

namespace swiftroll::modSelectionIn {

/// Gives individuals of `lvwIn` both marks, or takes both: one of the two for a whole run. Marking somebody
/// twice is marking him once, on which all shortcuts of the engine rest.
class Marker {
  public:
    Marker(Table& lvwIn, bool bSelect) : in_(lvwIn), bSelect_(bSelect) {}

    /// Marks a row.
    void Mark(Row row) const {
        row.SetSelected(bSelect_);
        row.SetChecked(bSelect_);
    }
    /// Marks the individual of an identifier of the store of `lvwIn`; one that it does not hold is passed
    /// over, and the empty one too.
    void MarkIfKnown(TextRef id) const {
        if (const auto row = in_.Find(RowKey(id))) Mark(*row);
    }
    /// The same, but the identifier must be known. @throws Failure KeyNotFound
    void SelectIn(TextRef id) const {
        if (id.IsEmpty()) return;
        const auto row = in_.Find(RowKey(id));
        if (!row) throw Failure(FailureKind::KeyNotFound, in_.Store().Get(id));
        Mark(*row);
    }

  private:
    Table& in_;
    bool bSelect_;
};

/// A column of identifiers of any table, read as references into the store of `lvwIn`, so that they can be
/// compared and looked up without a text.
class IdColumn {
  public:
    /// A column that the table does not have fails when a cell is read.
    IdColumn(Table& table, ColumnId column, TextStore& store)
        : column_(column), store_(store), isShared_(&table.Store() == &store) {}

    /// The identifier in a row of the table. @throws Failure IndexOutOfRange
    TextRef Of(const Row& row) const {
        const TextRef ref = row.Ref(column_);
        return isShared_ && ref.IsInterned() ? ref : store_.Intern(row.Cell(column_));
    }

  private:
    ColumnId column_;
    TextStore& store_;
    bool isShared_;
};

}  // namespace swiftroll::modSelectionIn
