#include "gedcom/dates.h"

#include <algorithm>

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYearDigits = 4;

/// Order of two texts by byte values. Years are so short that a loop beats a call.
bool IsLess(TextView a, TextView b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
    });
}

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
        if (!year.empty() && IsLess(year, smallest)) smallest = year;
    }
    return smallest.data() == kLater.data() ? TextView() : smallest;
}

TextView TakeDateMax(TextView sBirth, TextView sDeath, TextView sMarr) {
    const TextView later = IsLess(sBirth, sDeath) ? sDeath : sBirth;
    return IsLess(later, sMarr) ? sMarr : later;
}

}  // namespace swiftroll::modReadGedcom
