#include "list/row_filter.h"

#include <algorithm>

#include "text/fold.h"

namespace swiftroll {
namespace {

std::vector<Text> WordsOf(TextView text) {
    std::vector<Text> words;
    const Text form = ComparisonForm(text);
    for (std::size_t start = 0; start < form.size();) {
        const std::size_t end = std::min(form.find(' ', start), form.size());
        words.push_back(form.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

/// Those of the columns that can hold a word: years have no letters.
std::vector<std::int16_t> SectionsFor(const Table& table, const std::vector<std::int16_t>& sections,
                                      TextView word) {
    std::vector<std::int16_t> possible = sections;
    if (word.find_first_not_of("0123456789") != TextView::npos) {
        std::erase_if(possible, [&](std::int16_t section) {
            return table.Columns()[static_cast<std::size_t>(section)].Facts->IsYear();
        });
    }
    return possible;
}

}  // namespace

void RowFilter::SetWanted(TextView text) {
    if (text == wanted_) return;
    Sync();
    wanted_ = text;
    std::vector<Text> words = WordsOf(text);
    if (words == words_) return;
    // Every former word stands in a word at its place: what is shown from now on was shown before.
    const bool narrows =
        IsOn() && !finders_.empty() && words.size() >= words_.size() &&
        std::equal(words_.begin(), words_.end(), words.begin(),
                   [](const Text& old, const Text& present) { return present.find(old) != Text::npos; });
    words_ = std::move(words);
    Search(narrows);
}

void RowFilter::Sync() {
    if (!IsOn()) return;
    const bool isSame = seenClearings_ == table_.Clearings() && sections_ == ShownSections();
    const bool sameOrder = seenOrder_ == table_.OrderChanges();
    if (!isSame) return Search(false);
    // Of rows that came, cells of others may have been written meanwhile.
    if (seenCells_ != table_.CellChanges()) return Search(false);
    if (hits_.size() < table_.StoredCount()) return SearchAdded();
    if (!sameOrder) TakePlaces();
}

/// `narrows`: only rows that are shown so far can be shown.
void RowFilter::Search(bool narrows) {
    if (!IsOn() || table_.Count() == 0) {
        finders_.clear();
        hits_ = {};
    } else {
        table_.NeedAll();
        sections_ = ShownSections();
        if (!narrows) {
            finders_.clear();
            hits_.assign(table_.StoredCount(), 1);
        }
        for (std::size_t i = 0; i < words_.size(); ++i) {
            if (i >= finders_.size()) {
                finders_.emplace_back(table_.Store(), words_[i]);
            } else if (finders_[i].Word() != words_[i]) {
                finders_[i].Extend(words_[i]);
            } else {
                continue;  // they contain it still
            }
            const auto sections = SectionsFor(table_, sections_, words_[i]);
            for (std::size_t stored = 0; stored < hits_.size(); ++stored) {
                if (hits_[stored] != 0 && !finders_[i].IsIn(table_.StoredCells(stored), sections))
                    hits_[stored] = 0;
            }
        }
    }
    TakePlaces();
}

/// Searches the rows alone that came since.
void RowFilter::SearchAdded() {
    if (finders_.empty()) return Search(false);
    table_.NeedAll();
    for (WordFinder& finder : finders_) finder.Grow();
    for (std::size_t stored = hits_.size(); stored < table_.StoredCount(); ++stored) {
        const bool isHit = std::ranges::all_of(
            finders_, [&](WordFinder& finder) { return finder.IsIn(table_.StoredCells(stored), sections_); });
        hits_.push_back(isHit ? 1 : 0);
    }
    TakePlaces();
}

void RowFilter::TakePlaces() {
    rows_ = IsOn() ? table_.PlacesOf(hits_) : std::vector<std::int32_t>();
    sections_ = ShownSections();
    seenClearings_ = table_.Clearings();
    seenCells_ = table_.CellChanges();
    seenOrder_ = table_.OrderChanges();
    ++changes_;
}

/// Of the columns that the user has not hidden.
std::vector<std::int16_t> RowFilter::ShownSections() const {
    std::vector<std::int16_t> sections;
    for (const Column& column : table_.Columns()) {
        if (column.IsShown()) sections.push_back(static_cast<std::int16_t>(column.Index.Section()));
    }
    return sections;
}

std::int32_t RowFilter::Count() const {
    return IsOn() ? static_cast<std::int32_t>(rows_.size()) : table_.Count();
}

std::int32_t RowFilter::RowAt(std::int32_t place) const {
    if (place < 0 || place >= Count()) ThrowIndexOutOfRange();
    return IsOn() ? rows_[static_cast<std::size_t>(place)] : place + 1;
}

std::int32_t RowFilter::PlaceOf(std::int32_t row) const {
    if (!IsOn()) return row >= 1 && row <= table_.Count() ? row - 1 : -1;
    const auto found = std::ranges::lower_bound(rows_, row);
    return found != rows_.end() && *found == row ? static_cast<std::int32_t>(found - rows_.begin()) : -1;
}

std::int32_t RowFilter::HiddenMarkedCount() {
    if (!IsOn() || table_.MarkedCount() == 0) return 0;
    if (countedMarks_ == table_.MarkChanges() && countedChanges_ == changes_) return hiddenMarked_;
    hiddenMarked_ = table_.MarkedCount();
    for (const std::int32_t row : rows_) {
        if (row <= table_.Count() && std::as_const(table_).Item(row).Marked()) --hiddenMarked_;
    }
    countedMarks_ = table_.MarkChanges();
    countedChanges_ = changes_;
    return hiddenMarked_;
}

}  // namespace swiftroll
