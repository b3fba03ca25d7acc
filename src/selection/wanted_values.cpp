#include "selection/wanted_values.h"

#include "selection/row_lists.h"

namespace swiftroll::modSelectionIn {

void WantedValues::Add(TextRef value) {
    if (comparison_ != Comparison::Equal) {
        if (!bound_ || !Compares(value, *bound_)) bound_ = value;
        return;
    }
    equals_.resize(store_.InternedCount() + 1);
    equals_[ListOf(value)] = true;
}

bool WantedValues::Match(TextRef value) const {
    if (comparison_ != Comparison::Equal) return bound_ && Compares(value, *bound_);
    return ListOf(value) < equals_.size() && equals_[ListOf(value)];
}

bool WantedValues::Compares(TextRef value, TextRef reference) const {
    if (value == reference) return true;
    const bool isLess = store_.Get(value) < store_.Get(reference);
    return isLess == (comparison_ == Comparison::AtMost);
}

}  // namespace swiftroll::modSelectionIn
