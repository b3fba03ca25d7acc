#include "charset/code_pages.h"

#include <unicode/ucnv.h>

#include "text/code_page.h"

namespace swiftroll::charset {
namespace {

/// The name under which ICU knows a code page; nothing for the one that needs no table.
const char* ConverterName(Charset charset) {
    switch (charset) {
        case Charset::Latin9:
            return "ISO-8859-15";
        case Charset::CodePage850:
            return "ibm-850";
        case Charset::Macintosh:
            return "macintosh";
        default:
            return nullptr;
    }
}

bool IsControl(char32_t codePoint) { return codePoint >= 0x80 && codePoint < 0xA0; }

}  // namespace

HighHalf HighHalfOf(Charset charset) {
    HighHalf codePoints{};
    for (std::size_t i = 0; i < codePoints.size(); ++i)
        codePoints[i] = i < std::size(kCodePageC1) ? kCodePageC1[i] : static_cast<char32_t>(0x80 + i);
    const char* const name = ConverterName(charset);
    if (name == nullptr) return codePoints;
    UErrorCode error = U_ZERO_ERROR;
    UConverter* const converter = ucnv_open(name, &error);
    for (std::size_t i = 0; i < codePoints.size() && U_SUCCESS(error) != 0; ++i) {
        const char byte = static_cast<char>(0x80 + i);
        const char* source = &byte;
        const auto codePoint =
            static_cast<char32_t>(ucnv_getNextUChar(converter, &source, source + 1, &error));
        if (U_SUCCESS(error) != 0 && !IsControl(codePoint)) codePoints[i] = codePoint;
    }
    ucnv_close(converter);
    return codePoints;
}

}  // namespace swiftroll::charset
