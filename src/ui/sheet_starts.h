#pragma once

#include <QtGlobal>
#include <vector>

namespace swiftroll::ui {

/// A stretch of one axis of a drawing.
struct Span {
    qreal begin, end;
};

/// Where the sheets begin along one axis of a drawing of this length, 0 first; none reaches further than
/// `most`. A sheet ends at the last of the `seams`, where a drawing ends, if the next one fits a sheet;
/// otherwise where the fewest boxes are cut through. The seams ascend.
std::vector<qreal> SheetStarts(const std::vector<Span>& boxes, const std::vector<qreal>& seams, qreal length,
                               qreal most);

}  // namespace swiftroll::ui
