#pragma once

#include <cstdint>
#include <optional>

#include "text/text.h"

namespace swiftroll {

/// The font of the cells of kinship drawings.
struct CellFont {
    Text name = "Arial";
    Text size = "8";  // points, as the user's language writes them
    bool bold = false, italic = false, strikethrough = false, underline = false;
    std::uint32_t colour = 0;  // 0x00BBGGRR
};

/// The font that a text of seven fields joined by "|" tells; nothing when there are fewer, or when the size
/// or the colour is no number.
std::optional<CellFont> ParseCellFont(TextView fields);
/// The text that tells it.
Text CellFontFields(const CellFont& font);
/// What a user reads: "Arial, 8 pt, Gras".
Text CellFontCaption(const CellFont& font);

}  // namespace swiftroll
