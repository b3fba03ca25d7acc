#include "preview_sheets.h"

#include <cmath>

namespace swiftroll::ui {
namespace {

constexpr qreal kTwipsPerPoint = 20;
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
        parts_.emplace_back(QPointF(), extent);
        return;
    }
    const int columns = static_cast<int>(std::ceil(extent.width() / printable_.width()));
    const int rows = static_cast<int>(std::ceil(extent.height() / printable_.height()));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (Count() == kMostSheets) return;
            parts_.emplace_back(column * printable_.width(), row * printable_.height(), printable_.width(),
                                printable_.height());
        }
    }
}

void PreviewSheets::Paint(QPainter& painter, int index) const {
    const QRectF part = parts_.at(static_cast<std::size_t>(index));
    painter.save();
    painter.setClipRect(printable_, Qt::IntersectClip);
    painter.translate(printable_.topLeft());
    painter.scale(scale_, scale_);
    painter.translate(-part.topLeft());
    drawing_.Paint(painter, part);
    painter.restore();
}

}  // namespace swiftroll::ui
