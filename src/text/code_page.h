#pragma once

#include <optional>

#include "text/text.h"

namespace swiftroll {

/// Code point of each byte of Windows-1252 from 0x80 to 0x9F. The five bytes that the code page leaves
/// undefined stand for the C1 control of the same number, so that every byte has a character of its own.
inline constexpr char16_t kCodePageC1[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Windows-1252 byte of a Unicode code point, or nothing when the code page lacks it.
constexpr std::optional<unsigned char> CodePageByte(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<unsigned char>(codePoint);
    }
    for (unsigned i = 0; i < 32; ++i) {
        if (kCodePageC1[i] == codePoint) return static_cast<unsigned char>(0x80 + i);
    }
    return std::nullopt;
}

/// One code point of UTF-8 at the head of `bytes` and its length; length 0 where `bytes` is no valid UTF-8.
struct Utf8Char {
    char32_t codePoint = 0;
    std::size_t length = 0;
};
constexpr Utf8Char FirstUtf8Char(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    if (bytes.empty()) return {};
    const unsigned lead = at(0);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {};
    char32_t codePoint = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0u) != 0x80u) return {};
        codePoint = (codePoint << 6) | (at(i) & 0x3Fu);
    }
    const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest || codePoint > 0x10FFFF || surrogate) return {};
    return {codePoint, length};
}

/// `text` as UTF-8. Every byte has a character, so this never fails.
std::string ToUtf8(TextView text);

/// UTF-8 as Windows-1252; nothing when it is no valid UTF-8 or holds a character that the code page lacks.
std::optional<Text> FromUtf8(std::string_view utf8);

/// A file name, any bytes, as a Text and back without loss. Bytes that are no character of the code page
/// become 0x81, a byte that the code page leaves undefined, and two hexadecimal digits.
Text FileNameToText(std::string_view bytes);
std::string FileNameFromText(TextView text);

}  // namespace swiftroll
