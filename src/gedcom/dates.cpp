#include "gedcom/dates.h"

#include <algorithm>

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYearDigits = 4;

}  // namespace

Years GetYears(TextView sDate) {
    Years years;
    std::size_t digits = 0;
    std::int32_t year = 0;
    for (std::size_t i = 0; i < sDate.size(); ++i) {
        const char c = sDate[i];
        if (c < '0' || c > '9') {
            digits = 0;
            year = 0;
            continue;
        }
        year = year * 10 + (c - '0');
        if (++digits < kYearDigits) continue;
        years.lYearMin = std::min(years.lYearMin, year);
        years.lYearMax = std::max(years.lYearMax, year);
        digits = 0;
        year = 0;
        ++i;  // the character behind a year does not begin another one
    }
    return years;
}

TextView TakeDateMin(TextView sBirth, TextView sDeath, TextView sMarr) {
    constexpr TextView kLater = "99999";
    TextView smallest = kLater;
    for (const TextView year : {sBirth, sDeath, sMarr}) {
        if (!year.empty() && year < smallest) smallest = year;
    }
    return smallest == kLater ? TextView() : smallest;
}

TextView TakeDateMax(TextView sBirth, TextView sDeath, TextView sMarr) {
    return std::max({sBirth, sDeath, sMarr});
}

}  // namespace swiftroll::modReadGedcom
