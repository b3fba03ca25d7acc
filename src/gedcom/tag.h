#pragma once

#include <cstdint>

#include "text/text.h"

namespace swiftroll::modReadGedcom {

/// A tag of up to eight characters as a number, so that a line is told by a switch; 0 for a longer one.
constexpr std::uint64_t TagCode(TextView tag) {
    if (tag.size() > sizeof(std::uint64_t)) return 0;
    std::uint64_t code = 0;
    for (const char c : tag) code = code << 8 | static_cast<unsigned char>(c);
    return code;
}

/// The tags of the records that a line of the same tag refers to, in the order in which an extract follows
/// them.
inline constexpr TextView kReferredTags[] = {"OBJE", "NOTE", "REPO", "SOUR", "SUBM", "SUBN"};

}  // namespace swiftroll::modReadGedcom
