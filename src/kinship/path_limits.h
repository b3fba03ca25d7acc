#pragma once

#include <cstdint>
#include <limits>

namespace swiftroll::modKinship {

/// The most marriages and lines that a path may have. The greatest number is no limit.
struct PathLimits {
    static constexpr std::int32_t kNone = std::numeric_limits<std::int32_t>::max();
    std::int32_t marriages = kNone;
    std::int32_t lines = kNone;
    bool Hide(std::int32_t itsMarriages, std::int32_t itsLines) const {
        return itsMarriages > marriages || itsLines > lines;
    }
};

}  // namespace swiftroll::modKinship
