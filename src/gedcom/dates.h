#pragma once

#include <array>
#include <cstdint>

#include "text/text.h"

namespace swiftroll::modReadGedcom {

inline constexpr std::int32_t kNoYearMin = 99999;
inline constexpr std::int32_t kNoYearMax = -1;

/// The smallest and the largest year of a date value.
struct Years {
    std::int32_t lYearMin = kNoYearMin;
    std::int32_t lYearMax = kNoYearMax;

    bool AreNone() const { return lYearMax < lYearMin; }
    /// Takes in the years of another date.
    void Widen(const Years& other);
    friend bool operator==(const Years&, const Years&) = default;
};

/// Every run of four digits in `sDate` is a year, whatever stands around it; months, keywords and calendars
/// mean nothing, so that ranges and dual dates give their extremes.
Years GetYears(TextView sDate);

/// The years of birth, death and marriage.
using EventYears = std::array<TextView, 3>;
/// How years are compared: as texts, in which "850" stands behind "1900", or as numbers.
enum class YearOrder { AsTexts, AsNumbers };
/// The place of the smallest or of the largest of the non-empty years; that of the birth when all are empty.
std::size_t TakeDateMin(const EventYears& years, YearOrder order);
std::size_t TakeDateMax(const EventYears& years, YearOrder order);

}  // namespace swiftroll::modReadGedcom
