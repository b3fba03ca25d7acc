#include "tables/column_icon.h"

namespace swiftroll {

void SetColumnIcon(Table& table, Column& column, bool bResetOthers) {
    if (bResetOthers) {
        for (Column& other : table.Columns()) {
            const bool hasMark =
                other.Icon.ends_with("No") || other.Icon.ends_with("Up") || other.Icon.ends_with("Dw");
            other.Icon = hasMark ? other.Icon.substr(0, 2) + "No" : "OnNo";
        }
    }
    const bool isSortColumn = table.Sorted() && table.SortKey() == column.Index;
    column.Icon = column.Icon.substr(0, 2) + (!isSortColumn ? "No" : table.SortOrder() == 0 ? "Dw" : "Up");
}

void SetAllColumnIcons(TableSet& tables) {
    for (Table* table : tables.Shown()) {
        for (Column& column : table->Columns()) SetColumnIcon(*table, column, false);
    }
}

}  // namespace swiftroll
