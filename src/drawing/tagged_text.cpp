#include "drawing/tagged_text.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modPreview {
namespace {

constexpr char kMark = 1;
constexpr std::size_t kMarkerSize = 4;

/// Tags of cells, and the markers of four characters that stand for them behind a mark.
constexpr std::pair<TextView, TextView> kMarkers[] = {{"<b>", "<+b>"},  {"</b>", "<-b>"},   {"<u>", "<+u>"},
                                                      {"</u>", "<-u>"}, {"<i>", "<+i>"},    {"</i>", "<-i>"},
                                                      {"<br>", "<BR>"}, {"<RIGHT>", "<RI>"}};

/// Takes the marker off the head of a piece; false when it begins with none.
bool TakeMarker(TextPiece& piece, TextView marker) {
    if (marker == "<+b>" || marker == "<-b>") {
        piece.bold = marker[1] == '+';
    } else if (marker == "<+u>" || marker == "<-u>") {
        piece.underline = marker[1] == '+';
    } else if (marker == "<+i>" || marker == "<-i>") {
        piece.italic = marker[1] == '+';
    } else if (marker == "<BR>") {
        piece.afterBreak = true;
    } else if (marker == "<RI>") {
        piece.toRight = true;
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::vector<TextPiece> SplitTags(TextView sText) {
    Text marked(sText);
    for (const auto& [tag, marker] : kMarkers) {
        marked = ReplaceAll(marked, tag, Concat({TextView(&kMark, 1), marker}));
    }
    std::vector<TextPiece> pieces;
    TextPiece style;
    for (TextView rest = marked; !rest.empty();) {
        const std::size_t end = std::min(rest.find(kMark), rest.size());
        TextView text = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        style.afterBreak = false;
        if (text.size() >= kMarkerSize && TakeMarker(style, text.substr(0, kMarkerSize))) {
            text.remove_prefix(kMarkerSize);
        }
        if (text.empty() && !style.afterBreak) continue;
        pieces.push_back(style);
        pieces.back().text = text;
    }
    return pieces;
}

}  // namespace swiftroll::modPreview
