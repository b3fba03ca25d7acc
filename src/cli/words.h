#pragma once

#include <string>
#include <vector>

#include "text/text.h"

namespace swiftroll::cli {

/// Cuts a list at its commas; an empty text is the empty list.
std::vector<std::string> Words(const std::string& list);

/// A UTF-8 word of the command line as a Text. @throws UsageError when the code page lacks a character
Text TextOf(const std::string& word);

}  // namespace swiftroll::cli
