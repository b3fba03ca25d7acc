#include "text/code_page.h"

namespace swiftroll {
namespace {

constexpr char kEscape = static_cast<char>(0x81);
constexpr char kHexDigits[] = "0123456789ABCDEF";

void AppendUtf8(std::string& out, char32_t codePoint) {
    if (codePoint < 0x80) {
        out += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        out += static_cast<char>(0xC0 | (codePoint >> 6));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (codePoint >> 12));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
}

int HexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

void AppendEscaped(Text& out, std::string_view bytes) {
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        out += kEscape;
        out += kHexDigits[byte >> 4];
        out += kHexDigits[byte & 15];
    }
}

}  // namespace

std::string ToUtf8(TextView text) {
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(out, byte >= 0x80 && byte < 0xA0 ? kCodePageC1[byte - 0x80] : byte);
    }
    return out;
}

std::optional<Text> FromUtf8(std::string_view utf8) {
    Text out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Char next = FirstUtf8Char(utf8);
        const auto byte = CodePageByte(next.codePoint);
        if (next.length == 0 || !byte) return std::nullopt;
        out += static_cast<char>(*byte);
        utf8.remove_prefix(next.length);
    }
    return out;
}

Text FileNameToText(std::string_view bytes) {
    Text out;
    while (!bytes.empty()) {
        const Utf8Char next = FirstUtf8Char(bytes);
        const std::size_t length = next.length == 0 ? 1 : next.length;
        const bool isControl = next.codePoint >= 0x80 && next.codePoint < 0xA0;
        const auto byte = CodePageByte(next.codePoint);
        if (next.length == 0 || isControl || !byte) {
            AppendEscaped(out, bytes.substr(0, length));
        } else {
            out += static_cast<char>(*byte);
        }
        bytes.remove_prefix(length);
    }
    return out;
}

std::string FileNameFromText(TextView text) {
    std::string out;
    while (!text.empty()) {
        if (text[0] == kEscape && text.size() >= 3 && HexValue(text[1]) >= 0 && HexValue(text[2]) >= 0) {
            out += static_cast<char>(HexValue(text[1]) * 16 + HexValue(text[2]));
            text.remove_prefix(3);
        } else {
            out += ToUtf8(text.substr(0, 1));
            text.remove_prefix(1);
        }
    }
    return out;
}

}  // namespace swiftroll
