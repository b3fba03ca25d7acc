#include "extract/record_source.h"

#include <algorithm>

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
    const auto length = static_cast<std::size_t>(std::max<std::int64_t>(range.end - range.start, 0));
    const auto end = start_ + static_cast<std::int64_t>(filled_);
    if (start < start_ || start + static_cast<std::int64_t>(length) > end) {
        const bool continues = filled_ > 0 && start >= start_ && start <= end + kNear;
        const std::size_t wanted = std::max(length, continues ? kReadAhead : kSinglePiece);
        if (buffer_.size() < wanted) buffer_.resize(wanted);
        start_ = start;
        filled_ = 0;
        while (filled_ < length) {
            const std::size_t read = file_->ReadAt(start + static_cast<std::int64_t>(filled_),
                                                   buffer_.data() + filled_, wanted - filled_);
            if (read == 0) {
                throw Failure(FailureKind::FileAccess,
                              Concat({sFile_, " : le fichier a changé depuis sa lecture, relisez-le"_t}));
            }
            filled_ += read;
        }
    }
    return {buffer_.data() + (start - start_), length};
}

}  // namespace swiftroll::modSaveGed
