#pragma once

#include <QPainter>
#include <functional>
#include <variant>
#include <vector>

#include "app/drawing_device.h"

namespace swiftroll::ui {

/// Keeps a drawing as it was told, in twips, to paint it anywhere at any size.
class DrawingRecorder : public DrawingDevice {
  public:
    void Open(TextView title, std::int64_t width, std::int64_t height) override;
    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t colour) override;
    void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                  std::uint32_t colour) override;
    std::int64_t PrintLine(std::int64_t x, std::int64_t y, std::int64_t width, TextView text,
                           const CellFont& font) override;
    void EndDrawing(std::int64_t bottom) override;
    void Close() override;

    /// For the preview, which is shown when a document begins and brought up to date when it ends.
    std::function<void()> OnOpen, OnClose;

    const QString& Title() const { return title_; }
    /// The sheet that the document asks for, and what the drawings take of it and beyond, from its corner.
    QSizeF Sheet() const { return sheet_; }
    QSizeF Extent() const { return extent_; }
    /// Paints what touches `area`; both the painter and the area count in twips.
    void Paint(QPainter& painter, const QRectF& area) const;

  private:
    struct Fill {
        QRectF place;
        QColor colour;
    };
    struct Line {
        QLineF place;
        QColor colour;
    };
    struct Words {
        QRectF place;
        QString text;
        QFont font;
        QColor colour;
    };
    void Reach(qreal right, qreal bottom);

    QString title_;
    QSizeF sheet_, extent_;
    std::vector<std::variant<Fill, Line, Words>> drawn_;
};

}  // namespace swiftroll::ui
