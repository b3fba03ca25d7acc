#pragma once

#include <map>
#include <optional>
#include <set>

#include "app/ports.h"

namespace swiftroll::test {

/// Files in memory.
class MemoryFiles : public Files {
  public:
    std::unique_ptr<File> Open(TextView name, Mode mode) override;
    bool Exists(TextView name) override { return contents.count(Text(name)) > 0; }
    bool AreSame(TextView a, TextView b) override { return a == b && Exists(a); }
    std::optional<FileStamp> Stamp(TextView name) override;
    void Delete(TextView name) override;
    std::optional<std::uint64_t> RoomFor(TextView) override { return free; }

    /// Name to bytes.
    std::map<Text, Text, std::less<>> contents;
    /// The time of the last change of every file.
    std::int64_t time = 0;
    /// Names that cannot be opened for writing.
    std::set<Text> readOnly;
    /// Number of bytes that can still be written before the disk is full.
    std::size_t room = static_cast<std::size_t>(-1);
    /// Number of bytes that the disk tells as free.
    std::optional<std::uint64_t> free;
    /// Largest number of bytes that one read gives.
    std::size_t readSize = static_cast<std::size_t>(-1);
    /// Number of bytes of a file behind which reading it fails.
    std::size_t breaksAt = static_cast<std::size_t>(-1);
    /// What files tell as their length in place of it.
    std::optional<std::int64_t> toldLength;
};

}  // namespace swiftroll::test
