#pragma once

#include "shell/list_filters.h"

namespace swiftroll {

/// Letters that the user types in a list lead to the next row that begins with them, in the column by which
/// the list is sorted, or else in the first one that is shown.
class TypeAhead {
  public:
    explicit TypeAhead(ListFilters& filters) : filters_(filters) {}

    /// Takes the next letters; those before are forgotten when `startsAnew`. Gives the row to go to, if there
    /// is one among those that are shown.
    std::optional<Row> Type(Table& table, TextView letters, bool startsAnew);

  private:
    ListFilters& filters_;
    Text typed_;
};

}  // namespace swiftroll
