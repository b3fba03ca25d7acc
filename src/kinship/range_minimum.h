#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace swiftroll::modKinship {

/// The least of any range of a row of numbers, in logarithmic time and twice the memory of the row.
class RangeMinimum {
  public:
    explicit RangeMinimum(const std::vector<std::int32_t>& values) : size_(values.size()), tree_(2 * size_) {
        std::copy(values.begin(), values.end(), tree_.begin() + static_cast<std::ptrdiff_t>(size_));
        for (std::size_t i = size_; i-- > 1;) tree_[i] = std::min(tree_[2 * i], tree_[2 * i + 1]);
    }
    /// Of the places from `first` up to but not including `last`; the largest number for an empty range.
    std::int32_t Of(std::int32_t first, std::int32_t last) const {
        std::int32_t least = std::numeric_limits<std::int32_t>::max();
        std::size_t left = static_cast<std::size_t>(first) + size_,
                    right = static_cast<std::size_t>(last) + size_;
        for (; left < right; left /= 2, right /= 2) {
            if (left % 2 == 1) least = std::min(least, tree_[left++]);
            if (right % 2 == 1) least = std::min(least, tree_[--right]);
        }
        return least;
    }

  private:
    std::size_t size_;
    std::vector<std::int32_t> tree_;
};

}  // namespace swiftroll::modKinship
