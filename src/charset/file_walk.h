#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "app/ports.h"

namespace swiftroll::charset {

/// Place of the first byte beyond ASCII from `from` on; the size of the text when there is none.
inline std::size_t FindHighByte(TextView text, std::size_t from) {
    constexpr std::uint64_t kHighs = 0x8080808080808080u;
    constexpr std::size_t kWord = sizeof(std::uint64_t), kWords = 4;
    const auto wordAt = [&](std::size_t place) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + place, kWord);
        return word;
    };
    for (; from + kWords * kWord <= text.size(); from += kWords * kWord) {
        const std::uint64_t all =
            wordAt(from) | wordAt(from + kWord) | wordAt(from + 2 * kWord) | wordAt(from + 3 * kWord);
        if ((all & kHighs) != 0) break;
    }
    for (; from + kWord <= text.size() && (wordAt(from) & kHighs) == 0; from += kWord) {
    }
    while (from < text.size() && static_cast<unsigned char>(text[from]) < 0x80) ++from;
    return from;
}

/// How many bytes behind a place `WalkFile` shows at least, unless the file ends before.
inline constexpr std::size_t kLookAhead = 64;

/// Walks through a file from its beginning. `visit(bytes, end)` works on the places from 0 up to `end`, may
/// look at all of `bytes`, and gives the place where it goes on, `end` or behind it; `npos` stops.
/// @throws Failure FileAccess
template <class Visitor>
void WalkFile(File& file, Visitor visit) {
    constexpr std::size_t kBlock = std::size_t{1} << 18;
    std::vector<char> buffer(kBlock + kLookAhead);
    std::int64_t position = 0;
    std::size_t size = 0;
    for (bool hasEnded = false; !hasEnded;) {
        const std::size_t read = file.ReadAt(position, buffer.data() + size, buffer.size() - size);
        position += static_cast<std::int64_t>(read);
        size += read;
        hasEnded = read == 0;
        if (size == 0 || (!hasEnded && size <= kLookAhead)) continue;
        const std::size_t end = hasEnded ? size : size - kLookAhead;
        const std::size_t done = visit(TextView(buffer.data(), size), end);
        if (done == TextView::npos) return;
        std::memmove(buffer.data(), buffer.data() + done, size - done);
        size -= done;
    }
}

}  // namespace swiftroll::charset
