#pragma once

#include <array>
#include <functional>

#include "app/drawing_device.h"

namespace swiftroll::modPreview {

/// A rectangle of a drawing, in twips.
struct Area {
    double left = 0, top = 0, right = 0, bottom = 0;
    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

/// How much room the characters of a font take, in parts of its size: the advance of each character of the
/// code page, and how far a line reaches above and below its base line.
struct FontShape {
    std::array<double, 256> advances{};
    double ascent = 1, descent = 0.25;
    double WidthOf(TextView text) const;
};

/// A line of text where it stands: the left end of its base line, its width and the size of its font.
struct PlacedLine {
    Text text;
    const CellFont* font;  // of the text that it is a line of
    double x, baseline, width, size;
};

/// Size of a font in twips, at least a point.
double FontSize(const CellFont& font);

/// The lines of `texts` in a rectangle, as `DrawingSurface::PrintTexts` tells; `shapeOf` knows the fonts. A
/// text that is cut ends in "…".
std::vector<PlacedLine> FitTexts(const Area& box, const std::vector<PrintedText>& texts,
                                 const std::function<const FontShape&(const CellFont&)>& shapeOf);

}  // namespace swiftroll::modPreview
