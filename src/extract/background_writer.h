#pragma once

#include <future>

#include "app/ports.h"

namespace swiftroll::modSaveGed {

/// Writes to a file while its user prepares what comes next. Texts are gathered into large pieces, each
/// written by a thread of its own; nothing else may use the file meanwhile.
class BackgroundWriter {
  public:
    explicit BackgroundWriter(File& out);

    /// @throws Failure FileAccess when this piece or one before could not be written
    void Write(TextView bytes);
    /// Waits until everything is in the file, or as much as went before a failure, which is told once.
    /// @throws Failure FileAccess
    void Finish();

  private:
    void HandOver();
    void Wait();

    File& out_;
    Text gathered_, written_;
    std::future<void> writing_;  // of written_
    bool isWhole_ = true;        // every piece so far could be written
};

}  // namespace swiftroll::modSaveGed
