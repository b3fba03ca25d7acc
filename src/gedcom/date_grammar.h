#pragma once

#include <cstdint>
#include <optional>

#include "gedcom/dates.h"

namespace swiftroll::modReadGedcom {

/// What a date is, where runs of four digits do not tell its years.
enum class DateKind : std::uint8_t { Plain, Republican, Hebrew, Julian, ShortYear, DualYear, BeforeChrist };
inline constexpr std::size_t kDateKinds = 7;
/// The words that say so behind "date": "du calendrier républicain". None for a plain one.
TextView DateKindWords(DateKind kind);

/// The years of a date and of what kind it is.
struct GrammarDate {
    Years years;
    DateKind kind = DateKind::Plain;
};

/// The years of a date value by GEDCOM's own grammar: calendars, named as up to version 5.5.1 or as in 7.0,
/// or told by their months; Republican years also as "an XII"; ranges, periods, years of one to three digits,
/// dual years (1699/00), "B.C.", which gives no year; a phrase in parentheses where it holds a date. Nothing
/// for what the grammar does not cover.
std::optional<GrammarDate> ReadDateGrammar(TextView value);

}  // namespace swiftroll::modReadGedcom
