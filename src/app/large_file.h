#pragma once

#include "app/feedback.h"

namespace swiftroll {

/// Counts the bytes that are written to it, and keeps none.
class ByteCount : public File {
  public:
    std::uint64_t Bytes() const { return bytes_; }
    std::size_t Read(char*, std::size_t) override { return 0; }
    void Write(TextView bytes) override { bytes_ += bytes.size(); }
    std::int64_t Length() override { return static_cast<std::int64_t>(bytes_); }
    void Close() override {}

  private:
    std::uint64_t bytes_ = 0;
};

/// Whether so many bytes, an estimate, may be written to a file: the user is asked when that is more than one
/// gigabyte or than half of what is free on the disk. Nobody is asked about pipes and devices.
bool MayWriteLarge(Feedback& feedback, Files& files, TextView file, std::uint64_t bytes);

}  // namespace swiftroll
