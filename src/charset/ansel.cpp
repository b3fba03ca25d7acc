#include "charset/ansel.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <array>

namespace swiftroll::charset {
namespace {

constexpr char32_t kUndefined = 0xFFFD;
constexpr unsigned char kFirst = 0xA0, kFirstMark = 0xE0;

/// Code points of the bytes from 0xA0 on, 0 where ANSEL has none. GEDCOM's own are 0xBE, 0xBF, 0xCD to 0xCF
/// and 0xFC.
constexpr std::array<char16_t, 96> kCodePoints = {
    0,      0x0141, 0x00D8, 0x0110, 0x00DE, 0x00C6, 0x0152, 0x02B9, 0x00B7, 0x266D, 0x00AE, 0x00B1,
    0x01A0, 0x01AF, 0x02BC, 0,      0x02BB, 0x0142, 0x00F8, 0x0111, 0x00FE, 0x00E6, 0x0153, 0x02BA,
    0x0131, 0x00A3, 0x00F0, 0,      0x01A1, 0x01B0, 0x25A1, 0x25A0, 0x00B0, 0x2113, 0x2117, 0x00A9,
    0x266F, 0x00BF, 0x00A1, 0x00DF, 0x20AC, 0,      0,      0,      0,      0x0065, 0x006F, 0x00DF,
    0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,
    0,      0,      0,      0,      0x0309, 0x0300, 0x0301, 0x0302, 0x0303, 0x0304, 0x0306, 0x0307,
    0x0308, 0x030C, 0x030A, 0xFE20, 0xFE21, 0x0315, 0x030B, 0x0310, 0x0327, 0x0328, 0x0323, 0x0324,
    0x0325, 0x0333, 0x0332, 0x0326, 0x031C, 0x032E, 0xFE22, 0xFE23, 0x0338, 0,      0x0313, 0};

/// The code point of a byte; a blank behind the end.
char32_t CodePointAt(TextView text, std::size_t at) {
    if (at >= text.size()) return U' ';
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80) return byte;
    const char16_t codePoint = byte < kFirst ? u'\0' : kCodePoints[byte - kFirst];
    return codePoint == 0 ? kUndefined : codePoint;
}

bool IsMark(TextView text, std::size_t at) {
    return at < text.size() && static_cast<unsigned char>(text[at]) >= kFirstMark &&
           CodePointAt(text, at) != kUndefined;
}

bool IsLetter(TextView text, std::size_t at) {
    return !IsMark(text, at) && u_isalpha(static_cast<UChar32>(CodePointAt(text, at))) != 0;
}

/// Whether the two halves of a joining mark and their letters begin at `at`.
bool IsJoined(TextView text, std::size_t at) {
    const char32_t first = CodePointAt(text, at);
    const bool isFirstHalf = first == 0xFE20 || first == 0xFE22;
    return isFirstHalf && IsLetter(text, at + 1) && CodePointAt(text, at + 2) == first + 1 &&
           IsLetter(text, at + 3);
}

/// Whether Unicode has the letter with the mark as one character.
bool CanChange(char32_t mark, char32_t letter) {
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* const composer = icu::Normalizer2::getNFCInstance(error);
    return U_SUCCESS(error) != 0 &&
           composer->composePair(static_cast<UChar32>(letter), static_cast<UChar32>(mark)) >= 0;
}

}  // namespace

void DecodeAnsel(TextView text, std::u32string& codePoints) {
    codePoints.clear();
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t marks = at;
        while (IsMark(text, at)) ++at;
        const std::size_t letter = at;
        if (letter == text.size()) return;
        codePoints += CodePointAt(text, at++);
        for (std::size_t mark = marks; mark < letter; ++mark) codePoints += CodePointAt(text, mark);
    }
}

std::size_t JudgeAnsel(TextView text, std::size_t at, AnselFit& fit) {
    if (!IsMark(text, at)) {
        if (CodePointAt(text, at) == kUndefined) ++fit.wrong;
        return 1;
    }
    if (IsJoined(text, at)) {
        fit.right += 2;
        return 4;
    }
    std::size_t letter = at;
    while (letter < at + 4 && IsMark(text, letter)) ++letter;
    const bool isRight =
        IsLetter(text, letter) && CanChange(CodePointAt(text, at), CodePointAt(text, letter));
    ++(isRight ? fit.right : fit.wrong);
    return 1;
}

}  // namespace swiftroll::charset
