#include "extract/background_writer.h"

#include <algorithm>

namespace swiftroll::modSaveGed {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 21;

}  // namespace

BackgroundWriter::BackgroundWriter(File& out) : out_(out) {}

void BackgroundWriter::Write(TextView bytes) {
    std::copy(bytes.begin(), bytes.end(), Room(bytes.size()));
    Take(bytes.size());
}

char* BackgroundWriter::Room(std::size_t size) {
    if (gathered_.size + size > kPieceSize) HandOver();
    if (gathered_.size + size > gathered_.capacity) {  // and nothing is in it
        gathered_.capacity = std::max(kPieceSize, size);
        gathered_.bytes = std::make_unique_for_overwrite<char[]>(gathered_.capacity);
    }
    return gathered_.bytes.get() + gathered_.size;
}

void BackgroundWriter::HandOver() {
    if (gathered_.size == 0) return;
    Wait();
    std::swap(written_, gathered_);
    gathered_.size = 0;
    if (!isWhole_) return;
    writing_ = std::async(std::launch::async, [this] { out_.Write({written_.bytes.get(), written_.size}); });
}

void BackgroundWriter::Wait() {
    if (!writing_.valid()) return;
    // Behind a piece that is missing nothing may follow.
    isWhole_ = false;
    writing_.get();
    isWhole_ = true;
}

void BackgroundWriter::Finish() {
    HandOver();
    Wait();
}

}  // namespace swiftroll::modSaveGed
