#pragma once

#include <vector>

namespace swiftroll::modPreview {

/// A stretch of one axis of a drawing.
struct Span {
    double begin, end;
};

/// Where the sheets begin along one axis of a drawing of this length, 0 first; none reaches further than
/// `most`. A sheet ends at the last of the `seams`, where a drawing ends, if the next one fits a sheet;
/// otherwise where the fewest boxes are cut through. The seams ascend.
std::vector<double> SheetStarts(const std::vector<Span>& boxes, const std::vector<double>& seams,
                                double length, double most);

}  // namespace swiftroll::modPreview
