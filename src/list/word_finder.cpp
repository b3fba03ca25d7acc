#include "list/word_finder.h"

#include "text/fold.h"

namespace swiftroll {

void WordFinder::Extend(TextView word) {
    word_ = word;
    Grow();
    for (Found& found : found_) {
        if (found == Found::Yes) found = Found::Unknown;
    }
}

bool WordFinder::IsIn(std::span<const TextRef> cells, std::span<const std::int16_t> sections) {
    for (const std::int16_t section : sections) {
        const TextRef ref = cells[static_cast<std::size_t>(section)];
        if (ref.IsEmpty()) continue;
        if (!ref.IsInterned()) {
            if (FoldedContains(store_->Get(ref), word_)) return true;
            continue;
        }
        Found& found = found_[ref.Symbol()];
        if (found == Found::Unknown) {
            found = FoldedContains(store_->Get(ref), word_) ? Found::Yes : Found::No;
        }
        if (found == Found::Yes) return true;
    }
    return false;
}

}  // namespace swiftroll
