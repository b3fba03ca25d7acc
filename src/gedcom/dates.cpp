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

std::size_t TakeDateMin(const EventYears& years) {
    std::size_t smallest = 0;
    for (std::size_t i = 1; i < years.size(); ++i) {
        if (years[i].empty()) continue;
        if (years[smallest].empty() || IsLess(years[i], years[smallest])) smallest = i;
    }
    return smallest;
}

std::size_t TakeDateMax(const EventYears& years) {
    std::size_t largest = 0;
    for (std::size_t i = 1; i < years.size(); ++i) {
        if (IsLess(years[largest], years[i])) largest = i;
    }
    return largest;
}

}  // namespace swiftroll::modReadGedcom
