#pragma once

#include <string>
#include <string_view>

namespace bench {

/// The vocabularies are written in UTF-8 in the sources; the generated files are in Windows-1252.
std::string ToWindows1252(std::string_view utf8);

}  // namespace bench
