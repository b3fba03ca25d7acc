#include "drawing/drawing_sheets.h"

#include <algorithm>

#include "drawing/sheet_starts.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modPreview {
namespace {

constexpr double kLongSide = 297 * 1440 / 25.4, kShortSide = 210 * 1440 / 25.4, kMargin = 8 * 1440 / 25.4;
/// What the last sheets hold beyond the drawing, so that what ends it lies within.
constexpr double kBeyond = 1;
/// Drawings that would take more sheets than this are cut there: nobody prints them.
constexpr int kMostSheets = 10000;
/// Strips of the sheet for the titles and for the number of the page.
constexpr double kHeadHeight = 600, kFootHeight = 300;

bool IsAbove(const RecordedDrawing::Place& place, double y) { return place.area.top < y; }

}  // namespace

Paper A4Paper(bool isLandscape) {
    const double width = isLandscape ? kLongSide : kShortSide, height = isLandscape ? kShortSide : kLongSide;
    return {width, height, {kMargin, kMargin, width - kMargin, height - kMargin}};
}

DrawingSheets::DrawingSheets(const RecordedDrawing& drawing, const Paper& paper, SheetLayout layout,
                             int firstPage)
    : drawing_(drawing), paper_(paper), room_(paper.printable), firstPage_(firstPage) {
    if (!drawing.Title().empty()) {
        room_.top += kHeadHeight;
        room_.bottom -= kFootHeight;
    }
    LayOut(layout);
    if (parts_.empty()) parts_.push_back({{0, 0, room_.Width(), room_.Height()}, 1});
}

void DrawingSheets::LayOut(SheetLayout layout) {
    std::vector<double> ends;
    if (layout.drawingPerSheet) {
        for (const RecordedDrawing::Seam& seam : drawing_.Seams()) ends.push_back(seam.bottom);
    }
    const double end = drawing_.Height() + kBeyond;
    if (ends.empty() || ends.back() < end) ends.push_back(end);
    const Places places = drawing_.Places();
    auto first = places.begin();
    double top = 0;
    for (const double bottom : ends) {
        const auto last = std::lower_bound(first, places.end(), bottom,
                                           [](const auto& p, double y) { return IsAbove(p, y); });
        const Places within(first, last);
        if (layout.fitToSheet) {
            Fit(within, top, bottom);
        } else {
            Divide(within, top, bottom);
        }
        first = last;
        top = bottom;
    }
}

void DrawingSheets::Fit(const Places& places, double top, double bottom) {
    if (places.empty() || Count() == kMostSheets) return;
    double right = kBeyond;
    for (const RecordedDrawing::Place& place : places) right = std::max(right, place.area.right + kBeyond);
    const double scale = std::min({1.0, room_.Width() / right, room_.Height() / (bottom - top)});
    parts_.push_back({{0, top, right, bottom}, scale});
}

void DrawingSheets::Divide(const Places& places, double top, double bottom) {
    if (places.empty()) return;
    std::vector<Span> boxes;
    std::vector<double> seams;
    double last = 0;
    for (const RecordedDrawing::Place& place : places) {
        if (place.isWhole) boxes.push_back({place.area.top - top, place.area.bottom - top});
        last = std::max(last, place.area.bottom - top);
    }
    for (const RecordedDrawing::Seam& seam : drawing_.Seams()) {
        if (seam.bottom > top && seam.bottom < bottom) seams.push_back(seam.bottom - top);
    }
    const std::vector<double> starts = SheetStarts(boxes, seams, last, room_.Height());
    auto first = places.begin();
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const Area row{0, top + starts[i], drawing_.Width() + kBeyond,
                       i + 1 < starts.size() ? top + starts[i + 1] : top + last + kBeyond};
        while (first != places.end() && first->area.bottom < row.top) ++first;
        Places inRow;
        for (auto place = first; place != places.end() && IsAbove(*place, row.bottom); ++place) {
            if (RecordedDrawing::BelongsTo(row, place->area)) inRow.push_back(*place);
        }
        AddRow(inRow, row);
    }
}

/// Cuts a row of sheets into its sheets.
void DrawingSheets::AddRow(const Places& inRow, const Area& row) {
    std::vector<Span> boxes;
    for (const RecordedDrawing::Place& place : inRow) {
        if (place.isWhole) boxes.push_back({place.area.left, place.area.right});
    }
    std::vector<double> columns = SheetStarts(boxes, {}, row.right - kBeyond, room_.Width());
    columns.push_back(row.right);
    for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
        const Area part{columns[column], row.top, columns[column + 1], row.bottom};
        const bool isUsed = std::any_of(inRow.begin(), inRow.end(), [&](const RecordedDrawing::Place& place) {
            return RecordedDrawing::BelongsTo(part, place.area);
        });
        if (!isUsed) continue;
        if (Count() == kMostSheets) return;
        parts_.push_back({part, 1});
    }
}

void DrawingSheets::Draw(SheetSurface& surface, int index) const {
    const Part& part = parts_.at(static_cast<std::size_t>(index));
    surface.ShowPart(room_.left - part.area.left * part.scale, room_.top - part.area.top * part.scale,
                     part.scale, part.area, [&] { drawing_.Draw(surface, part.area); });
    if (!drawing_.Title().empty()) DrawFrame(surface, index);
}

/// What stands around the drawing on each sheet.
void DrawingSheets::DrawFrame(DrawingSurface& surface, int index) const {
    const CellFont bold{.size = "10", .bold = true}, plain;
    std::vector<PrintedText> titles{{drawing_.Title(), bold, 0, TextSide::Centre}};
    const Text* const own = TitleOf(parts_[static_cast<std::size_t>(index)].area);
    if (own != nullptr && !own->empty()) titles.push_back({*own, plain, 0, TextSide::Centre});
    const auto print = [&](double top, double height, const std::vector<PrintedText>& texts) {
        surface.PrintTexts(static_cast<std::int64_t>(room_.left), static_cast<std::int64_t>(top),
                           static_cast<std::int64_t>(room_.Width()), static_cast<std::int64_t>(height),
                           texts);
    };
    print(paper_.printable.top, kHeadHeight, titles);
    print(room_.bottom, kFootHeight,
          {{Concat({"Page ", Decimal(firstPage_ + index)}), plain, 0, TextSide::Right}});
}

/// That of the only drawing in a part, or nullptr.
const Text* DrawingSheets::TitleOf(const Area& part) const {
    const auto& seams = drawing_.Seams();
    const auto endsBy = [](const RecordedDrawing::Seam& seam, double y) { return seam.bottom <= y; };
    const auto first = std::lower_bound(seams.begin(), seams.end(), part.top, endsBy);
    if (first == seams.end() || (part.bottom > first->bottom && first + 1 != seams.end())) return nullptr;
    return &first->title;
}

}  // namespace swiftroll::modPreview
