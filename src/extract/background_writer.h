#pragma once

#include <future>
#include <memory>

#include "app/ports.h"

namespace swiftroll::modSaveGed {

/// Writes to a file while its user prepares what comes next. Texts are gathered into large pieces, each
/// written by a thread of its own; nothing else may use the file meanwhile.
class BackgroundWriter {
  public:
    explicit BackgroundWriter(File& out);

    /// @throws Failure FileAccess when this piece or one before could not be written
    void Write(TextView bytes);
    /// Memory for `size` bytes behind those written last, for its user to fill; `Take` then counts them as
    /// written. They stay there until the next call of `Room` or `Write`. @throws as `Write`
    char* Room(std::size_t size);
    void Take(std::size_t size) { gathered_.size += size; }
    /// Waits until everything is in the file, or as much as went before a failure, which is told once.
    /// @throws Failure FileAccess
    void Finish();

  private:
    void HandOver();
    void Wait();

    struct Piece {
        std::unique_ptr<char[]> bytes;
        std::size_t capacity = 0, size = 0;
    };
    File& out_;
    Piece gathered_, written_;
    std::future<void> writing_;  // of written_
    bool isWhole_ = true;        // every piece so far could be written
};

}  // namespace swiftroll::modSaveGed
