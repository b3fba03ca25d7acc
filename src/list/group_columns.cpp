#include "list/group_columns.h"

#include <algorithm>

#include "tables/columns.h"

namespace swiftroll::modCalcOut {

void PlaceBeforeNumber(Table& lvwOut, std::vector<Column*> columns) {
    columns.push_back(&lvwOut.ColumnAt(Out::Number));
    for (Column& column : lvwOut.Columns()) {
        if (std::find(columns.begin(), columns.end(), &column) == columns.end()) columns.push_back(&column);
    }
    std::int16_t position = 0;
    for (Column* column : columns) column->Position = ++position;
}

void PlaceDefaultGroups(Table& lvwOut) {
    std::vector<Column*> columns;
    for (const TextView key : kDefaultGroups) columns.push_back(lvwOut.FindColumn(key));
    PlaceBeforeNumber(lvwOut, std::move(columns));
}

bool StandInSchemaOrder(const Table& table) {
    std::int16_t position = 0;
    return std::all_of(table.Columns().begin(), table.Columns().end(),
                       [&](const Column& column) { return column.Position == ++position; });
}

}  // namespace swiftroll::modCalcOut
