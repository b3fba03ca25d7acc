#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "tables/text_store.h"

namespace swiftroll {

/// The cells of a table, row behind row, in blocks of whole rows that never move.
class CellBlocks {
  public:
    explicit CellBlocks(std::size_t columns) : columns_(columns) {}

    /// The cells of the row stored at `slot`.
    TextRef* Row(std::size_t slot) { return blocks_[slot >> kBits].get() + (slot & kMask) * columns_; }
    const TextRef* Row(std::size_t slot) const {
        return blocks_[slot >> kBits].get() + (slot & kMask) * columns_;
    }
    /// Makes room for `rows` rows; the cells of new ones are empty.
    void Grow(std::size_t rows) {
        while (blocks_.size() << kBits < rows)
            blocks_.push_back(std::make_unique<TextRef[]>(columns_ << kBits));
    }
    void Clear() { blocks_.clear(); }

  private:
    static constexpr std::size_t kBits = 12;
    static constexpr std::size_t kMask = (std::size_t{1} << kBits) - 1;
    std::size_t columns_;
    std::vector<std::unique_ptr<TextRef[]>> blocks_;
};

}  // namespace swiftroll
