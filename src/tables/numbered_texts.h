#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "text/text.h"

namespace swiftroll {

/// Finds the numbers of interned texts of the form "@I123@", "INDI @I123@": letters, a number without leading
/// zeros and an "@". They are told by their number alone, in an array for each beginning: a file numbers its
/// records in nearly rising order, so that a look-up stays in memory that was just used and reads no text.
/// Texts of other forms, and numbers far beyond the count of their series, are not for this index.
class NumberedTexts {
  public:
    using Symbol = std::uint32_t;

    /// The place of a text that has the form.
    struct Place {
        std::uint64_t beginning;
        std::uint32_t number;
    };
    static std::optional<Place> PlaceOf(TextView text);

    /// The symbol at a place. When there is none, `*mayBeElsewhere` tells whether the text may still have
    /// been refused by `Insert`.
    std::optional<Symbol> Find(const Place& place, bool* mayBeElsewhere) const;
    /// Notes the symbol of a text; false when its number is too far beyond the others.
    bool Insert(const Place& place, Symbol symbol);

  private:
    static constexpr std::size_t kMostSeries = 16;
    static constexpr Symbol kNone = 0xFFFFFFFFu;

    struct Series {
        std::uint64_t beginning;
        std::vector<Symbol> symbols;  // by number
        std::size_t count = 0;
        bool hasRefused = false;
    };
    const Series* SeriesOf(std::uint64_t beginning) const;

    std::vector<Series> series_;
    bool hasRefusedSeries_ = false;
};

}  // namespace swiftroll
