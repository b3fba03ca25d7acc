#include "drawing/sheet_starts.h"

#include <algorithm>

namespace swiftroll::modPreview {
namespace {

/// How much of a sheet is used at least, however many boxes are cut then.
constexpr double kLeastUse = 0.6;
/// A twip: what sums of sizes may be off.
constexpr double kTolerance = 1;

}  // namespace

std::vector<double> SheetStarts(const std::vector<Span>& boxes, const std::vector<double>& seams,
                                double length, double most) {
    std::vector<double> begins, ends;
    for (const Span& box : boxes) {
        begins.push_back(box.begin);
        ends.push_back(box.end);
    }
    std::sort(begins.begin(), begins.end());
    std::sort(ends.begin(), ends.end());
    const auto countCut = [&](double at) {
        const auto begun = std::lower_bound(begins.begin(), begins.end(), at) - begins.begin();
        const auto ended = std::upper_bound(ends.begin(), ends.end(), at) - ends.begin();
        return begun - ended;
    };
    const auto nextStart = [&](double start) {
        const double limit = start + most;
        const auto seam = std::upper_bound(seams.begin(), seams.end(), limit);
        if (seam != seams.begin() && seam[-1] > start) return seam[-1];
        double best = limit;
        auto fewest = countCut(limit);
        auto begin = std::upper_bound(begins.begin(), begins.end(), limit);
        while (fewest > 0 && begin != begins.begin() && *--begin >= start + kLeastUse * most) {
            if (const auto cut = countCut(*begin); cut < fewest) {
                fewest = cut;
                best = *begin;
            }
        }
        return best;
    };
    std::vector<double> starts = {0};
    while (length - starts.back() > most + kTolerance) starts.push_back(nextStart(starts.back()));
    return starts;
}

}  // namespace swiftroll::modPreview
