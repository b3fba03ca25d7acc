#pragma once

#include <memory>
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

  private:
    std::unique_ptr<File> file_;
    Text sFile_;
    std::vector<char> buffer_;
    std::int64_t start_ = 0;  // position in the file of the first byte of the buffer, from 0
    std::size_t filled_ = 0;
};

}  // namespace swiftroll::modSaveGed
