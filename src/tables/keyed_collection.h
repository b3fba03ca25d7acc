#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "tables/text_store.h"
#include "text/edit.h"

namespace swiftroll {

/// Values under text keys that are compared without regard to case.
template <class Value>
class KeyedCollection {
  public:
    /// Adds a value; false, and nothing is added, when the key is there already.
    bool Add(TextView key, const Value& value) {
        keys_.Intern(Folded(key));
        if (keys_.InternedCount() == values_.size()) return false;
        values_.push_back(value);
        return true;
    }
    std::optional<Value> Find(TextView key) const {
        const auto number = keys_.NumberOf(Folded(key));
        if (!number) return std::nullopt;
        return values_[*number];
    }
    std::size_t Count() const { return values_.size(); }

  private:
    TextView Folded(TextView key) const {
        folded_.resize(key.size() + 1);
        folded_[0] = ' ';  // so that no key is empty
        std::transform(key.begin(), key.end(), folded_.begin() + 1, [](char c) { return UpperCase(c); });
        return folded_;
    }

    TextStore keys_;
    std::vector<Value> values_;  // by number of the interned key
    mutable Text folded_;        // reused to avoid allocation
};

}  // namespace swiftroll
