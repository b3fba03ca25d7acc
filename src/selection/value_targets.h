#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <vector>

#include "app/application.h"
#include "selection/marker.h"

namespace swiftroll::modSelectionIn {

/// The way from a row that matches in a value mode to individuals of `lvwIn`.
struct Way {
    enum class Kind { None, Identifier, PathNumber, GroupKey };
    Kind kind = Kind::None;
    /// The columns whose identifiers are taken.
    std::vector<ColumnId> idColumns;
};

/// The way of a clicked column; none for a table that is not shown.
Way WayOf(const TableSet& tables, const Table& table, ColumnId iClickedCol);

/// Marks the individuals that the matching rows of a table lead to.
class ValueTargets {
  public:
    ValueTargets(Application& app, Table& table, const Way& way, Marker marker);

    /// Marks the individuals of a matching row; by group key they wait for `Finish`.
    void Take(const Row& row);
    /// Marks the individuals of the groups that were taken.
    void Finish();

  private:
    Application& app_;
    Marker marker_;
    Way::Kind kind_;
    std::vector<IdColumn> idColumns_;
    TextStore groupKeys_;
    boost::unordered_flat_set<TextView> groups_;  // texts of groupKeys_
    Text key_;                                    // reused to avoid allocation
};

}  // namespace swiftroll::modSelectionIn
