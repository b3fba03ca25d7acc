#pragma once

#include <array>
#include <cstdint>

#include "gedcom/date_reading.h"

namespace swiftroll::modReadGedcom {

/// What a read met that its options kept it from, and where it stopped.
struct ReadFindings {
    /// By kind, dates that `chkCalendars` would read otherwise; `misreadYears` of them gave a year all the
    /// same.
    std::array<std::int32_t, kDateKinds> dates{};
    std::int32_t misreadYears = 0;
    /// Individuals whose birth or death lacks a year or a place that `chkFallbackEvents` would find.
    std::int32_t births = 0, deaths = 0;
    /// The line whose level of several digits ended the read; 0 when none did.
    std::int32_t endingLine = 0;

    void Note(const DateReading& date) {
        if (!date.isMisread) return;
        ++dates[static_cast<std::size_t>(date.kind)];
        if (!date.years.AreNone()) ++misreadYears;
    }
};

}  // namespace swiftroll::modReadGedcom
