#pragma once

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modCheck {

/// A piece of the file as a finding shows it: between quotes, and no longer than a line of a list.
inline Text Quoted(TextView text) {
    constexpr std::size_t kMost = 80;
    constexpr TextView kOpening = "«\u00A0"_t, kClosing = "\u00A0»"_t;
    return Concat({kOpening, text.substr(0, kMost), text.size() > kMost ? "..." : "", kClosing});
}

}  // namespace swiftroll::modCheck
