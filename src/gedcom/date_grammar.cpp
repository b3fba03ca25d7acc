#include "gedcom/date_grammar.h"

#include <algorithm>
#include <array>

#include "gedcom/calendars.h"
#include "text/edit.h"
#include "text/fold.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYearDigits = 4;
constexpr std::size_t kDayDigits = 2;
constexpr int kLastDay = 31;
constexpr std::size_t kMonthLetters = 4;  // that GEDCOM has of the name of a Republican month

constexpr std::array<TextView, 12> kGregorianMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
constexpr std::array<TextView, 13> kHebrewMonths = {"TSH", "CSH", "KSL", "TVT", "SHV", "ADR", "ADS",
                                                    "NSN", "IYR", "SVN", "TMZ", "AAV", "ELL"};
constexpr std::array<TextView, 13> kRepublicanMonths = {
    "VENDEMIAIRE", "BRUMAIRE", "FRIMAIRE", "NIVOSE",    "PLUVIOSE",  "VENTOSE",        "GERMINAL",
    "FLOREAL",     "PRAIRIAL", "MESSIDOR", "THERMIDOR", "FRUCTIDOR", "COMPLEMENTAIRES"};
constexpr std::array<TextView, 14> kRepublicanYears = {"I",    "II", "III", "IV", "V",   "VI",   "VII",
                                                       "VIII", "IX", "X",   "XI", "XII", "XIII", "XIV"};

/// The number, from 1, of the first of `words` that `matches`; 0 when there is none.
template <class Words, class Match>
int NumberIn(const Words& words, const Match& matches) {
    const auto found = std::ranges::find_if(words, matches);
    return found == words.end() ? 0 : static_cast<int>(found - words.begin()) + 1;
}

template <class Words>
int NumberOf(const Words& words, TextView word) {
    return NumberIn(words, [word](TextView other) { return other == word; });
}

std::optional<std::int32_t> Number(TextView word, std::size_t mostDigits) {
    if (word.empty() || word.size() > mostDigits) return std::nullopt;
    if (word.find_first_not_of("0123456789") != TextView::npos) return std::nullopt;
    return ToLong(word);
}

struct Month {
    Calendar calendar = Calendar::Gregorian;
    int number = 0;
};

/// The month of a word in capitals; number 0 for any other word. Names of Republican months may be whole,
/// with their accents, or begun.
Month MonthOf(TextView word) {
    if (const int number = NumberOf(kGregorianMonths, word)) return {Calendar::Gregorian, number};
    if (const int number = NumberOf(kHebrewMonths, word)) return {Calendar::Hebrew, number};
    const Text plain = FoldAccents(word);
    if (plain.size() < kMonthLetters) return {};
    return {Calendar::Republican,
            NumberIn(kRepublicanMonths, [&plain](TextView name) { return name.starts_with(plain); })};
}

std::optional<Calendar> CalendarOf(TextView name) {
    if (name == "GREGORIAN") return Calendar::Gregorian;
    if (name == "JULIAN") return Calendar::Julian;
    if (name == "HEBREW") return Calendar::Hebrew;
    if (name == "FRENCH R" || name == "FRENCH_R") return Calendar::Republican;
    return std::nullopt;
}

/// Walks over the words of a date value, which are in capitals.
class Parser {
  public:
    explicit Parser(TextView value) : rest_(TrimLeft(value)) {}

    /// Reads the whole value; false when the grammar does not cover it.
    bool Read() {
        if (Take("BET")) return TakeDate() && Take("AND") && TakeDate() && rest_.empty();
        if (Take("FROM")) return TakeDate() && (!Take("TO") || TakeDate()) && rest_.empty();
        if (Take("INT"))
            return TakeDate() && (rest_.empty() || (rest_.starts_with('(') && rest_.ends_with(')')));
        if (!Take("TO") && !Take("BEF")) Take("AFT");
        return TakeDate() && rest_.empty();
    }
    const GrammarDate& Date() const { return date_; }

  private:
    TextView Word() const { return rest_.substr(0, rest_.find(' ')); }
    TextView WordBehind() const { return Parser(rest_.substr(Word().size())).Word(); }
    void Pass(std::size_t size) { rest_ = TrimLeft(rest_.substr(size)); }
    bool Take(TextView word) {
        if (Word() != word) return false;
        Pass(word.size());
        return true;
    }

    bool TakeDate();
    bool TakeCalendar();
    bool TakeDay();
    bool TakeMonth();
    bool TakeYear();
    void Note(DateKind kind) {
        if (date_.kind == DateKind::Plain) date_.kind = kind;
    }

    TextView rest_;
    GrammarDate date_;
    // The date in progress.
    std::optional<Calendar> calendar_;  // where it is known
    bool isTold_ = false;               // by its name
    CalendarDate present_;
};

bool Parser::TakeDate() {
    if (!Take("ABT") && !Take("CAL")) Take("EST");
    calendar_.reset();
    present_ = {};
    if (!TakeCalendar()) return false;
    isTold_ = calendar_.has_value();
    if (!TakeDay() || !TakeMonth()) return false;
    if ((Take("AN") || Take("L'AN")) && !calendar_) calendar_ = Calendar::Republican;
    present_.calendar = calendar_.value_or(Calendar::Gregorian);
    return TakeYear();
}

/// False for a calendar that is told but not known.
bool Parser::TakeCalendar() {
    constexpr TextView kEscape = "@#D";
    if (rest_.starts_with(kEscape)) {
        const std::size_t end = rest_.find('@', kEscape.size());
        if (end == TextView::npos) return false;
        calendar_ = CalendarOf(Trim(rest_.substr(kEscape.size(), end - kEscape.size())));
        Pass(end + 1);
        return calendar_.has_value();
    }
    calendar_ = CalendarOf(Word());
    if (calendar_) Pass(Word().size());
    return true;
}

/// A number is a day where a month follows. False for one that no month has.
bool Parser::TakeDay() {
    if (MonthOf(WordBehind()).number == 0) return true;
    const auto day = Word() == "1ER" ? 1 : Number(Word(), kDayDigits);
    if (!day) return true;
    present_.day = *day;
    Pass(Word().size());
    return *day >= 1 && *day <= kLastDay;
}

/// False for a month that the calendar has not.
bool Parser::TakeMonth() {
    const Month month = MonthOf(Word());
    if (month.number == 0) return true;
    const bool isOfJulian = calendar_ == Calendar::Julian && month.calendar == Calendar::Gregorian;
    if (!calendar_) calendar_ = month.calendar;
    present_.month = month.number;
    Pass(Word().size());
    return isOfJulian || calendar_ == month.calendar;
}

bool Parser::TakeYear() {
    const TextView word = Word();
    const std::size_t slash = word.find('/');
    const TextView first = word.substr(0, slash);
    std::optional<std::int32_t> year = Number(first, kYearDigits);
    const bool isRepublican = present_.calendar == Calendar::Republican;
    if (const int roman = isRepublican ? NumberOf(kRepublicanYears, word) : 0) year = roman;
    if (!year) return false;
    Pass(word.size());
    present_.year = *year;
    Years years = GregorianYears(present_);
    if (slash != TextView::npos) {
        // The year that begins in March, and as two digits the one that begins in January.
        const auto second = Number(word.substr(slash + 1), 2);
        if (first.size() < 3 || word.size() != slash + 3 || second != (*year + 1) % 100) return false;
        ++present_.year;
        years.Widen(GregorianYears(present_));
        Note(DateKind::DualYear);
    }
    const bool countsFromChrist =
        present_.calendar == Calendar::Gregorian || present_.calendar == Calendar::Julian;
    const bool isHebrew = present_.calendar == Calendar::Hebrew;
    if (countsFromChrist && (Take("B.C.") || Take("BCE") || Take("BC"))) {
        Note(DateKind::BeforeChrist);
        return true;
    }
    if (isRepublican) Note(DateKind::Republican);
    if (isHebrew) Note(years.AreNone() ? DateKind::BeforeChrist : DateKind::Hebrew);
    if (present_.calendar == Calendar::Julian) Note(DateKind::Julian);
    if (countsFromChrist && first.size() < kYearDigits) Note(DateKind::ShortYear);
    date_.years.Widen(years);
    return (isHebrew && isTold_) || !years.AreNone();
}

}  // namespace

TextView DateKindWords(DateKind kind) {
    constexpr std::array<TextView, kDateKinds> kWords = {
        {"", "du calendrier républicain"_t, "du calendrier hébraïque"_t, "du calendrier julien"_t,
         "à année de moins de quatre chiffres"_t, "à année double (1699/00)"_t, "avant notre ère"_t}};
    return kWords[static_cast<std::size_t>(kind)];
}

std::optional<GrammarDate> ReadDateGrammar(TextView value) {
    value = Trim(value);
    if (value.starts_with('(') && value.ends_with(')')) value = Trim(value.substr(1, value.size() - 2));
    const Text capitals = UpperCase(value);
    Parser parser(Trim(capitals));
    if (!parser.Read()) return std::nullopt;
    return parser.Date();
}

}  // namespace swiftroll::modReadGedcom
