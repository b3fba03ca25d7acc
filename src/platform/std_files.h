#pragma once

#include "app/ports.h"

namespace swiftroll::platform {

/// The files of the machine.
class StdFiles : public Files {
  public:
    std::unique_ptr<File> Open(TextView name, Mode mode) override;
    bool Exists(TextView name) override;
    bool AreSame(TextView a, TextView b) override;
    std::optional<FileStamp> Stamp(TextView name) override;
    void Delete(TextView name) override;
    std::optional<std::uint64_t> RoomFor(TextView name) override;
};

/// Standard output as a file for writing.
std::unique_ptr<File> OpenStandardOutput();

}  // namespace swiftroll::platform
