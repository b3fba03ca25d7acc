#include "platform/std_files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(TextView name) { return fs::path(FileNameFromText(name)); }

TextView Reason(int error) {
    switch (error) {
        case ENOENT:
            return "fichier ou dossier introuvable"_t;
        case EACCES:
        case EPERM:
        case EROFS:
            return "accès refusé"_t;
        case EISDIR:
            return "c'est un dossier"_t;
        case ENOTDIR:
            return "un des dossiers du chemin n'en est pas un"_t;
        case ENOSPC:
            return "le disque est plein"_t;
        case ENAMETOOLONG:
            return "nom trop long"_t;
        default:
            return "lecture ou écriture impossible"_t;
    }
}

[[noreturn]] void Fail(TextView name, int error) {
    const FailureKind kind = error == ENOENT ? FailureKind::FileNotFound : FailureKind::FileAccess;
    throw Failure(kind, Concat({name, " : ", Reason(error)}));
}

class StdFile : public File {
  public:
    StdFile(std::FILE* stream, Text name) : stream_(stream), name_(std::move(name)) {}
    StdFile(const StdFile&) = delete;
    StdFile& operator=(const StdFile&) = delete;
    ~StdFile() override {
        if (stream_ != nullptr && stream_ != stdout) std::fclose(stream_);
    }
    std::size_t Read(char* buffer, std::size_t size) override {
        const std::size_t read = std::fread(buffer, 1, size, stream_);
        if (read < size && std::ferror(stream_) != 0) Fail(name_, errno);
        return read;
    }
    std::size_t ReadAt(std::int64_t position, char* buffer, std::size_t size) override {
        if (std::fseek(stream_, static_cast<long>(position), SEEK_SET) != 0) Fail(name_, errno);
        return Read(buffer, size);
    }
    void Write(TextView bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), stream_) != bytes.size()) Fail(name_, errno);
    }
    std::int64_t Length() override {
        std::error_code error;
        const auto length = fs::file_size(PathOf(name_), error);
        return error ? 0 : static_cast<std::int64_t>(length);
    }
    void Close() override {
        std::FILE* stream = stream_;
        stream_ = nullptr;
        const int result = stream == stdout ? std::fflush(stream) : std::fclose(stream);
        if (result != 0) Fail(name_, errno);
    }

  private:
    std::FILE* stream_;
    Text name_;
};

}  // namespace

std::unique_ptr<File> StdFiles::Open(TextView name, Mode mode) {
    const fs::path path = PathOf(name);
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) Fail(name, EISDIR);
    errno = 0;
    std::FILE* stream = std::fopen(path.string().c_str(), mode == Mode::Read    ? "rb"
                                                          : mode == Mode::Write ? "wb"
                                                                                : "ab");
    if (stream == nullptr) Fail(name, errno);
    return std::make_unique<StdFile>(stream, Text(name));
}

bool StdFiles::Exists(TextView name) {
    std::error_code ignored;
    return fs::exists(PathOf(name), ignored);
}

bool StdFiles::AreSame(TextView a, TextView b) {
    std::error_code error;
    const bool same = fs::equivalent(PathOf(a), PathOf(b), error);
    return !error && same;
}

std::optional<FileStamp> StdFiles::Stamp(TextView name) {
    const fs::path path = PathOf(name);
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    const auto length = fs::file_size(path, error);
    if (error) return std::nullopt;
    const auto time = fs::last_write_time(path, error);
    if (error) return std::nullopt;
    return FileStamp{static_cast<std::int64_t>(length), time.time_since_epoch().count()};
}

std::optional<std::uint64_t> StdFiles::RoomFor(TextView name) {
    std::error_code error;
    const fs::file_status status = fs::status(PathOf(name), error);
    if (fs::exists(status) && !fs::is_regular_file(status)) return std::nullopt;
    const fs::path path = fs::weakly_canonical(fs::absolute(PathOf(name)), error);
    if (error) return std::nullopt;
    const fs::space_info space = fs::space(path.parent_path(), error);
    if (error) return std::nullopt;
    return space.available;
}

void StdFiles::Delete(TextView name) {
    const fs::path path = PathOf(name);
    std::error_code error;
    // Never a device such as /dev/null, which only the opening may touch.
    if (!fs::is_regular_file(path, error)) return;
    fs::remove(path, error);
    if (error) Fail(name, error.value());
}

std::unique_ptr<File> OpenStandardOutput() { return std::make_unique<StdFile>(stdout, Text("-")); }

}  // namespace swiftroll::platform
