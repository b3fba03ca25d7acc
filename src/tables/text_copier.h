#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll {

/// Brings texts of one store into another, where they are interned; each is looked up once.
class TextCopier {
  public:
    /// Of `from` those texts can be copied that it has now.
    TextCopier(const TextStore& from, TextStore& to)
        : from_(from), to_(to), ofSymbol_(from.InternedCount()) {}
    TextRef Copy(TextRef ref) {
        if (ref.IsEmpty()) return ref;
        TextRef& copy = ref.IsInterned() ? ofSymbol_[ref.Symbol()] : others_[ref];
        if (copy.IsEmpty()) copy = to_.Intern(from_.Get(ref));
        return copy;
    }

  private:
    const TextStore& from_;
    TextStore& to_;
    std::vector<TextRef> ofSymbol_;
    boost::unordered_flat_map<TextRef, TextRef> others_;
};

}  // namespace swiftroll
