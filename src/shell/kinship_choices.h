#pragma once

#include <array>

#include "tables/table.h"
#include "text/literal.h"

namespace swiftroll {

/// Number of ways to read the marks of the rows of lvwIn, numbered from 1.
inline constexpr int kReadings = 6;
inline constexpr TextView kReadingCaptions[kReadings] = {"En Surbrillance mais NON Cochés"_t,
                                                         "Cochés mais NON En Surbrillance"_t,
                                                         "En Surbrillance ET Cochés"_t,
                                                         "En Surbrillance"_t,
                                                         "Cochés"_t,
                                                         "En Surbrillance OU Cochés"_t};

/// The rows of lvwIn that belong to each reading of their marks.
class KinshipChoices {
  public:
    /// Counts the marks of `lvwIn`; `row` tells how far it has come.
    void Define(Table& lvwIn, std::int32_t& row);

    std::int32_t CountOf(int iChoice) const { return lChoiceCount_[Place(iChoice)]; }
    /// The two rows of a reading that has exactly two, of one island; nothing for any other.
    struct Pair {
        std::int32_t first, second;
    };
    std::optional<Pair> PairOf(int iChoice, Table& lvwIn) const;

    /// Lines "  n Individu(s) " and the caption, for the readings from `first` to `last`.
    Text CountLines(int first, int last) const;

  private:
    static std::size_t Place(int iChoice) { return static_cast<std::size_t>(iChoice - 1); }
    void Count(int iChoice, std::int32_t row);

    std::array<std::int32_t, kReadings> lChoiceCount_{};
    std::array<Text, kReadings> sChoiceRows_;  // the first rows, each followed by "/"
};

}  // namespace swiftroll
