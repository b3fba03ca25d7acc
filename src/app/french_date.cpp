#include "app/french_date.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kWeekdays[] = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"};
constexpr TextView kMonths[] = {"janvier"_t,   "février"_t, "mars"_t,     "avril"_t,
                                "mai"_t,       "juin"_t,    "juillet"_t,  "août"_t,
                                "septembre"_t, "octobre"_t, "novembre"_t, "décembre"_t};
constexpr TextView kShortMonths[] = {"janv."_t, "févr."_t, "mars"_t,  "avr."_t, "mai"_t,  "juin"_t,
                                     "juil."_t, "août"_t,  "sept."_t, "oct."_t, "nov."_t, "déc."_t};

Text TwoDigits(int number) { return Decimal(number, 2); }

TextView Month(const TextView (&names)[12], const Moment& moment) {
    return names[static_cast<std::size_t>(moment.month - 1) % 12];
}

}  // namespace

Text LongDate(const Moment& moment) {
    return Concat({kWeekdays[static_cast<std::size_t>(moment.weekday) % 7], " ", Decimal(moment.day), " ",
                   Month(kMonths, moment), " ", Decimal(moment.year)});
}

Text MediumDate(const Moment& moment) {
    return Concat(
        {TwoDigits(moment.day), "-", Month(kShortMonths, moment), "-", TwoDigits(moment.year % 100)});
}

Text ShortDate(const Moment& moment) {
    return Concat({TwoDigits(moment.day), "/", TwoDigits(moment.month), "/", Decimal(moment.year)});
}

Text LongTime(const Moment& moment) {
    return Concat({TwoDigits(moment.hour), ":", TwoDigits(moment.minute), ":", TwoDigits(moment.second)});
}

Text ShortTime(const Moment& moment) {
    return Concat({TwoDigits(moment.hour), ":", TwoDigits(moment.minute)});
}

}  // namespace swiftroll
