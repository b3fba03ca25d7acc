#include "gedcom/dates.h"

#include <algorithm>

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYearDigits = 4;

/// Order of two texts by byte values. Years are so short that a loop beats a call.
bool IsLess(TextView a, TextView b, YearOrder order) {
    // Years have no leading zeros.
    if (order == YearOrder::AsNumbers && a.size() != b.size()) return a.size() < b.size();
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
    });
}

}  // namespace

void Years::Widen(const Years& other) {
    lYearMin = std::min(lYearMin, other.lYearMin);
    lYearMax = std::max(lYearMax, other.lYearMax);
}

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
        years.Widen({year, year});
        digits = 0;
        year = 0;
        ++i;  // the character behind a year does not begin another one
    }
    return years;
}

std::size_t TakeDateMin(const EventYears& years, YearOrder order) {
    std::size_t smallest = 0;
    for (std::size_t i = 1; i < years.size(); ++i) {
        if (years[i].empty()) continue;
        if (years[smallest].empty() || IsLess(years[i], years[smallest], order)) smallest = i;
    }
    return smallest;
}

std::size_t TakeDateMax(const EventYears& years, YearOrder order) {
    std::size_t largest = 0;
    for (std::size_t i = 1; i < years.size(); ++i) {
        if (IsLess(years[largest], years[i], order)) largest = i;
    }
    return largest;
}

}  // namespace swiftroll::modReadGedcom
