#pragma once

#include <cstdint>

#include "gedcom/dates.h"

namespace swiftroll::modReadGedcom {

enum class Calendar { Gregorian, Julian, Republican, Hebrew };

/// A date of a calendar as far as it is known. Months are numbered from 1: from January; from Vendémiaire,
/// the complementary days being the 13th; from Tishri, Adar II being the 7th in every year.
struct CalendarDate {
    Calendar calendar = Calendar::Gregorian;
    std::int32_t year = 0;
    int month = 0;  // 0: not known
    int day = 0;    // 0: not known
};

/// The Gregorian years of the first and of the last day that the date may be. A Julian year or month stands
/// for the Gregorian one of its name, since but for some days they are the same; a Julian day is converted.
/// None for a year that the calendar has not (the Republican one has 14), or that the tables cannot hold, 1
/// to 9999.
Years GregorianYears(const CalendarDate& date);

}  // namespace swiftroll::modReadGedcom
