#include "dates.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "decimal.h"
#include "windows_1252.h"

namespace bench {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                      "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
constexpr std::array<int, 13> kMonthStarts = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
constexpr std::array<std::string_view, 13> kRepublicanMonths = {
    "VEND", "BRUM", "FRIM", "NIVO", "PLUV", "VENT", "GERM", "FLOR", "PRAI", "MESS", "THER", "FRUC", "COMP"};

// The republican calendar as it was kept in the registers.
constexpr int kFirstRepublicanYear = 1793;
constexpr int kLastRepublicanYear = 1805;
// The Julian and Gregorian years overlapped in the registers up to the middle of the 18th century.
constexpr int kLastDualYear = 1751;
constexpr int kLastDualDay = 83;  // 25 March

std::size_t MonthOf(int dayOfYear) {
    const auto next = std::upper_bound(kMonthStarts.begin(), kMonthStarts.end(), dayOfYear);
    return static_cast<std::size_t>(next - kMonthStarts.begin()) - 1;
}

void AppendMonthAndYear(std::string& out, EventDay day) {
    out.append(kMonths[MonthOf(day.dayOfYear)]).push_back(' ');
    AppendNumber(out, day.year);
}

void AppendExact(std::string& out, EventDay day) {
    AppendNumber(out, day.dayOfYear - kMonthStarts[MonthOf(day.dayOfYear)] + 1);
    out.push_back(' ');
    AppendMonthAndYear(out, day);
}

void AppendDual(std::string& out, EventDay day) {
    AppendExact(out, {day.year - 1, day.dayOfYear});
    out.push_back('/');
    const int shortYear = day.year % 100;
    if (shortYear < 10) {
        out.push_back('0');
    }
    AppendNumber(out, shortYear);
}

int LeapDaysBefore(int year) { return (year - 1) / 4 - (year - 1) / 100 + (year - 1) / 400; }

// Days of the Gregorian calendar since an arbitrary origin.
int GregorianDays(EventDay day) {
    const bool leap = LeapDaysBefore(day.year + 1) != LeapDaysBefore(day.year);
    const int leapDay = leap && day.dayOfYear >= kMonthStarts[2] ? 1 : 0;
    return day.year * kDaysPerYear + LeapDaysBefore(day.year) + day.dayOfYear + leapDay;
}

void AppendRepublican(std::string& out, EventDay day) {
    constexpr EventDay kFirstDay = {1792, 264};  // 22 September
    int left = GregorianDays(day) - GregorianDays(kFirstDay);
    int year = 1;
    const auto lengthOf = [](int republicanYear) { return republicanYear % 4 == 3 ? 366 : 365; };
    while (left >= lengthOf(year)) {
        left -= lengthOf(year);
        ++year;
    }
    out.append("@#DFRENCH R@ ");
    AppendNumber(out, left % 30 + 1);
    out.push_back(' ');
    out.append(kRepublicanMonths[static_cast<std::size_t>(left / 30)]).push_back(' ');
    AppendNumber(out, year);
}

void AppendCertain(std::string& out, EventDay day, Random& random) {
    if (day.year >= kFirstRepublicanYear && day.year <= kLastRepublicanYear && random.Chance(600)) {
        AppendRepublican(out, day);
    } else if (day.year <= kLastDualYear && day.dayOfYear <= kLastDualDay && random.Chance(200)) {
        AppendDual(out, day);
    } else {
        AppendExact(out, day);
    }
}

void AppendYearAfter(std::string& out, std::string_view qualifier, int year) {
    out.append(qualifier).push_back(' ');
    AppendNumber(out, year);
}

void AppendBetween(std::string& out, int year, Random& random) {
    AppendYearAfter(out, "BET", year - random.Between(0, 6));
    out.push_back(' ');
    AppendYearAfter(out, "AND", year + random.Between(1, 6));
}

void AppendPhrase(std::string& out, int year) {
    static const std::string kPhrase = ToWindows1252(" (vers la Saint-Jean d’été)");
    AppendYearAfter(out, "INT", year);
    out.append(kPhrase);
}

}  // namespace

void AppendDate(std::string& out, EventDay day, Random& random) {
    const std::uint32_t kind = random.Below(1000);
    if (kind < 760) {
        AppendCertain(out, day, random);
    } else if (kind < 830) {
        AppendNumber(out, day.year);
    } else if (kind < 860) {
        AppendMonthAndYear(out, day);
    } else if (kind < 920) {
        AppendYearAfter(out, "ABT", day.year);
    } else if (kind < 940) {
        AppendYearAfter(out, "BEF", day.year + 1);
    } else if (kind < 955) {
        AppendYearAfter(out, "AFT", day.year - 1);
    } else if (kind < 980) {
        AppendBetween(out, day.year, random);
    } else if (kind < 988) {
        AppendYearAfter(out, "EST", day.year);
    } else if (kind < 996) {
        AppendYearAfter(out, "CAL", day.year);
    } else {
        AppendPhrase(out, day.year);
    }
}

}  // namespace bench
