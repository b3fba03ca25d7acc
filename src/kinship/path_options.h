#pragma once

#include "app/option_record.h"
#include "kinship/path_limits.h"

namespace swiftroll::modKinship {

/// The limits beyond which the options hide a path.
PathLimits LimitsOf(const OptionRecord& options);

/// How many paths a search for the nearest gives, at least 1.
std::int32_t NearestCount(const OptionRecord& options);

}  // namespace swiftroll::modKinship
