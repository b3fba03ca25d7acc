#pragma once

#include <vector>

#include "text/text.h"

namespace swiftroll::modPreview {

/// A stretch of a cell's text in one style; it begins a new line when `afterBreak` is set.
struct TextPiece {
    Text text;
    bool bold = false, underline = false, italic = false;
    bool toRight = false;
    bool afterBreak = false;
};

/// The pieces of a cell's text with its tags <b>, <u>, <i>, <br> and <RIGHT>, in order; empty ones are left
/// out unless they break a line.
std::vector<TextPiece> SplitTags(TextView sText);

}  // namespace swiftroll::modPreview
