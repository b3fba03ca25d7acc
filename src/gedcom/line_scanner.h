#pragma once

#include <memory>
#include <vector>

#include "app/ports.h"

namespace swiftroll::modReadGedcom {

/// Hands out the lines of a file of single-byte text that hold something, with their exact byte positions. A
/// carriage return, a line feed or both end a line; leading blanks, blank lines and the second half of a pair
/// vanish. Lines may be of any length; memory is that of the longest one and a block.
class LineScanner {
  public:
    explicit LineScanner(std::unique_ptr<File> file);

    /// Goes to the next line; false at the end of the file. A last line whose end is the file's very last
    /// byte, or that has no end, is not handed out: `Line` then holds it, empty when there is none.
    /// @throws Failure FileAccess; the file then counts as ended
    bool Next();
    /// The line without its leading blanks and its end; valid until `Next`.
    TextView Line() const { return {buffer_.data() + lineStart_, lineEnd_ - lineStart_}; }
    /// Position, from 1, of the byte behind the last line end skipped before this line.
    std::int64_t LinePosition() const { return linePosition_; }
    /// Number of the line as an editor counts, from 1: blank lines count too.
    std::uint32_t LineNumber() const { return lineNumber_; }
    /// Position, from 0, of the next byte to read.
    std::int64_t ReadPosition() const { return bufferPosition_ + static_cast<std::int64_t>(next_); }

  private:
    /// Notes a line end, if it is not the second half of a pair.
    void CountLineEnd(char c);
    bool Fill(std::size_t keepFrom);
    bool SkipToText();
    bool FindLineEnd();

    std::unique_ptr<File> file_;
    std::vector<char> buffer_;
    std::size_t size_ = 0;             // bytes in the buffer
    std::int64_t bufferPosition_ = 0;  // position in the file, from 0, of the first of them
    std::size_t next_ = 0;
    std::size_t lineStart_ = 0, lineEnd_ = 0;
    std::int64_t linePosition_ = 1;
    std::uint32_t lineNumber_ = 1;
    std::uint32_t lineEnds_ = 0;
    bool mayBePair_ = false;  // the byte before the next one is a carriage return
    bool ended_ = false;
};

}  // namespace swiftroll::modReadGedcom
