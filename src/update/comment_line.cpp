#include "update/comment_line.h"

#include "text/edit.h"

namespace swiftroll {

TextView AddColor(TextView sText, NodeLook& look) {
    constexpr std::pair<char, std::uint32_t> kMarks[] = {
        {'!', 255}, {'>', 0xFF0000}, {'<', 0xFF00FF}, {'_', 2}};
    look.foreColour = 0;
    look.backColour = 0xFFFFFF;
    for (const auto& [mark, colour] : kMarks) {
        if (!sText.starts_with(mark)) continue;
        look.foreColour = colour;
        return sText.substr(1);
    }
    return sText;
}

Text TabString(TextView sText) {
    constexpr std::size_t kMostStars = 3, kBlanksPerStar = 4;
    std::size_t stars = 0;
    while (stars < kMostStars && stars < sText.size() && sText[stars] == '*') ++stars;
    return Concat({Text(stars * kBlanksPerStar, ' '), sText.substr(stars)});
}

}  // namespace swiftroll
