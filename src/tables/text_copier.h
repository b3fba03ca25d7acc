#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll {

/// Brings texts of one store into another, each once.
class TextCopier {
  public:
    enum class Mode { Put, Intern };
    /// Of `from` those texts can be copied that it has now. Keys must be interned; what is interned in `from`
    /// and only shown stands once in either mode.
    TextCopier(const TextStore& from, TextStore& to, Mode mode)
        : from_(from), to_(to), mode_(mode), ofSymbol_(from.InternedCount()) {}
    TextRef Copy(TextRef ref) {
        if (ref.IsEmpty()) return ref;
        TextRef& copy = ref.IsInterned() ? ofSymbol_[ref.Symbol()] : others_[ref];
        if (copy.IsEmpty())
            copy = mode_ == Mode::Intern ? to_.Intern(from_.Get(ref)) : to_.Put(from_.Get(ref));
        return copy;
    }

  private:
    const TextStore& from_;
    TextStore& to_;
    Mode mode_;
    std::vector<TextRef> ofSymbol_;
    boost::unordered_flat_map<TextRef, TextRef> others_;
};

}  // namespace swiftroll
