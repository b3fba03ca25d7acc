#pragma once

#include <algorithm>
#include <vector>

#include "selection/row_lists.h"

namespace swiftroll::modSelectionIn {

/// Tells texts of one store that come again, which would only repeat what is done.
class SeenTexts {
  public:
    bool IsNew(TextRef ref) {
        const std::size_t place = ListOf(ref);
        if (place >= seen_.size()) seen_.resize(std::max(place + 1, seen_.size() * 2));
        const bool isNew = !seen_[place];
        seen_[place] = true;
        return isNew;
    }

  private:
    std::vector<bool> seen_;
};

}  // namespace swiftroll::modSelectionIn
