#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

using SurnameIndex = std::uint16_t;

/// A few thousand French-looking surnames in Windows-1252, the most frequent first; always the same list.
std::vector<std::string> ComposeSurnames();

}  // namespace bench
