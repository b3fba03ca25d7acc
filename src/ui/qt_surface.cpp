#include "qt_surface.h"

#include <QFontMetricsF>

#include "colours.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kLineWidth = 15;  // a pixel of the screen
constexpr int kMeasuredSize = 1000;

QFont FontOf(const CellFont& font, qreal size) {
    QFont shown(ToQt(font.name));
    shown.setPixelSize(std::max(1, qRound(size)));
    shown.setBold(font.bold);
    shown.setItalic(font.italic);
    shown.setUnderline(font.underline);
    // At any zoom a letter takes the part of the line that was measured.
    shown.setHintingPreference(QFont::PreferNoHinting);
    return shown;
}

modPreview::FontShape Measure(const CellFont& font) {
    const QFontMetricsF metrics(FontOf(font, kMeasuredSize));
    modPreview::FontShape shape;
    shape.ascent = metrics.ascent() / kMeasuredSize;
    shape.descent = metrics.descent() / kMeasuredSize;
    for (std::size_t c = 1; c < shape.advances.size(); ++c) {
        const char character = static_cast<char>(c);
        shape.advances[c] = metrics.horizontalAdvance(ToQt(TextView(&character, 1))) / kMeasuredSize;
    }
    return shape;
}

QRectF Rectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height) {
    return QRectF(static_cast<qreal>(left), static_cast<qreal>(top), static_cast<qreal>(width),
                  static_cast<qreal>(height));
}

}  // namespace

const modPreview::FontShape& QtFontShapes::Of(const CellFont& font) {
    const auto [place, isNew] = shapes_.try_emplace({font.name, font.bold, font.italic});
    if (isNew) place->second = Measure(font);
    return place->second;
}

void QtSurface::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                              std::uint32_t colour) {
    lastBox_ = Rectangle(left, top, width, height).normalized();
    painter_.fillRect(lastBox_, ColourOf(colour));
}

void QtSurface::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                         std::uint32_t colour) {
    painter_.setPen(QPen(ink_.value_or(ColourOf(colour)), kLineWidth));
    painter_.drawLine(QPointF(static_cast<qreal>(x1), static_cast<qreal>(y1)),
                      QPointF(static_cast<qreal>(x2), static_cast<qreal>(y2)));
}

void QtSurface::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                           const std::vector<PrintedText>& texts) {
    const QRectF box = Rectangle(left, top, width, height);
    const bool isOnGround = ink_.has_value() && !lastBox_.contains(box);
    const auto shapeOf = [this](const CellFont& font) -> const modPreview::FontShape& {
        return shapes_.Of(font);
    };
    const modPreview::Area area{box.left(), box.top(), box.right(), box.bottom()};
    for (const modPreview::PlacedLine& line : FitTexts(area, texts, shapeOf)) {
        painter_.setPen(isOnGround ? *ink_ : ColourOf(line.font->colour));
        painter_.setFont(FontOf(*line.font, line.size));
        painter_.drawText(QPointF(line.x, line.baseline), ToQt(line.text));
    }
}

void QtSurface::ShowPart(double x, double y, double scale, const modPreview::Area& area,
                         const std::function<void()>& draw) {
    painter_.save();
    painter_.translate(x, y);
    painter_.scale(scale, scale);
    // Lines are drawn to both sides of their place.
    painter_.setClipRect(QRectF(area.left, area.top, area.Width(), area.Height())
                             .adjusted(-kLineWidth, -kLineWidth, kLineWidth, kLineWidth),
                         Qt::IntersectClip);
    draw();
    painter_.restore();
}

}  // namespace swiftroll::ui
