#include "gedcom/line_scanner.h"

#include <algorithm>
#include <cstring>

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 18;

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

std::size_t FindFrom(const char* bytes, std::size_t from, std::size_t size, char c) {
    if (from >= size) return size;
    const void* found = std::memchr(bytes + from, c, size - from);
    return found == nullptr ? size : static_cast<std::size_t>(static_cast<const char*>(found) - bytes);
}

}  // namespace

LineScanner::LineScanner(std::unique_ptr<File> file) : file_(std::move(file)), buffer_(kBlock) {}

bool LineScanner::Fill(std::size_t keepFrom) {
    if (ended_) return false;
    const std::size_t kept = size_ - keepFrom;
    std::memmove(buffer_.data(), buffer_.data() + keepFrom, kept);
    bufferPosition_ += static_cast<std::int64_t>(keepFrom);
    next_ -= keepFrom;
    lineStart_ -= std::min(lineStart_, keepFrom);
    lineEnd_ -= std::min(lineEnd_, keepFrom);
    // What was searched without success stays searched.
    lineFeed_ -= std::min(lineFeed_, keepFrom);
    carriageReturn_ -= std::min(carriageReturn_, keepFrom);
    const bool noLineFeed = lineFeed_ == kept, noCarriageReturn = carriageReturn_ == kept;
    size_ = kept;
    if (buffer_.size() - kept < kBlock / 2) buffer_.resize(2 * buffer_.size());
    ended_ = true;  // also when reading fails
    const std::size_t added = file_->Read(buffer_.data() + kept, buffer_.size() - kept);
    ended_ = added == 0;
    size_ += added;
    if (noLineFeed) lineFeed_ = FindFrom(buffer_.data(), kept, size_, '\n');
    if (noCarriageReturn) carriageReturn_ = FindFrom(buffer_.data(), kept, size_, '\r');
    return added > 0;
}

bool LineScanner::SkipToText() {
    linePosition_ = ReadPosition() + 1;
    for (;;) {
        if (next_ == size_ && !Fill(next_)) return false;
        const char c = buffer_[next_];
        if (!IsLineEnd(c) && c != ' ') return true;
        ++next_;
        if (IsLineEnd(c)) linePosition_ = ReadPosition() + 1;
    }
}

bool LineScanner::FindLineEnd() {
    for (;;) {
        if (lineFeed_ < next_) lineFeed_ = FindFrom(buffer_.data(), next_, size_, '\n');
        if (carriageReturn_ < next_) carriageReturn_ = FindFrom(buffer_.data(), next_, size_, '\r');
        lineEnd_ = std::min(lineFeed_, carriageReturn_);
        if (lineEnd_ < size_) return true;
        if (!Fill(lineStart_)) return false;
    }
}

bool LineScanner::Next() {
    lineStart_ = lineEnd_ = next_;
    if (!SkipToText()) {
        lineStart_ = lineEnd_ = next_;
        return false;
    }
    lineStart_ = next_;
    if (!FindLineEnd()) {
        next_ = size_;
        return false;
    }
    next_ = lineEnd_ + 1;
    // A line whose end is the last byte of the file counts as unfinished.
    return next_ < size_ || Fill(lineStart_);
}

}  // namespace swiftroll::modReadGedcom
