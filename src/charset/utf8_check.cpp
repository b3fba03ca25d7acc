#include "charset/utf8_check.h"

#include <array>

#include "charset/file_walk.h"
#include "text/code_page.h"

namespace swiftroll::charset {
namespace {

constexpr TextView kTag = " CONC ";

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u; }

/// Length of a line end and the head of the CONC line behind it at the head of `bytes`; 0 for all else.
std::size_t CutLength(TextView bytes) {
    std::size_t at = 0;
    while (at < bytes.size() && IsLineEnd(bytes[at])) ++at;
    if (at == 0) return 0;
    while (at < bytes.size() && bytes[at] == ' ') ++at;
    if (at == bytes.size() || bytes[at] < '0' || bytes[at] > '9') return 0;
    ++at;
    return bytes.substr(at).starts_with(kTag) ? at + kTag.size() : 0;
}

/// Length of the character beyond ASCII at the head of `bytes`, with what cuts it; 0 when there is none.
std::size_t CharacterLength(TextView bytes) {
    const Utf8Char whole = FirstUtf8Char(bytes);
    if (whole.length > 0) return whole.length;
    std::array<char, 4> joined{bytes[0]};
    std::size_t at = 1;
    for (std::size_t count = 1; count < joined.size();) {
        at += CutLength(bytes.substr(at));
        if (at >= bytes.size() || !IsContinuation(bytes[at])) return 0;
        joined[count++] = bytes[at++];
        if (FirstUtf8Char({joined.data(), count}).length > 0) return at;
    }
    return 0;
}

}  // namespace

Utf8Answer CheckUtf8(File& file) {
    Utf8Answer answer = Utf8Answer::Ascii;
    WalkFile(file, [&](TextView bytes, std::size_t end) {
        std::size_t at = 0;
        while ((at = FindHighByte(bytes, at)) < end) {
            const std::size_t length = CharacterLength(bytes.substr(at));
            answer = length > 0 ? Utf8Answer::Utf8 : Utf8Answer::Neither;
            if (length == 0) return TextView::npos;
            at += length;
        }
        return at;
    });
    return answer;
}

}  // namespace swiftroll::charset
