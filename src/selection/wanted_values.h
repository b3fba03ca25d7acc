#pragma once

#include <optional>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll::modSelectionIn {

/// How a value must compare to that of a marked row.
enum class Comparison { AtMost, Equal, AtLeast };

/// Which values compare as asked to at least one of several. "At most one of them" is "at most the greatest",
/// so that a value is looked at once however many there are.
class WantedValues {
  public:
    /// The values are texts of `store`, all of them interned.
    WantedValues(const TextStore& store, Comparison comparison) : store_(store), comparison_(comparison) {}

    /// Adds a value to compare to.
    void Add(TextRef value);
    /// Whether a value compares as asked to one that was added.
    bool Match(TextRef value) const;

  private:
    /// Whether `value` compares as asked to `reference`.
    bool Compares(TextRef value, TextRef reference) const;

    const TextStore& store_;
    Comparison comparison_;
    std::vector<bool> equals_;      // by number of the text, for Equal
    std::optional<TextRef> bound_;  // the greatest or the least, for the others
};

}  // namespace swiftroll::modSelectionIn
