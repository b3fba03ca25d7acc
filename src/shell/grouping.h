#pragma once

#include <optional>
#include <vector>

#include "app/application.h"

namespace swiftroll {

/// The order of the columns of lvwOut as what it means: the columns before `Number` that form groups, and
/// those of years there. Placing, adding and taking out one of them moves its column.
class Grouping {
  public:
    enum class Kind { Group, Year };

    explicit Grouping(Application& app) : app_(app) {}

    /// The columns of a kind before `Number`, and those behind it, each in their order on the screen.
    std::vector<ColumnId> Shown(Kind kind) const { return OfKind(kind, true); }
    std::vector<ColumnId> Others(Kind kind) const { return OfKind(kind, false); }
    /// The kind of a column; nothing for `Number`.
    static std::optional<Kind> KindOf(ColumnId column);
    /// What a column is called where the list is told in a line: "Min" for "Date Min".
    Text NameOf(ColumnId column) const;
    /// Whether a column stands behind `Number`, so that the list does not show it.
    bool IsLeftOut(ColumnId column) const;

    /// Makes a column the one at `place`, from 0, among those of its kind before `Number`; the last one for
    /// any greater place.
    void Place(ColumnId column, std::size_t place);
    /// Moves a column just behind `Number`.
    void TakeOut(ColumnId column);

    /// Whether the list was computed from other columns, options or individuals than those of now. False
    /// before the first computation, and while there is nobody to compute from.
    bool IsListStale() const;

  private:
    std::vector<ColumnId> OfKind(Kind kind, bool isShown) const;
    std::vector<ColumnId> InOrder() const;

    Application& app_;
};

}  // namespace swiftroll
