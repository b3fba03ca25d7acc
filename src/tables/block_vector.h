#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace swiftroll {

/// A growing array in blocks that never move: no copy and no doubled memory while a table grows to tens of
/// millions of cells, and addresses stay valid.
template <class T, std::size_t kBlockBits = 15>
class BlockVector {
  public:
    std::size_t size() const { return size_; }
    T& operator[](std::size_t i) { return blocks_[i >> kBlockBits][i & kMask]; }
    const T& operator[](std::size_t i) const { return blocks_[i >> kBlockBits][i & kMask]; }

    /// Grows to `size` elements; new ones are value-initialised. It never shrinks.
    void Grow(std::size_t size) {
        while (blocks_.size() << kBlockBits < size) blocks_.push_back(std::make_unique<T[]>(kBlockSize));
        if (size > size_) size_ = size;
    }
    void push_back(const T& value) {
        if (size_ == blocks_.size() << kBlockBits) blocks_.push_back(std::make_unique<T[]>(kBlockSize));
        (*this)[size_++] = value;
    }
    void Clear() {
        blocks_.clear();
        size_ = 0;
    }

  private:
    static constexpr std::size_t kBlockSize = std::size_t{1} << kBlockBits;
    static constexpr std::size_t kMask = kBlockSize - 1;
    std::vector<std::unique_ptr<T[]>> blocks_;
    std::size_t size_ = 0;
};

}  // namespace swiftroll
