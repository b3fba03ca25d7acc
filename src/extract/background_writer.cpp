#include "extract/background_writer.h"

namespace swiftroll::modSaveGed {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 21;

}  // namespace

BackgroundWriter::BackgroundWriter(File& out) : out_(out) {}

void BackgroundWriter::Write(TextView bytes) {
    if (gathered_.size() + bytes.size() > kPieceSize) HandOver();
    gathered_ += bytes;
}

void BackgroundWriter::HandOver() {
    if (gathered_.empty()) return;
    Wait();
    written_.swap(gathered_);
    gathered_.clear();
    if (isWhole_) writing_ = std::async(std::launch::async, [this] { out_.Write(written_); });
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
