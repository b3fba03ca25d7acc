#include "charset/transliteration.h"

#include <unicode/normalizer2.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include "text/code_page.h"

namespace swiftroll::charset {
namespace {

// Letters that Russian has not are those of its neighbours; ICU's own rules tell the rest.
constexpr const char* kToLatin =
    "Russian-Latin/BGN; Ukrainian-Latin/BGN; Serbian-Latin/BGN; Cyrillic-Latin; Greek-Latin/BGN; Any-Latin; "
    "NFC";
constexpr const char* kToAscii = "Latin-ASCII";

// Far more than a file of one language holds; a file may hold anything.
constexpr std::size_t kMostKnown = std::size_t{1} << 17;

using Rule = std::unique_ptr<icu::Transliterator>;

/// Nothing where ICU lacks the rule: its characters are left as they are then.
Rule MakeRule(const char* id) {
    UErrorCode error = U_ZERO_ERROR;
    UParseError ignored{};
    return Rule(icu::Transliterator::createInstance(icu::UnicodeString(id, -1, US_INV), UTRANS_FORWARD,
                                                    ignored, error));
}

/// Characters that only shape others, which a text can do without.
bool IsInvisible(UChar32 character) {
    constexpr std::uint32_t kInvisible = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK;
    return (U_GET_GC_MASK(character) & kInvisible) != 0;
}

/// Whether the rules for a character look at its neighbours.
bool HasNeighbours(UChar32 character) {
    UErrorCode error = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(character, &error);
    return script == USCRIPT_CYRILLIC || script == USCRIPT_GREEK;
}

/// The byte of a character. Controls, which no text holds, are bytes of Windows-1252 that were taken for
/// ISO-8859-1.
std::optional<unsigned char> ByteOf(char32_t character) {
    if (character >= 0x80 && character < 0xA0) return static_cast<unsigned char>(character);
    return CodePageByte(character);
}

/// Appends the characters of `text`; `otherwise(character)` takes those that Windows-1252 has not.
template <class Otherwise>
void AppendBytes(const icu::UnicodeString& text, Text& out, Otherwise otherwise) {
    for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1)) {
        const UChar32 character = text.char32At(at);
        if (const auto byte = ByteOf(static_cast<char32_t>(character))) {
            out += static_cast<char>(*byte);
        } else {
            otherwise(character);
        }
    }
}

/// The text without the marks of a letter that are more than any script has: composing takes the square of
/// their number.
icu::UnicodeString Bounded(std::u32string_view text) {
    constexpr int kMostMarks = 30;
    icu::UnicodeString bounded;
    int marks = 0;
    for (const char32_t character : text) {
        marks = u_getCombiningClass(static_cast<UChar32>(character)) == 0 ? 0 : marks + 1;
        if (marks <= kMostMarks) bounded.append(static_cast<UChar32>(character));
    }
    return bounded;
}

icu::UnicodeString Composed(std::u32string_view text) {
    icu::UnicodeString whole = Bounded(text);
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* const composer = icu::Normalizer2::getNFCInstance(error);
    if (U_FAILURE(error) != 0) return whole;
    const icu::UnicodeString composed = composer->normalize(whole, error);
    return U_FAILURE(error) != 0 ? whole : composed;
}

}  // namespace

struct Transliteration::Rules {
    Rule toLatin = MakeRule(kToLatin), toAscii = MakeRule(kToAscii);
};

Transliteration::Transliteration() = default;
Transliteration::~Transliteration() = default;

std::int64_t Transliteration::Append(std::u32string_view text, Text& out) {
    const icu::UnicodeString composed = Composed(text);
    std::int64_t count = 0;
    const auto letterAt = [&](std::int32_t at) {
        const UChar32 character = at < 0 || at >= composed.length() ? 0 : composed.char32At(at);
        return u_isalpha(character) != 0 && HasNeighbours(character) ? static_cast<char32_t>(character)
                                                                     : U'\0';
    };
    for (std::int32_t at = 0, next = 0; at < composed.length(); at = next) {
        next = composed.moveIndex32(at, 1);
        const auto character = static_cast<char32_t>(composed.char32At(at));
        if (const auto byte = ByteOf(character)) {
            out += static_cast<char>(*byte);
            continue;
        }
        const std::int32_t before = at == 0 ? -1 : composed.moveIndex32(at, -1);
        out += HasNeighbours(composed.char32At(at)) ? Of(letterAt(before), character, letterAt(next))
                                                    : Of(0, character, 0);
        ++count;
    }
    return count;
}

const Text& Transliteration::Of(char32_t before, char32_t character, char32_t behind) {
    if (known_.size() >= kMostKnown) known_.clear();
    const auto [entry, isNew] = known_.try_emplace(std::u32string{before, character, behind});
    if (isNew) entry->second = Make(before, character, behind);
    return entry->second;
}

Text Transliteration::Make(char32_t before, char32_t character, char32_t behind) {
    if (rules_ == nullptr) rules_ = std::make_unique<Rules>();
    icu::UnicodeString text;
    if (before != 0) text.append(static_cast<UChar32>(before));
    const std::int32_t begin = text.length();
    text.append(static_cast<UChar32>(character));
    std::int32_t end = text.length();
    if (behind != 0) text.append(static_cast<UChar32>(behind));
    if (rules_->toLatin != nullptr) {
        UTransPosition place{0, text.length(), begin, end};
        rules_->toLatin->finishTransliteration(text, place);
        end = place.limit;
    }
    Text out;
    AppendBytes(text.tempSubStringBetween(begin, end), out, [&](UChar32 latin) {
        icu::UnicodeString ascii(latin);
        if (rules_->toAscii != nullptr) rules_->toAscii->transliterate(ascii);
        AppendBytes(ascii, out, [&](UChar32 unknown) {
            if (!IsInvisible(unknown)) out += '?';
        });
    });
    return out;
}

}  // namespace swiftroll::charset
