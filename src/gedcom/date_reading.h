#pragma once

#include "gedcom/date_grammar.h"

namespace swiftroll::modReadGedcom {

/// The years that a read takes from a date value.
struct DateReading {
    Years years;
    /// What the grammar finds the date to be, whether it was asked or not.
    DateKind kind = DateKind::Plain;
    /// Whether the years would be others if calendars were read.
    bool isMisread = false;
};

/// Reads a date value. `calendars`, as `chkCalendars` says: by GEDCOM's grammar, and by `GetYears` what it
/// does not cover; else by `GetYears` alone.
DateReading ReadDate(TextView value, bool calendars);

/// Why a value gave no year, or one that it does not mean, as the end of a French sentence: "date du
/// calendrier républicain"; empty when it gave its own. Those that are misread have it for `chkCalendars`.
Text NoYearReason(TextView value, const DateReading& reading);

}  // namespace swiftroll::modReadGedcom
