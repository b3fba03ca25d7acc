#include "support/memory_files.h"

#include <algorithm>

#include "text/failure.h"

namespace swiftroll::test {
namespace {

class MemoryFile : public File {
  public:
    MemoryFile(MemoryFiles& files, Text name) : files_(files), name_(std::move(name)) {}
    std::size_t Read(char* buffer, std::size_t size) override {
        const Text& bytes = files_.contents[name_];
        if (position_ >= files_.breaksAt) throw Failure(FailureKind::FileAccess, name_);
        // The file may have become shorter since.
        position_ = std::min(position_, bytes.size());
        size = std::min({size, bytes.size() - position_, files_.readSize, files_.breaksAt - position_});
        std::copy_n(bytes.data() + position_, size, buffer);
        position_ += size;
        return size;
    }
    std::size_t ReadAt(std::int64_t position, char* buffer, std::size_t size) override {
        position_ = std::min(static_cast<std::size_t>(position), files_.contents[name_].size());
        return Read(buffer, size);
    }
    void Write(TextView bytes) override {
        const TextView fitting = bytes.substr(0, std::min(files_.room, bytes.size()));
        files_.contents[name_] += fitting;
        files_.room -= fitting.size();
        if (fitting.size() < bytes.size()) throw Failure(FailureKind::FileAccess, name_);
    }
    std::int64_t Length() override {
        return files_.toldLength.value_or(static_cast<std::int64_t>(files_.contents[name_].size()));
    }
    void Close() override {}

  private:
    MemoryFiles& files_;
    Text name_;
    std::size_t position_ = 0;
};

}  // namespace

std::unique_ptr<File> MemoryFiles::Open(TextView name, Mode mode) {
    if (mode == Mode::Read && !Exists(name)) throw Failure(FailureKind::FileNotFound, name);
    if (mode != Mode::Read && readOnly.count(Text(name)) > 0) throw Failure(FailureKind::FileAccess, name);
    if (mode == Mode::Write) contents[Text(name)].clear();
    if (mode == Mode::Append) contents[Text(name)];
    return std::make_unique<MemoryFile>(*this, Text(name));
}

std::optional<FileStamp> MemoryFiles::Stamp(TextView name) {
    if (!Exists(name)) return std::nullopt;
    return FileStamp{static_cast<std::int64_t>(contents[Text(name)].size()), time};
}

void MemoryFiles::Delete(TextView name) {
    if (readOnly.count(Text(name)) > 0) throw Failure(FailureKind::FileAccess, name);
    contents.erase(Text(name));
}

}  // namespace swiftroll::test
