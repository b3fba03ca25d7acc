#include "gedcom/line_scanner.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 18;

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

#if defined(__SSE2__)

/// Place of the first line end among the whole blocks of sixteen bytes from `from` on; where they end
/// otherwise.
std::size_t SkipBlocks(const char* bytes, std::size_t from, std::size_t size) {
    const __m128i carriageReturns = _mm_set1_epi8('\r'), lineFeeds = _mm_set1_epi8('\n');
    for (; from + sizeof(__m128i) <= size; from += sizeof(__m128i)) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + from));
        const __m128i ends =
            _mm_or_si128(_mm_cmpeq_epi8(block, carriageReturns), _mm_cmpeq_epi8(block, lineFeeds));
        const auto found = static_cast<unsigned>(_mm_movemask_epi8(ends));
        if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
    }
    return from;
}

#else

/// High bit of each byte of `word` that equals `c`, the lowest of them exact.
std::uint64_t Matches(std::uint64_t word, char c) {
    constexpr std::uint64_t kOnes = 0x0101010101010101u, kHighs = 0x8080808080808080u;
    const std::uint64_t zeros = word ^ (kOnes * static_cast<unsigned char>(c));
    return (zeros - kOnes) & ~zeros & kHighs;
}

/// Where the first block of eight bytes from `from` on stands that holds a line end, or that is no whole
/// block.
std::size_t SkipBlocks(const char* bytes, std::size_t from, std::size_t size) {
    for (; from + sizeof(std::uint64_t) <= size; from += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes + from, sizeof word);
        if ((Matches(word, '\r') | Matches(word, '\n')) != 0) break;
    }
    return from;
}

#endif

/// Place of the first line end from `from` on, `size` when there is none.
std::size_t FindLineEndFrom(const char* bytes, std::size_t from, std::size_t size) {
    from = SkipBlocks(bytes, from, size);
    while (from < size && !IsLineEnd(bytes[from])) ++from;
    return from;
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
    size_ = kept;
    if (buffer_.size() - kept < kBlock / 2) buffer_.resize(2 * buffer_.size());
    ended_ = true;  // also when reading fails
    const std::size_t added = file_->Read(buffer_.data() + kept, buffer_.size() - kept);
    ended_ = added == 0;
    size_ += added;
    return added > 0;
}

void LineScanner::CountLineEnd(char c) {
    if (c != '\n' || !mayBePair_) ++lineEnds_;
    mayBePair_ = c == '\r';
}

bool LineScanner::SkipToText() {
    std::int64_t behindLineEnd = ReadPosition();
    for (;; ++next_) {
        if (next_ == size_ && !Fill(next_)) break;
        const char c = buffer_[next_];
        if (IsLineEnd(c)) {
            CountLineEnd(c);
            behindLineEnd = ReadPosition() + 1;
            continue;
        }
        mayBePair_ = false;
        if (c != ' ') break;
    }
    linePosition_ = behindLineEnd + 1;
    lineNumber_ = lineEnds_ + 1;
    return next_ < size_;
}

bool LineScanner::FindLineEnd() {
    lineEnd_ = next_;
    for (;;) {
        lineEnd_ = FindLineEndFrom(buffer_.data(), lineEnd_, size_);
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
    CountLineEnd(buffer_[lineEnd_]);
    next_ = lineEnd_ + 1;
    // A line whose end is the last byte of the file counts as unfinished.
    return next_ < size_ || Fill(lineStart_);
}

}  // namespace swiftroll::modReadGedcom
