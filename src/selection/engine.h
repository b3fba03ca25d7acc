#pragma once

#include "selection/context.h"
#include "selection/find.h"
#include "selection/lineage.h"
#include "selection/relatives.h"

namespace swiftroll::modSelectionIn {

/// Turns the marks of the rows of any table into marks of individuals in `lvwIn`, along family links or by
/// comparing values.
class Engine {
  public:
    explicit Engine(Application& app) : app_(app) {}

    SelectionContext context;
    FindState find;

    /// Adds to the marks of `lvwIn`, or with `bSelect` false removes from them, what the marked rows of
    /// `lvwActiveListView` lead to through the cell of the context: "I" the individuals, "P" their parents,
    /// "S" their spouses or those of the family, "C" their children or those of the family; "V<=", "V=" and
    /// "V>=" the rows whose value in the clicked column is at most, exactly or at least that of a marked row.
    /// "A" and "D" mark the ancestors and the descendants, up to so many generations.
    /// "?1" and "?N" go to the next row that the conditions of `find` tell, in the active table itself.
    ///
    /// But for those, a row counts as it is marked when its turn comes: on `lvwIn`, whom a row marks is
    /// himself followed further down, and whom a row unmarks no longer is. A failure, such as a family or an
    /// individual that no table holds, is reported; the marks made so far stay.
    void Add_Remove_Selection(bool bSelect, TextView sMode, std::int32_t lGenerations = kAllGenerations);

    /// Gives both marks to the individuals of the groups of all marked rows of `lvwOut`.
    void SelectGroups();

    /// Sets both marks of the individual of an identifier; an empty one is nobody.
    /// @throws Failure KeyNotFound
    void SelectIn(TextView sId, bool bSelect);

    /// The cell of a column; unless `bRaw`, in the form in which values are compared under `chkIgnoreCase`
    /// and `chkDelAccents`. @throws Failure IndexOutOfRange
    Text GetCell(const Row& row, ColumnId column, bool bRaw) const;

  private:
    void FollowLinks(Relatives& relatives, Table& table, TextView sMode);
    void FollowLineage(Relatives& relatives, Table& table, TextView sMode, bool bSelect,
                       std::int32_t lGenerations);
    void CompareValues(Table& table, TextView sMode, bool bSelect);

    Application& app_;
};

}  // namespace swiftroll::modSelectionIn
