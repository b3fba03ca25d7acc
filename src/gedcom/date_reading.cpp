#include "gedcom/date_reading.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::int32_t kLastYear = 2999;  // Hebrew years are greater

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }
bool IsWordOfThree(TextView text) {
    return text.size() >= 4 && IsLetter(text[0]) && IsLetter(text[1]) && IsLetter(text[2]) && text[3] == ' ';
}

/// The year of the dates that make up nearly all of a file: "1804", "JAN 1804", "12 JAN 1804", with a word
/// such as "ABT" before them or not. Every way to read a date agrees on them.
std::int32_t PlainYear(TextView value) {
    constexpr std::size_t kYearDigits = 4;
    constexpr std::int32_t kNone = -1;
    if (value.size() < kYearDigits) return kNone;
    std::int32_t year = 0;
    for (const char c : value.substr(value.size() - kYearDigits)) {
        if (!IsDigit(c)) return kNone;
        year = year * 10 + (c - '0');
    }
    if (year < 1 || year > kLastYear) return kNone;
    TextView before = value.substr(0, value.size() - kYearDigits);
    if (IsWordOfThree(before)) before.remove_prefix(4);
    if (before.size() >= 2 && IsDigit(before[0])) {
        before.remove_prefix(IsDigit(before[1]) ? 2 : 1);
        if (!before.starts_with(' ')) return kNone;
        before.remove_prefix(1);
    }
    if (IsWordOfThree(before)) before.remove_prefix(4);
    return before.empty() ? year : kNone;
}

/// The years of such a date, or of the range between two of them; none for any other value.
Years PlainYears(TextView value) {
    constexpr TextView kAnd = " AND ";
    const std::size_t end = value.starts_with("BET ") ? value.find(kAnd) : TextView::npos;
    const std::int32_t year = PlainYear(value.substr(0, end));
    if (year < 0) return {};
    Years years{year, year};
    if (end == TextView::npos) return years;
    const std::int32_t second = PlainYear(value.substr(end + kAnd.size()));
    if (second < 0) return {};
    years.Widen({second, second});
    return years;
}

/// Whether the grammar may find other years than those of four digits that were found. Most programs write
/// dates of one form of their own, such as "12/05/1804", and the grammar takes its time to refuse them all.
bool MayReadOtherwise(TextView value, const Years& found) {
    if (found.AreNone() || found.lYearMin < 1000 || found.lYearMax > kLastYear) return true;
    // "BET", "FROM"
    if (UpperCase(value.front()) == 'B' || UpperCase(value.front()) == 'F') return true;
    if (value.find("JULIAN") != TextView::npos) return true;
    if (!IsDigit(value.back())) return true;  // "B.C.", a phrase
    std::size_t digits = 0;
    for (const char c : value) {
        if (c == '@' || (c == '/' && digits >= 3)) return true;
        digits = IsDigit(c) ? digits + 1 : 0;
    }
    return false;
}

}  // namespace

DateReading ReadDate(TextView value, bool calendars) {
    if (const Years plain = PlainYears(value); !plain.AreNone()) return {plain};
    const Years years = GetYears(value);
    if (!MayReadOtherwise(value, years)) return {years};
    const auto grammar = ReadDateGrammar(value);
    if (!grammar) return {years};
    if (calendars) return {grammar->years, grammar->kind, false};
    return {years, grammar->kind, grammar->years != years};
}

Text NoYearReason(TextView value, const DateReading& reading) {
    if (!reading.years.AreNone() && !reading.isMisread) return {};
    if (reading.kind != DateKind::Plain) return Concat({"date "_t, DateKindWords(reading.kind)});
    const TextView trimmed = Trim(value);
    if (trimmed.empty()) return Text("date vide"_t);
    return Text(trimmed.starts_with('(') ? "texte libre sans année"_t : "aucune année n'y est reconnue"_t);
}

}  // namespace swiftroll::modReadGedcom
