#include "shell/list_filters.h"

namespace swiftroll {

ListFilters::ListFilters(TableSet& tables, ListCommands& commands) {
    for (Table* table : tables.All()) {
        RowFilter& filter = filters_.emplace(table, *table).first->second;
        table->OnReveal = [&filter](const Row& row) {
            if (!filter.IsOn()) return;
            filter.Sync();
            if (filter.PlaceOf(row.Index()) < 0) filter.SetWanted({});
        };
    }
    commands.mnuFilter.Operation = [this] {
        if (OnFilterWanted) OnFilterWanted();
    };
}

}  // namespace swiftroll
