#pragma once

#include <map>

#include "list/row_filter.h"
#include "shell/list_commands.h"
#include "tables/schema.h"

namespace swiftroll {

/// The filters of the lists, one for each table. They hide rows from the eye alone: what a command says of
/// all rows, it does with all of them. A row that a command goes to is seen: it lifts a filter that hides it.
class ListFilters {
  public:
    ListFilters(TableSet& tables, ListCommands& commands);
    ListFilters(const ListFilters&) = delete;
    ListFilters& operator=(const ListFilters&) = delete;

    RowFilter& Of(const Table& table) { return filters_.at(&table); }
    /// For the presentation: the user wants to write a filter for the list in front.
    std::function<void()> OnFilterWanted;

  private:
    std::map<const Table*, RowFilter> filters_;
};

}  // namespace swiftroll
