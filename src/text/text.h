#pragma once

#include <string>
#include <string_view>

namespace swiftroll {

/// Every text of the core: Windows-1252 bytes, one byte a character.
using Text = std::string;
using TextView = std::string_view;

/// The line end of the product's own texts: boxes, log, XML lines. Presentations show it as their own.
inline constexpr TextView kLineEnd = "\r\n";

}  // namespace swiftroll
