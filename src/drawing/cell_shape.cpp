#include "drawing/cell_shape.h"

#include <cmath>
#include <limits>

#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

/// 4/5 as a 32-bit float, which is a little more: four fifths of 80 are 64, one fifth is 15.
constexpr float sngLineRatio = 0.8F;

/// Half of a number, rounded down.
std::int64_t Half(std::int64_t number) { return number >= 0 ? number / 2 : (number - 1) / 2; }

std::int64_t Floor(double number) { return static_cast<std::int64_t>(std::floor(number)); }

void CheckFits(const CellRectangle& rectangle) {
    for (const std::int64_t number : {rectangle.top, rectangle.left, rectangle.height, rectangle.width}) {
        if (std::abs(number) > std::numeric_limits<std::int32_t>::max()) throw Failure(FailureKind::Overflow);
    }
}

}  // namespace

CellSizes::CellSizes(const OptionRecord& options) : bLandscape(options.txtKinshipLandscape.Checked()) {
    const std::int64_t width = ToLong(options.txtKinWidth.Get()), height = ToLong(options.txtKinHeight.Get());
    const std::int64_t horizontal = ToLong(options.txtKinH.Get()), vertical = ToLong(options.txtKinV.Get());
    lBoxY = bLandscape ? height : width;
    lBoxX = bLandscape ? width : height;
    lGapY = bLandscape ? vertical : horizontal;
    lGapX = bLandscape ? horizontal : vertical;
}

std::int64_t ComputeTop(std::int32_t lIdx, std::int32_t lMin, std::int64_t lBox, std::int64_t lGap) {
    const std::int64_t distance = std::int64_t{lIdx} - lMin;
    return Half(distance) * (lBox + lGap) + (distance % 2 != 0 ? lBox : 0);
}

CellRectangle RectangleOf(const GridCell& cell, const KinshipGrid& grid, const CellSizes& sizes) {
    const std::int64_t top = ComputeTop(cell.y, grid.lMinY, sizes.lBoxY, sizes.lGapY);
    const std::int64_t left = ComputeTop(cell.x, grid.lMinX, sizes.lBoxX, sizes.lGapX);
    const auto boxY = static_cast<double>(sizes.lBoxY);
    // A marriage line ends above the lower edge of the boxes, and what hangs on it begins there.
    const std::int64_t marriageHeight = Floor(boxY * double{sngLineRatio});
    const std::int64_t above = Floor((1.0 - double{sngLineRatio}) * boxY);
    const std::int64_t halfGapX = Half(sizes.lGapX), halfGapY = Half(sizes.lGapY);
    CellRectangle r{top, left, sizes.lGapY, halfGapX};
    switch (cell.kind) {
        case CellKind::Person:
        case CellKind::UnknownPerson:
            r.height = sizes.lBoxY;
            r.width = sizes.lBoxX;
            break;
        case CellKind::Marriage:
            r.height = marriageHeight;
            r.width = cell.span * sizes.lGapX;
            break;
        case CellKind::ChildLeft:
            r = {top + halfGapY, left + Half(sizes.lBoxX), halfGapY, sizes.lGapX + sizes.lBoxX};
            break;
        case CellKind::Child1Parent:
            break;
        case CellKind::Child2Parents:
            r.top -= above;
            r.height += above;
            break;
        case CellKind::Children1Parent:
            r.height = halfGapY;
            break;
        case CellKind::Children2Parents:
            r.top -= above;
            r.height = halfGapY + above;
            break;
    }
    if (!sizes.bLandscape) {
        const std::int64_t pageHeight = (std::int64_t{grid.lMaxX} - grid.lMinX + 1) * sizes.lBoxX;
        r = {pageHeight - r.left - r.width, r.top, r.width, r.height};
    }
    CheckFits(r);
    return r;
}

std::int64_t DrawingHeight(const KinshipGrid& grid, const CellSizes& sizes) {
    return sizes.bLandscape ? ComputeTop(grid.lMaxY + 1, grid.lMinY, sizes.lBoxY, sizes.lGapY)
                            : ComputeTop(grid.lMaxX + 1, grid.lMinX, sizes.lBoxX, sizes.lGapX);
}

std::int64_t RuleWidth(const KinshipGrid& grid, const CellSizes& sizes) {
    constexpr std::int64_t kBeyond = 10;
    if (sizes.bLandscape) {
        return Half((std::int64_t{grid.lMaxX} - grid.lMinX + 1) * (sizes.lGapX + sizes.lBoxX)) + kBeyond;
    }
    const auto lines = static_cast<double>(std::int64_t{grid.lMaxY} - grid.lMinY + 2);
    const double width = lines / 2 * static_cast<double>(sizes.lBoxY + sizes.lGapY) -
                         static_cast<double>(sizes.lGapY) + static_cast<double>(kBeyond);
    return std::llrint(width);  // a half goes to the even neighbour
}

}  // namespace swiftroll::modKinshipOutput
