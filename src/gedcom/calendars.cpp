#include "gedcom/calendars.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace swiftroll::modReadGedcom {
namespace {

using Days = std::int64_t;  // from 1 January 1970, Gregorian

constexpr std::int32_t kLastYear = 9999;
constexpr int kLastRepublicanYear = 14;

std::int32_t GregorianYear(Days days) {
    const std::chrono::year_month_day date{
        std::chrono::sys_days{std::chrono::days{static_cast<std::int32_t>(days)}}};
    return static_cast<int>(date.year());
}

Days JulianDay(std::int32_t year, int month, int day) {
    // Years that begin in March have the leap day at their end.
    constexpr Days kEpoch = 2440588 + 32083;
    const int late = (14 - month) / 12;
    const Days y = Days{year} + 4800 - late;
    const int m = month + 12 * late - 3;
    return day + (153 * m + 2) / 5 + 365 * y + y / 4 - kEpoch;
}

/// The first day of a Republican year; the years III, VII and XI had a sixth complementary day.
Days RepublicanNewYear(std::int32_t year) {
    constexpr Days kEpoch = -64748;  // 22 September 1792
    return kEpoch + 365 * Days{year - 1} + year / 4;
}

/// Days from the epoch to the new moon of Tishri, moved from the days of the week that a year cannot begin
/// on.
Days HebrewMoon(std::int32_t year) {
    constexpr Days kPartsPerDay = 25920;
    const Days months = (235 * Days{year} - 234) / 19;
    const Days day = 29 * months + (12084 + 13753 * months) / kPartsPerDay;
    return 3 * (day + 1) % 7 < 3 ? day + 1 : day;
}

Days HebrewNewYear(std::int32_t year) {
    constexpr Days kEpoch = -2092590;
    const Days before = HebrewMoon(year - 1), present = HebrewMoon(year), after = HebrewMoon(year + 1);
    // No year has 356 or 382 days.
    Days moved = 0;
    if (after - present == 356) moved = 2;
    if (present - before == 382) moved = 1;
    return kEpoch + present + moved;
}

/// First and last day of a period.
struct Period {
    Days first, last;
};

/// `length` days from `first` on, or the one that is known of them.
Period DaysOf(Days first, int length, int day) {
    if (day == 0) return {first, first + length - 1};
    return {first + day - 1, first + day - 1};
}

Period RepublicanPeriod(const CalendarDate& date) {
    constexpr int kMonthLength = 30, kComplementary = 13;
    const Days newYear = RepublicanNewYear(date.year), next = RepublicanNewYear(date.year + 1);
    if (date.month == 0) return {newYear, next - 1};
    const Days first = newYear + kMonthLength * (date.month - 1);
    const int length = date.month == kComplementary ? static_cast<int>(next - first) : kMonthLength;
    return DaysOf(first, length, date.day);
}

Period HebrewPeriod(const CalendarDate& date) {
    const Days newYear = HebrewNewYear(date.year), next = HebrewNewYear(date.year + 1);
    if (date.month == 0) return {newYear, next - 1};
    const int length = static_cast<int>(next - newYear);
    const bool isLeap = length > 380;
    // Heshvan and Kislev make a year complete (355 or 385 days) or deficient (353 or 383).
    const int heshvan = length % 10 == 5 ? 30 : 29, kislev = length % 10 == 3 ? 29 : 30;
    const std::array<int, 13> lengths = {30, heshvan, kislev, 29, 30, isLeap ? 30 : 0, 29, 30,
                                         29, 30,      29,     30, 29};
    // A year without leap month has one Adar, under either name.
    const int month = !isLeap && date.month == 6 ? 7 : date.month;
    Days first = newYear;
    for (int m = 1; m < month; ++m) first += lengths[static_cast<std::size_t>(m - 1)];
    return DaysOf(first, lengths[static_cast<std::size_t>(month - 1)], date.day);
}

Years YearsOf(const Period& period) { return {GregorianYear(period.first), GregorianYear(period.last)}; }

Years AnyYears(const CalendarDate& date) {
    const bool isDayKnown = date.month != 0 && date.day != 0;
    switch (date.calendar) {
        case Calendar::Julian:
            if (!isDayKnown) break;
            return YearsOf(DaysOf(JulianDay(date.year, date.month, date.day), 1, 1));
        case Calendar::Republican:
            if (date.year > kLastRepublicanYear) return {};
            return YearsOf(RepublicanPeriod(date));
        case Calendar::Hebrew:
            return YearsOf(HebrewPeriod(date));
        case Calendar::Gregorian:
            break;
    }
    return {date.year, date.year};
}

}  // namespace

Years GregorianYears(const CalendarDate& date) {
    if (date.year < 1) return {};
    const Years years = AnyYears(date);
    const Years held = {std::max(years.lYearMin, 1), std::min(years.lYearMax, kLastYear)};
    return held.lYearMin <= held.lYearMax ? held : Years{};
}

}  // namespace swiftroll::modReadGedcom
