#include "tables/numbered_texts.h"

#include <algorithm>

namespace swiftroll {
namespace {

constexpr std::size_t kLongestBeginning = 8;
constexpr std::size_t kMostDigits = 8;
// How far a number may lie beyond the count of its series: individuals name families of any number before the
// first family comes. Eight megabytes a series at most are lost to a file that does so in vain.
constexpr std::size_t kFirstNumbers = std::size_t{1} << 21;
constexpr std::size_t kSparseness = 4;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::optional<NumberedTexts::Place> NumberedTexts::PlaceOf(TextView text) {
    if (text.size() < 2 || text.back() != '@') return std::nullopt;
    std::size_t i = text.size() - 1;
    std::uint32_t number = 0;
    for (std::uint32_t unit = 1; i > 0 && IsDigit(text[i - 1]); unit *= 10) {
        --i;
        if (text.size() - 1 - i > kMostDigits) return std::nullopt;
        number += unit * static_cast<std::uint32_t>(text[i] - '0');
    }
    const std::size_t digits = text.size() - 1 - i;
    if (digits == 0 || (digits > 1 && text[i] == '0') || i > kLongestBeginning) return std::nullopt;
    std::uint64_t beginning = 0;
    for (std::size_t at = 0; at < i; ++at) {
        // A byte of 0 would make beginnings of different lengths alike.
        if (text[at] == 0) return std::nullopt;
        beginning = beginning << 8 | static_cast<unsigned char>(text[at]);
    }
    return Place{beginning, number};
}

const NumberedTexts::Series* NumberedTexts::SeriesOf(std::uint64_t beginning) const {
    for (const Series& series : series_) {
        if (series.beginning == beginning) return &series;
    }
    return nullptr;
}

std::optional<NumberedTexts::Symbol> NumberedTexts::Find(const Place& place, bool* mayBeElsewhere) const {
    const Series* series = SeriesOf(place.beginning);
    *mayBeElsewhere = series == nullptr ? hasRefusedSeries_ : series->hasRefused;
    if (series == nullptr || place.number >= series->symbols.size()) return std::nullopt;
    const Symbol symbol = series->symbols[place.number];
    if (symbol == kNone) return std::nullopt;
    return symbol;
}

bool NumberedTexts::Insert(const Place& place, Symbol symbol) {
    auto* series = const_cast<Series*>(SeriesOf(place.beginning));
    if (series == nullptr) {
        if (series_.size() == kMostSeries) {
            hasRefusedSeries_ = true;
            return false;
        }
        series = &series_.emplace_back(Series{place.beginning, {}, 0, false});
    }
    if (place.number >= series->symbols.size()) {
        const std::size_t limit = kFirstNumbers + kSparseness * series->count;
        if (place.number >= limit) {
            series->hasRefused = true;
            return false;
        }
        series->symbols.resize(std::min(limit, place.number + place.number / 2 + std::size_t{16}), kNone);
    }
    series->symbols[place.number] = symbol;
    ++series->count;
    return true;
}

}  // namespace swiftroll
