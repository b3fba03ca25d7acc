#pragma once

#include <span>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll {

/// Tells rows whose cells contain a word, case and accents aside. A text that stands in many cells is looked
/// at once.
class WordFinder {
  public:
    /// `word` is a comparison form without blanks.
    WordFinder(const TextStore& store, TextView word) : store_(&store), word_(word) { Grow(); }

    const Text& Word() const { return word_; }
    /// Looks for another word that contains this one: texts without this one have not that one either.
    void Extend(TextView word);
    /// Takes note of texts that came since.
    void Grow() { found_.resize(store_->InternedCount()); }
    /// Whether one of these cells contains the word.
    bool IsIn(std::span<const TextRef> cells, std::span<const std::int16_t> sections);

  private:
    enum class Found : std::uint8_t { Unknown, No, Yes };

    const TextStore* store_;
    Text word_;
    std::vector<Found> found_;  // by the number of the interned text
};

}  // namespace swiftroll
