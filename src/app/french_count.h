#pragma once

#include <cstdint>

#include "text/text.h"

namespace swiftroll {

/// A count as the interface tells it: the digits in groups of three, "1 204".
Text FrenchCount(std::int64_t count);

/// So many tenths as the interface tells them: "2,1".
Text FrenchTenths(std::int64_t tenths);

/// The word for so many: in French one and zero take the singular.
constexpr TextView ForCount(std::int64_t count, TextView singular, TextView plural) {
    return count < 2 ? singular : plural;
}

}  // namespace swiftroll
