#pragma once

#include <QPageLayout>

#include "drawing_recorder.h"

namespace swiftroll::ui {

/// The sheets that the drawings take: beside and below each other on as many as they need, cut between
/// drawings and boxes where that can be, or made smaller to fit one. Sheets without anything on them are left
/// out.
class PreviewSheets {
  public:
    /// Lays the drawing out on sheets of this layout.
    PreviewSheets(const DrawingRecorder& drawing, const QPageLayout& layout, bool fitToOne);

    int Count() const { return static_cast<int>(parts_.size()); }
    /// Size of a sheet in twips.
    QSizeF Sheet() const { return sheet_; }
    /// Paints the sheet `index` from 0; the painter counts in twips of paper.
    void Paint(QPainter& painter, int index) const;

  private:
    void Divide();

    const DrawingRecorder& drawing_;
    QSizeF sheet_;
    QRectF printable_;
    qreal scale_ = 1;
    std::vector<QRectF> parts_;  // of the drawing, by sheet
};

}  // namespace swiftroll::ui
