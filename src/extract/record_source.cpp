#include "extract/record_source.h"

#include <algorithm>

#include "extract/record_range.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::modSaveGed {
namespace {

constexpr std::size_t kReadAhead = std::size_t{1} << 18;
constexpr std::size_t kSinglePiece = std::size_t{1} << 12;
// What lies no further behind the last piece is taken for its continuation.
constexpr std::int64_t kNear = 1 << 15;

}  // namespace

TextView RecordSource::Read(const modReadGedcom::RecordRange& range) {
    const std::int64_t start = range.start - 1;
    const std::size_t length = LengthOf(range);
    const auto end = start_ + static_cast<std::int64_t>(filled_);
    if (start < start_ || start + static_cast<std::int64_t>(length) > end) {
        const bool continues = filled_ > 0 && start >= start_ && start <= end + kNear;
        const std::size_t wanted = std::max(length, continues ? kReadAhead : kSinglePiece);
        if (buffer_.size() < wanted) buffer_.resize(wanted);
        start_ = start;
        filled_ = 0;
        filled_ = ReadAtLeast(length, start, std::span(buffer_).first(wanted));
    }
    return {buffer_.data() + (start - start_), length};
}

void RecordSource::ReadInto(const modReadGedcom::RecordRange& range, char* place) {
    const std::size_t length = LengthOf(range);
    if (length >= kReadAhead) {
        ReadAtLeast(length, range.start - 1, {place, length});
    } else {
        const TextView record = Read(range);
        std::copy(record.begin(), record.end(), place);
    }
}

/// Fills memory from a position of the file on, up to its end if it must, and gives the number of bytes.
std::size_t RecordSource::ReadAtLeast(std::size_t least, std::int64_t position, std::span<char> place) {
    std::size_t filled = 0;
    while (filled < least) {
        const std::size_t read = file_->ReadAt(position + static_cast<std::int64_t>(filled),
                                               place.data() + filled, place.size() - filled);
        if (read == 0) {
            throw Failure(FailureKind::FileAccess,
                          Concat({sFile_, " : le fichier a changé depuis sa lecture, relisez-le"_t}));
        }
        filled += read;
    }
    return filled;
}

}  // namespace swiftroll::modSaveGed
