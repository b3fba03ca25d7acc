#pragma once

#include <memory>
#include <span>
#include <vector>

#include "app/ports.h"
#include "gedcom/line_reader.h"

namespace swiftroll::modSaveGed {

/// Gives records of the input file by their ranges. It reads ahead as long as they follow each other, so that
/// copying a whole file reads it in large pieces.
class RecordSource {
  public:
    /// `sFile` is the name of the file, for messages.
    RecordSource(std::unique_ptr<File> file, TextView sFile) : file_(std::move(file)), sFile_(sFile) {}

    /// The bytes of a range; the view is valid until the next call.
    /// @throws Failure FileAccess when the file cannot be read or ends before the range
    TextView Read(const modReadGedcom::RecordRange& range);
    /// The same into memory of that length; a long range goes there at once.
    void ReadInto(const modReadGedcom::RecordRange& range, char* place);

  private:
    std::size_t ReadAtLeast(std::size_t least, std::int64_t position, std::span<char> place);

    std::unique_ptr<File> file_;
    Text sFile_;
    std::vector<char> buffer_;
    std::int64_t start_ = 0;  // position in the file of the first byte of the buffer, from 0
    std::size_t filled_ = 0;
};

}  // namespace swiftroll::modSaveGed
