#pragma once

#include <string>

#include "random.h"

namespace bench {

constexpr int kDaysPerYear = 365;  // no event of a generated file falls on a 29 February

struct EventDay {
    int year;
    int dayOfYear;  // 0..364
};

/// Appends the value of a DATE line, of one of the kinds met in genealogists' files: exact, partial, about,
/// period, dual year, French republican calendar, phrase.
void AppendDate(std::string& out, EventDay day, Random& random);

}  // namespace bench
