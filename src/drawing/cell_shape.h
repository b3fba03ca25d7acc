#pragma once

#include "app/option_record.h"
#include "drawing/kinship_grid.h"

namespace swiftroll::modKinshipOutput {

/// Sizes of boxes and gaps along the axes of the grid, in the units of the drawing.
struct CellSizes {
    /// Reads the options. @throws Failure TypeMismatch, Overflow for a size that is no number
    explicit CellSizes(const OptionRecord& options);

    std::int64_t lBoxY, lBoxX, lGapY, lGapX;
    /// Ancestors stand on top, and not on the left: the y axis of the grid runs down the page.
    bool bLandscape;

    friend bool operator==(const CellSizes&, const CellSizes&) = default;
};

/// A rectangle in the units of the drawing.
struct CellRectangle {
    std::int64_t top, left, height, width;
};

/// Offset of the grid line `lIdx` along an axis that begins at `lMin`: even lines start a box, odd ones a
/// gap.
std::int64_t ComputeTop(std::int32_t lIdx, std::int32_t lMin, std::int64_t lBox, std::int64_t lGap);

/// The rectangle of a cell on the page, before the offset of the drawing. @throws Failure Overflow when it
/// does not fit 32 bits
CellRectangle RectangleOf(const GridCell& cell, const KinshipGrid& grid, const CellSizes& sizes);

/// Height that a drawing takes on the page.
std::int64_t DrawingHeight(const KinshipGrid& grid, const CellSizes& sizes);
/// Width of the rule under a drawing.
std::int64_t RuleWidth(const KinshipGrid& grid, const CellSizes& sizes);

}  // namespace swiftroll::modKinshipOutput
