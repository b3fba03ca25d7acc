#pragma once

#include <memory>

#include "app/ports.h"
#include "charset/charset.h"

namespace swiftroll::charset {

/// A file of UTF-16 as one of UTF-8 without a byte order mark, in memory. What is no character becomes
/// U+FFFD. Any number of files read the one text.
class Utf16Text {
  public:
    /// `order` is one of the two of UTF-16. @throws Failure FileAccess when the file cannot be read
    Utf16Text(File& file, Charset order);

    /// The text as a file for reading; the text lives as long as the last of them.
    std::unique_ptr<File> Open() const;

  private:
    std::shared_ptr<const Text> text_;
};

}  // namespace swiftroll::charset
