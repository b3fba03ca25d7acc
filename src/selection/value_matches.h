#pragma once

#include "selection/row_lists.h"

namespace swiftroll::modSelectionIn {

/// How a value must compare to that of a marked row.
enum class Comparison { AtMost, Equal, AtLeast };

/// The rows of a table by their values. It gives each row once: what matched a value asked for before is done
/// already, so that all questions of a run together take no longer than the table is.
class ValueMatches {
  public:
    /// `values` has one text of `store` a row, all of them interned.
    ValueMatches(const TextStore& store, const std::vector<TextRef>& values, Comparison comparison);

    /// The rows, from 1, whose value compares as asked to that of `row`, and that were not given before.
    std::span<const std::int32_t> NewMatches(std::int32_t row);

  private:
    Comparison comparison_;
    std::vector<std::uint32_t> listOfRow_;  // equal values have equal numbers, ascending with the values
    RowLists lists_;
    std::size_t from_ = 0, to_ = 0;  // AtMost has not given the places from from_, AtLeast those before to_
    std::vector<bool> isGiven_;      // by list, for Equal
};

}  // namespace swiftroll::modSelectionIn
