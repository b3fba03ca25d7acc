#include "note_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace bench {
namespace {

constexpr std::uint32_t kNewLinePerThousand = 500;
constexpr std::size_t kFullLine = 120;  // a sentence more stays within the 255 bytes of a GEDCOM line
constexpr std::uint32_t kSplitPerThousand = 400;

void StartLine(std::string& out, char level, std::string_view tag) {
    out.append("\r\n");
    out.push_back(level);
    out.append(" ").append(tag).append(" ");
}

// A value goes on in a CONC line in the middle of a word, for readers may drop spaces at the ends of lines.
std::size_t SplitPoint(std::string_view sentence) {
    std::size_t point = sentence.size() / 2;
    while (sentence[point] == ' ' || sentence[point - 1] == ' ' || sentence[point - 1] == '@') {
        ++point;
    }
    return point;
}

}  // namespace

void AppendNoteText(std::string& out, char level, const Vocabulary& vocabulary, Random& random) {
    std::size_t lineStart = out.size();
    const auto startLine = [&](std::string_view tag) {
        StartLine(out, level, tag);
        lineStart = out.size();
    };
    const int sentences = random.Between(1, 4);
    for (int i = 0; i < sentences; ++i) {
        if (i > 0 && (out.size() - lineStart > kFullLine || random.Chance(kNewLinePerThousand))) {
            startLine("CONT");
        } else if (i > 0) {
            out.push_back(' ');
        }
        const std::string_view sentence = vocabulary.Sentence(random);
        if (random.Chance(kSplitPerThousand)) {
            const std::size_t point = SplitPoint(sentence);
            out.append(sentence.substr(0, point));
            startLine("CONC");
            out.append(sentence.substr(point));
        } else {
            out.append(sentence);
        }
    }
    out.append("\r\n");
}

}  // namespace bench
