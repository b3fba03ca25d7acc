#include "preview_sheets.h"

#include <algorithm>

#include "sheet_starts.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kTwipsPerPoint = 20;
/// What a line at the edge of a sheet may reach beyond it.
constexpr qreal kEdge = 15;
/// What the last sheets hold beyond the drawing, so that what ends it lies within.
constexpr qreal kBeyond = 1;
/// A drawing that would take more sheets than this is cut there: nobody prints them.
constexpr int kMostSheets = 10000;

}  // namespace

PreviewSheets::PreviewSheets(const DrawingRecorder& drawing, const QPageLayout& layout, bool fitToOne)
    : drawing_(drawing) {
    const QRectF full = layout.fullRect(QPageLayout::Point);
    const QRectF inner = layout.paintRect(QPageLayout::Point);
    sheet_ = full.size() * kTwipsPerPoint;
    printable_ = QRectF(inner.topLeft() * kTwipsPerPoint, inner.size() * kTwipsPerPoint);
    const QSizeF extent = drawing.Extent().expandedTo(QSizeF(1, 1));
    if (fitToOne) {
        scale_ = std::min({1.0, printable_.width() / extent.width(), printable_.height() / extent.height()});
        parts_.emplace_back(QPointF(), extent + QSizeF(kBeyond, kBeyond));
        return;
    }
    Divide();
    if (parts_.empty()) parts_.emplace_back(QPointF(), printable_.size());
}

void PreviewSheets::Divide() {
    using Place = DrawingRecorder::Place;
    const std::vector<Place> places = drawing_.Places();
    std::vector<Span> boxes;
    for (const Place& place : places) {
        if (place.isBox) boxes.push_back({place.rectangle.top(), place.rectangle.bottom()});
    }
    const QSizeF extent = drawing_.Extent();
    std::vector<qreal> rows = SheetStarts(boxes, drawing_.Seams(), extent.height(), printable_.height());
    rows.push_back(extent.height() + kBeyond);
    auto first = places.begin();
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        const qreal top = rows[i], bottom = rows[i + 1];
        const QRectF row(0, top, extent.width() + kBeyond, bottom - top);
        while (first != places.end() && first->rectangle.bottom() < top) ++first;
        std::vector<QRectF> inRow;
        boxes.clear();
        for (auto place = first; place != places.end() && place->rectangle.top() < bottom; ++place) {
            const QRectF& rectangle = place->rectangle;
            if (!DrawingRecorder::BelongsTo(row, rectangle)) continue;
            inRow.push_back(rectangle);
            if (place->isBox) boxes.push_back({rectangle.left(), rectangle.right()});
        }
        std::vector<qreal> columns = SheetStarts(boxes, {}, extent.width(), printable_.width());
        columns.push_back(extent.width() + kBeyond);
        for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
            const QRectF part(columns[column], top, columns[column + 1] - columns[column], bottom - top);
            const bool isUsed = std::any_of(inRow.begin(), inRow.end(), [&](const QRectF& rectangle) {
                return DrawingRecorder::BelongsTo(part, rectangle);
            });
            if (!isUsed) continue;
            if (Count() == kMostSheets) return;
            parts_.push_back(part);
        }
    }
}

void PreviewSheets::Paint(QPainter& painter, int index) const {
    const QRectF part = parts_.at(static_cast<std::size_t>(index));
    painter.save();
    painter.translate(printable_.topLeft());
    painter.scale(scale_, scale_);
    // Lines are drawn to both sides of their place.
    painter.setClipRect(QRectF(QPointF(), part.size()).adjusted(-kEdge, -kEdge, kEdge, kEdge),
                        Qt::IntersectClip);
    painter.translate(-part.topLeft());
    drawing_.Paint(painter, part);
    painter.restore();
}

}  // namespace swiftroll::ui
