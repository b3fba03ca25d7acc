#pragma once

#include <cstdint>

#include "text/text.h"

namespace swiftroll {

enum class Alignment { Left, Right, Centre };

/// A column of a table. Its index is fixed by the schema; its position follows the user's arrangement.
struct Column {
    std::int16_t Index = 0;
    Text Key;
    Text Caption;
    Alignment Align = Alignment::Left;
    /// 1-based place on the screen.
    std::int16_t Position = 0;
    /// In hundredths of a millimetre.
    std::int32_t Width = 2540;
    /// Four letters: "On"/"Of" (selected for export or not), then "No"/"Up"/"Dw" (no sort column, descending,
    /// ascending).
    Text Icon = "OnNo";

    /// Whether the column is switched on for export.
    bool IsOn() const { return Icon.starts_with("On"); }
};

}  // namespace swiftroll
