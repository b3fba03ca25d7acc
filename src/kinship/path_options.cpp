#include "kinship/path_options.h"

#include <algorithm>

namespace swiftroll::modKinship {
namespace {

/// The number at the beginning of a text; 0 when there is none.
std::int32_t LeadingNumber(TextView text) {
    std::int64_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        number = std::min<std::int64_t>(number * 10 + (c - '0'), std::numeric_limits<std::int32_t>::max());
    }
    return static_cast<std::int32_t>(number);
}

}  // namespace

PathLimits LimitsOf(const OptionRecord& options) {
    PathLimits limits;
    if (options.chkMaxSpouses.Checked()) limits.marriages = LeadingNumber(options.txtMaxSpouses.Get());
    if (options.chkMaxLinks.Checked()) limits.lines = LeadingNumber(options.txtMaxLinks.Get());
    return limits;
}

std::int32_t NearestCount(const OptionRecord& options) {
    const std::int32_t count = LeadingNumber(options.txtNearest.Get());
    return count > 0 ? count : LeadingNumber(OptionRecord::kDefaultNearest);
}

}  // namespace swiftroll::modKinship
