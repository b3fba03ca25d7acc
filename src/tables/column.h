#pragma once

#include <vector>

#include "tables/columns.h"
#include "text/text.h"

namespace swiftroll {

/// A column of a table as the user has arranged it.
struct Column {
    /// What the schema says of it.
    const ColumnFacts* Facts = nullptr;
    ColumnId Index;
    Text Key;
    Text Caption;
    /// 1-based place on the screen.
    std::int16_t Position = 0;
    /// In hundredths of a millimetre; a column without width is hidden.
    std::int32_t Width = kColumnWidth;
    /// Four letters: "On"/"Of" (selected for export or not), then "No"/"Up"/"Dw" (no sort column, descending,
    /// ascending).
    Text Icon = "OnNo";

    /// Whether the column is switched on for export.
    bool IsOn() const { return Icon.starts_with("On"); }
    bool IsShown() const { return Width > 0; }
};

/// The columns of a table as they first stand.
std::vector<Column> MakeColumns(std::span<const ColumnFacts> facts);

}  // namespace swiftroll
