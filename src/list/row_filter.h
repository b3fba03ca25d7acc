#pragma once

#include "list/word_finder.h"
#include "tables/table.h"

namespace swiftroll {

/// Which rows of a table are shown: all of them, or those that contain all words of a text in the columns
/// that are shown, case and accents aside. Marks and commands know nothing of it.
///
/// Rows are told by 1-based places in the table, what is shown of them by places from 0. A table that changes
/// is followed when `Sync` is called; until then, places may be those of other rows, or of none.
class RowFilter {
  public:
    explicit RowFilter(Table& table) : table_(table) {}

    /// The text as it was typed. One without letters and digits shows all rows.
    const Text& Wanted() const { return wanted_; }
    void SetWanted(TextView text);
    /// Whether some rows may be hidden.
    bool IsOn() const { return !words_.empty(); }
    /// Follows the table.
    void Sync();

    /// Number of rows that are shown, of rows that are hidden, and of marked ones among these.
    std::int32_t Count() const;
    std::int32_t HiddenCount() const { return table_.Count() - Count(); }
    std::int32_t HiddenMarkedCount();
    /// The row of the table at a place on the screen. @throws Failure IndexOutOfRange
    std::int32_t RowAt(std::int32_t place) const;
    /// Where a row stands on the screen, -1 for one that is hidden.
    std::int32_t PlaceOf(std::int32_t row) const;
    /// Grows with every change of what is shown, but for that of the table's own order.
    std::uint64_t Changes() const { return changes_; }

  private:
    void Search(bool narrows);
    void SearchAdded();
    std::vector<std::int16_t> ShownSections() const;
    void TakePlaces();

    Table& table_;
    Text wanted_;
    std::vector<Text> words_;
    std::vector<WordFinder> finders_;     // one for each word, while they are looked for in a text store
    std::vector<std::int16_t> sections_;  // that were searched
    std::vector<std::uint8_t> hits_;      // by row as it is stored
    std::vector<std::int32_t> rows_;      // those that are shown, ascending
    std::uint64_t changes_ = 0;
    // Of the table, when it was searched last.
    std::uint32_t seenClearings_ = 0;
    std::uint64_t seenCells_ = 0, seenOrder_ = 0;
    // Of what `hiddenMarked_` counts.
    std::uint64_t countedMarks_ = 0, countedChanges_ = 0;
    std::int32_t hiddenMarked_ = 0;
};

}  // namespace swiftroll
