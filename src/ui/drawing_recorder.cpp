#include "drawing_recorder.h"

#include <QFontMetricsF>
#include <QLocale>
#include <algorithm>

#include "colours.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kTwipsPerPoint = 20;
constexpr qreal kLineWidth = 15;    // a pixel of the screen
constexpr qreal kTextMargin = 45;   // between the edge of a box and its text
constexpr qreal kSmallestSize = 1;  // points
constexpr qreal kSmallestScale = 0.5, kScaleStep = 0.1;

/// The font at `scale` of its size, for a painter whose pixel is a twip.
QFont FontOf(const CellFont& font, qreal scale) {
    QFont shown(ToQt(font.name));
    const qreal points = std::max(kSmallestSize, QLocale(QLocale::French).toDouble(ToQt(font.size)));
    shown.setPixelSize(static_cast<int>(points * scale * kTwipsPerPoint));
    shown.setBold(font.bold);
    shown.setItalic(font.italic);
    shown.setUnderline(font.underline);
    shown.setStrikeOut(font.strikethrough);
    return shown;
}

}  // namespace

void DrawingRecorder::Open(TextView title, std::int64_t width, std::int64_t height) {
    title_ = ToQt(title);
    sheet_ = QSizeF(static_cast<qreal>(width), static_cast<qreal>(height));
    extent_ = {};
    seams_.clear();
    drawn_.clear();
    lastBox_ = {};
    if (OnOpen) OnOpen();
}

void DrawingRecorder::Reach(qreal right, qreal bottom) {
    extent_ = extent_.expandedTo(QSizeF(right, bottom));
}

void DrawingRecorder::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width,
                                    std::int64_t height, std::uint32_t colour) {
    const QRectF place(static_cast<qreal>(left), static_cast<qreal>(top), static_cast<qreal>(width),
                       static_cast<qreal>(height));
    lastBox_ = place.normalized();
    drawn_.push_back(Fill{lastBox_, ColourOf(colour)});
    Reach(place.right(), place.bottom());
}

void DrawingRecorder::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                               std::uint32_t colour) {
    const QLineF line(static_cast<qreal>(x1), static_cast<qreal>(y1), static_cast<qreal>(x2),
                      static_cast<qreal>(y2));
    drawn_.push_back(Line{line, ColourOf(colour), OwnerOf(line)});
    Reach(std::max(line.x1(), line.x2()), std::max(line.y1(), line.y2()));
}

QRectF DrawingRecorder::OwnerOf(const QLineF& line) const {
    const QRectF own = QRectF(line.p1(), line.p2()).normalized();
    const bool isEdge = own.united(lastBox_) == lastBox_ &&
                        (own.height() == lastBox_.height() || own.width() == lastBox_.width());
    return isEdge ? lastBox_ : own;
}

void DrawingRecorder::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                                 const std::vector<PrintedText>& texts) {
    const QRectF box(static_cast<qreal>(left), static_cast<qreal>(top), static_cast<qreal>(width),
                     static_cast<qreal>(height));
    const QRectF room = box.adjusted(kTextMargin, kTextMargin, -kTextMargin, -kTextMargin);
    std::optional<std::vector<Words>> words;
    for (qreal scale = 1; !words && scale > kSmallestScale; scale -= kScaleStep) {
        words = Fit(room, texts, scale, false);
    }
    if (!words) words = Fit(room, texts, kSmallestScale, true);
    drawn_.insert(drawn_.end(), words->begin(), words->end());
}

std::optional<std::vector<DrawingRecorder::Words>> DrawingRecorder::Fit(const QRectF& room,
                                                                        const std::vector<PrintedText>& texts,
                                                                        qreal scale, bool must) {
    const auto wrap = must ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
    const int flags = static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | wrap;
    std::vector<Words> words;
    qreal y = room.top();
    for (const PrintedText& text : texts) {
        y += static_cast<qreal>(text.gap);
        const QFont font = FontOf(text.font, scale);
        const QString shown = ToQt(text.text);
        const QRectF below(room.left(), y, room.width(), room.bottom() - y);
        const QRectF needed = QFontMetricsF(font).boundingRect(below, flags, shown);
        if (!must && (needed.width() > below.width() || needed.bottom() > below.bottom())) return {};
        if (below.height() <= 0) break;
        words.push_back({below, shown, font, ColourOf(text.font.colour), flags});
        y += needed.height();
    }
    return words;
}

void DrawingRecorder::EndDrawing(std::int64_t bottom) { seams_.push_back(static_cast<qreal>(bottom)); }

void DrawingRecorder::Close() {
    if (OnClose) OnClose();
}

std::vector<DrawingRecorder::Place> DrawingRecorder::Places() const {
    std::vector<Place> places;
    for (const auto& item : drawn_) {
        if (const auto* fill = std::get_if<Fill>(&item)) {
            places.push_back({fill->place, true});
        } else if (const auto* line = std::get_if<Line>(&item)) {
            places.push_back({line->place, false});
        }
    }
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.rectangle.top() < b.rectangle.top(); });
    return places;
}

bool DrawingRecorder::BelongsTo(const QRectF& area, const QRectF& place) {
    const auto overlaps = [](qreal begin, qreal end, qreal first, qreal last) {
        return first < end && (last > begin || (first == last && first >= begin));
    };
    return overlaps(area.left(), area.right(), place.left(), place.right()) &&
           overlaps(area.top(), area.bottom(), place.top(), place.bottom());
}

void DrawingRecorder::Paint(QPainter& painter, const QRectF& area) const {
    const auto paint = [&](const auto& item) {
        using Item = std::decay_t<decltype(item)>;
        if (!BelongsTo(area, item.place)) return;
        if constexpr (std::is_same_v<Item, Fill>) {
            painter.fillRect(item.place, item.colour);
        } else if constexpr (std::is_same_v<Item, Line>) {
            painter.setPen(QPen(item.colour, kLineWidth));
            painter.drawLine(item.line);
        } else {
            painter.setPen(item.colour);
            painter.setFont(item.font);
            painter.drawText(item.place, item.flags, item.text);
        }
    };
    for (const auto& item : drawn_) std::visit(paint, item);
}

}  // namespace swiftroll::ui
