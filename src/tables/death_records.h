#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include "text/text.h"

namespace swiftroll {

/// The individuals whose records tell of a death or a burial, were it without date and place, which no cell
/// of lvwIn shows. A record is known by the position in the file at which it begins.
class DeathRecords {
  public:
    void Clear() { starts_.clear(); }
    /// Adds a record; records come in the order of the file.
    void Add(std::int64_t start) { starts_.push_back(start); }
    /// Whether the record is there whose range the tag of a row of lvwIn tells.
    bool Has(TextView sTag) const {
        std::int64_t start = 0;
        const auto read = std::from_chars(sTag.data(), sTag.data() + sTag.size(), start);
        return read.ec == std::errc() && std::binary_search(starts_.begin(), starts_.end(), start);
    }

  private:
    std::vector<std::int64_t> starts_;
};

}  // namespace swiftroll
