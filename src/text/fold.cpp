#include "text/fold.h"

#include <array>

#include "text/edit.h"

namespace swiftroll {
namespace {

struct CodeRange {
    unsigned first, last;
    char letter;
};

// The odd corners (Ø is "D", × is a letter, Œ is a blank) are part of what existing lists were sorted by.
constexpr CodeRange kFoldedLetters[] = {
    {192, 198, 'A'}, {199, 199, 'C'}, {200, 203, 'E'}, {204, 207, 'I'}, {208, 208, 'D'},
    {209, 209, 'N'}, {210, 214, 'O'}, {215, 215, 'x'}, {216, 216, 'D'}, {217, 220, 'U'},
    {221, 221, 'Y'}, {222, 222, 'D'}, {223, 223, 'S'}, {224, 230, 'a'}, {231, 231, 'c'},
    {232, 235, 'e'}, {236, 239, 'i'}, {240, 240, 'd'}, {241, 241, 'n'}, {242, 246, 'o'},
    {248, 248, 'o'}, {249, 252, 'u'}, {253, 253, 'y'}, {254, 254, 'd'}, {255, 255, 'y'}};

constexpr std::array<char, 256> InitAlphaNum() {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < 256; ++code) {
        const bool digit = code >= '0' && code <= '9';
        const bool letter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
        table[code] = digit || letter ? static_cast<char>(code) : ' ';
    }
    for (const CodeRange& range : kFoldedLetters) {
        for (unsigned code = range.first; code <= range.last; ++code) table[code] = range.letter;
    }
    return table;
}

constexpr std::array<char, 256> Capitals(std::array<char, 256> table) {
    for (char& c : table) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 0x20);
    }
    return table;
}

constexpr std::array<char, 256> sAlphaNum = InitAlphaNum();
constexpr std::array<char, 256> kAlphaNumCapitals = Capitals(sAlphaNum);

void AppendFolded(Text& out, TextView text, const std::array<char, 256>& table) {
    const std::size_t start = out.size();
    bool blankPending = false;
    for (const char c : text) {
        const char folded = table[static_cast<unsigned char>(c)];
        if (folded == ' ') {
            blankPending = out.size() > start;
            continue;
        }
        if (blankPending) out += ' ';
        blankPending = false;
        out += folded;
    }
}

char Capital(char c) { return kAlphaNumCapitals[static_cast<unsigned char>(c)]; }

}  // namespace

Text FoldAccents(TextView text) {
    Text out;
    AppendFolded(out, text, sAlphaNum);
    return out;
}

void AppendComparisonForm(Text& out, TextView text) { AppendFolded(out, text, kAlphaNumCapitals); }

Text ComparisonForm(TextView text) {
    Text out;
    AppendComparisonForm(out, text);
    return out;
}

bool FoldedContains(TextView text, TextView word) {
    if (word.empty()) return true;
    if (word.size() > text.size()) return false;
    const char* const last = text.data() + (text.size() - word.size());
    for (const char* at = text.data(); at <= last; ++at) {
        if (Capital(*at) != word.front()) continue;
        std::size_t same = 1;
        while (same < word.size() && Capital(at[same]) == word[same]) ++same;
        if (same == word.size()) return true;
    }
    return false;
}

bool FoldedStartsWith(TextView text, TextView word) {
    std::size_t same = 0;
    for (const char c : text) {
        const char folded = Capital(c);
        if (folded == ' ') continue;
        if (folded != word[same]) return false;
        if (++same == word.size()) return true;
    }
    return false;
}

}  // namespace swiftroll
