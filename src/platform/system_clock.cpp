#include "platform/system_clock.h"

#include <cstdlib>
#include <ctime>

#include "text/numbers.h"

namespace swiftroll::platform {
namespace {

std::tm BrokenDown(std::time_t time, bool utc) {
    std::tm parts{};
#ifdef _WIN32
    utc ? gmtime_s(&parts, &time) : localtime_s(&parts, &time);
#else
    utc ? gmtime_r(&time, &parts) : localtime_r(&time, &parts);
#endif
    return parts;
}

}  // namespace

SystemClock::SystemClock() {
    constexpr std::int64_t kYear1 = -62135596800, kYear10000 = 253402300800;
    const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
    const auto seconds = epoch == nullptr ? std::nullopt : ParseDecimal(epoch);
    if (seconds && *seconds >= kYear1 && *seconds < kYear10000) fixed_ = seconds;
}

Moment SystemClock::Now() {
    const std::tm t =
        BrokenDown(static_cast<std::time_t>(fixed_.value_or(std::time(nullptr))), fixed_.has_value());
    return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_wday, t.tm_hour, t.tm_min, t.tm_sec};
}

}  // namespace swiftroll::platform
