#pragma once

#include <cstddef>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace bench {

/// Text is appended freely and leaves in large blocks at the ends of records.
class OutputBuffer {
  public:
    explicit OutputBuffer(std::FILE* file) : file_(file) { text_.reserve(2 * kBlockSize); }

    std::string& Text() { return text_; }

    void EndRecord() {
        if (text_.size() >= kBlockSize) {
            Flush();
        }
    }

    void Flush() {
        const std::size_t written = std::fwrite(text_.data(), 1, text_.size(), file_);
        if (written != text_.size() || std::fflush(file_) != 0) {
            throw std::runtime_error("cannot write the output");
        }
        text_.clear();
    }

  private:
    static constexpr std::size_t kBlockSize = std::size_t{1} << 20;

    std::FILE* file_;
    std::string text_;
};

}  // namespace bench
