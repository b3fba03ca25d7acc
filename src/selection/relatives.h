#pragma once

#include <functional>
#include <optional>

#include "app/application.h"
#include "selection/marker.h"
#include "selection/row_lists.h"

namespace swiftroll::modSelectionIn {

/// Marks the relatives of individuals, and the members of families. What would be found by a walk of a whole
/// table for each of them is found by lists that are made when they are first needed; the order of the marks,
/// and so the failure that ends them, is that of the walk.
class Relatives {
  public:
    Relatives(Application& app, Marker marker) : app_(app), marker_(marker), store_(app.lvwIn.Store()) {}

    /// Marks the individual. @throws Failure KeyNotFound, as all of these do for an individual that lvwIn
    /// does not hold
    void MarkIndividual(TextRef sIndi);
    /// Marks the spouses of the first family in which the individual is a child.
    /// @throws Failure KeyNotFound also for a family that lvwFamily does not hold
    void MarkParents(TextRef sIndi);
    /// Marks those with whom the individual shares a family as a spouse, but not the individual.
    void MarkSpouses(TextRef sIndi);
    /// Marks the children of all families in which the individual is a spouse.
    void MarkChildren(TextRef sIndi);
    /// Marks the spouses of a family. @throws Failure KeyNotFound also for an unknown family
    void MarkFamilySpouses(TextRef sFam);
    /// Marks the children of a family.
    void MarkFamilyChildren(TextRef sFam);

    using Visitor = std::function<void(TextRef sId)>;
    /// Calls `visit` for those whom `MarkParents` and `MarkChildren` mark; a spouse who is not told is the
    /// empty identifier. @throws Failure KeyNotFound for a family that lvwFamily does not hold
    void VisitParents(TextRef sIndi, const Visitor& visit);
    void VisitChildren(TextRef sIndi, const Visitor& visit);

    /// The individual and the family worked on last.
    TextView Individual() const { return store_.Get(sIndi_); }
    TextView FamilyId() const { return store_.Get(sFam_); }

  private:
    void VisitFamilySpouses(TextRef sFam, const Visitor& visit);
    void VisitFamilyChildren(TextRef sFam, const Visitor& visit);
    Visitor Select() {
        return [this](TextRef sId) { marker_.SelectIn(sId); };
    }
    /// The rows of lvwFamily in which an individual is a spouse.
    const RowLists& FamilyRows();
    /// The rows of lvwFamilyXref that name children, by child and by family.
    const RowLists& ChildRows(std::optional<RowLists>& lists, ColumnId column);

    Application& app_;
    Marker marker_;
    TextStore& store_;
    TextRef sIndi_, sFam_;
    std::optional<RowLists> families_, origins_, children_;
};

}  // namespace swiftroll::modSelectionIn
