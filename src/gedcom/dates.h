#pragma once

#include <cstdint>

#include "text/text.h"

namespace swiftroll::modReadGedcom {

inline constexpr std::int32_t kNoYearMin = 99999;
inline constexpr std::int32_t kNoYearMax = -1;

/// The smallest and the largest year of a date value.
struct Years {
    std::int32_t lYearMin = kNoYearMin;
    std::int32_t lYearMax = kNoYearMax;
};

/// Every run of four digits in `sDate` is a year, whatever stands around it; months, keywords and calendars
/// mean nothing, so that ranges and dual dates give their extremes.
Years GetYears(TextView sDate);

/// The smallest or the largest of the non-empty years, compared as texts; empty when all are.
TextView TakeDateMin(TextView sBirth, TextView sDeath, TextView sMarr);
TextView TakeDateMax(TextView sBirth, TextView sDeath, TextView sMarr);

}  // namespace swiftroll::modReadGedcom
