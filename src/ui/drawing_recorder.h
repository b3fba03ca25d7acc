#pragma once

#include <QPainter>
#include <functional>
#include <optional>
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
    void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                    const std::vector<PrintedText>& texts) override;
    void EndDrawing(std::int64_t bottom) override;
    void Close() override;

    /// For the preview, which is shown when a document begins and brought up to date when it ends.
    std::function<void()> OnOpen, OnClose;

    const QString& Title() const { return title_; }
    /// The sheet that the document asks for, and what the drawings take of it and beyond, from its corner.
    QSizeF Sheet() const { return sheet_; }
    QSizeF Extent() const { return extent_; }
    /// Where one drawing ends and the next one begins, from the top.
    const std::vector<qreal>& Seams() const { return seams_; }
    /// The place of everything that was drawn, from the top down; the boxes are the ground of the texts, and
    /// their edges count as part of them.
    struct Place {
        QRectF rectangle;
        bool isBox;
    };
    std::vector<Place> Places() const;
    /// Whether something at `place` belongs to `area`: what only touches it from outside does not, and what
    /// has no width lies in the area that it begins.
    static bool BelongsTo(const QRectF& area, const QRectF& place);
    /// Paints what belongs to `area`, which reaches beyond it where it is cut; both the painter and the area
    /// count in twips.
    void Paint(QPainter& painter, const QRectF& area) const;

  private:
    struct Fill {
        QRectF place;
        QColor colour;
    };
    struct Line {
        QLineF line;
        QColor colour;
        QRectF place;  // of the box that it is an edge of, or its own
    };
    struct Words {
        QRectF place;
        QString text;
        QFont font;
        QColor colour;
        int flags;
    };
    /// The texts as they stand in `room` at `scale` of their size; nothing when they go beyond it, unless
    /// they `must` fit: long words are broken then, and what is below is cut.
    static std::optional<std::vector<Words>> Fit(const QRectF& room, const std::vector<PrintedText>& texts,
                                                 qreal scale, bool must);
    void Reach(qreal right, qreal bottom);
    /// The place of the box that was begun last, if the line is one of its edges; else that of the line.
    QRectF OwnerOf(const QLineF& line) const;

    QString title_;
    QSizeF sheet_, extent_;
    std::vector<qreal> seams_;
    std::vector<std::variant<Fill, Line, Words>> drawn_;
    QRectF lastBox_;
};

}  // namespace swiftroll::ui
