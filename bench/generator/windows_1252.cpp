#include "windows_1252.h"

#include <cstdint>
#include <stdexcept>

namespace bench {
namespace {

// Characters of Windows-1252 outside Latin-1 that French text needs.
char EncodeOutsideLatin1(std::uint32_t codePoint) {
    switch (codePoint) {
        case 0x0152:
            return '\x8C';  // Œ
        case 0x0153:
            return '\x9C';  // œ
        case 0x0178:
            return '\x9F';  // Ÿ
        case 0x2013:
            return '\x96';  // en dash
        case 0x2019:
            return '\x92';  // typographic apostrophe
        case 0x2026:
            return '\x85';  // ellipsis
        default:
            throw std::logic_error("a vocabulary holds a character that Windows-1252 lacks");
    }
}

char Encode(std::uint32_t codePoint) {
    const bool sameInLatin1 = codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF);
    return sameInLatin1 ? static_cast<char>(codePoint) : EncodeOutsideLatin1(codePoint);
}

}  // namespace

std::string ToWindows1252(std::string_view utf8) {
    std::string encoded;
    encoded.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[at++]);
        const int following = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : 2;
        std::uint32_t codePoint = following == 0 ? lead : following == 1 ? lead & 0x1FU : lead & 0x0FU;
        for (int i = 0; i < following; ++i) {
            codePoint = (codePoint << 6) | (static_cast<unsigned char>(utf8.at(at++)) & 0x3FU);
        }
        encoded.push_back(Encode(codePoint));
    }
    return encoded;
}

}  // namespace bench
