#include "charset/byte_survey.h"

#include <unicode/uchar.h>

#include "charset/code_pages.h"
#include "charset/file_walk.h"
#include "text/code_page.h"

namespace swiftroll::charset {
namespace {

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

/// How well a character goes into the names and texts of a family tree.
std::int64_t Likeliness(char32_t character, bool isBehindSmallLetter) {
    constexpr std::u32string_view kFrequent = U"éèàçêüöäøåáíóñ", kSigns = U"’‘“”«»–—…°\u00A0";
    if (kFrequent.find(character) != std::u32string_view::npos) return 3;
    if (kSigns.find(character) != std::u32string_view::npos) return 0;
    const auto codePoint = static_cast<UChar32>(character);
    if (!CodePageByte(character) || u_isalpha(codePoint) == 0) return -2;
    if (u_isupper(codePoint) == 0) return 2;
    return isBehindSmallLetter ? -1 : 1;
}

}  // namespace

Charset ByteSurvey::MostPlausible() const {
    Charset best = Charset::Windows1252;
    std::optional<std::int64_t> bestScore;
    for (const Charset charset : {Charset::Windows1252, Charset::CodePage850, Charset::Macintosh}) {
        const HighHalf characters = HighHalfOf(charset);
        std::int64_t score = 0;
        for (const bool isBehind : {false, true}) {
            const auto& bytes = counts[isBehind ? 1 : 0];
            for (std::size_t i = 0; i < bytes.size(); ++i) {
                if (bytes[i] > 0) score += bytes[i] * Likeliness(characters[i], isBehind);
            }
        }
        if (bestScore && score <= *bestScore) continue;
        best = charset;
        bestScore = score;
    }
    return best;
}

ByteSurvey SurveyBytes(File& file) {
    ByteSurvey survey;
    // Each way of reading goes on behind what it took, whatever the others took.
    std::size_t anselDone = 0, utf8Done = 0;
    char before = ' ';
    WalkFile(file, [&](TextView bytes, std::size_t end) {
        std::size_t at = 0;
        while ((at = FindHighByte(bytes, at)) < end) {
            if (at > 0) before = bytes[at - 1];
            const auto byte = static_cast<unsigned char>(bytes[at]);
            ++survey.counts[IsSmallLetter(before) ? 1 : 0][byte - 0x80u];
            if (at >= anselDone) anselDone = at + JudgeAnsel(bytes, at, survey.ansel);
            if (at >= utf8Done) {
                const std::size_t length = FirstUtf8Char(bytes.substr(at)).length;
                ++(length > 0 ? survey.utf8 : survey.notUtf8);
                utf8Done = at + std::max<std::size_t>(length, 1);
            }
            ++at;
        }
        if (at > 0) before = bytes[at - 1];
        anselDone -= std::min(anselDone, at);
        utf8Done -= std::min(utf8Done, at);
        return at;
    });
    return survey;
}

}  // namespace swiftroll::charset
