#include "drawing/recorded_drawing.h"

#include <algorithm>

namespace swiftroll::modPreview {
namespace {

Area AreaOf(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    return {static_cast<double>(std::min(left, right)), static_cast<double>(std::min(top, bottom)),
            static_cast<double>(std::max(left, right)), static_cast<double>(std::max(top, bottom))};
}

bool Holds(const Area& outer, const Area& inner) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

}  // namespace

void RecordedDrawing::Open(TextView title, std::int64_t width, std::int64_t height) {
    title_ = title;
    isLandscape_ = width > height;
    bottom_ = 0;
    Forget();
    if (OnOpen) OnOpen();
}

void RecordedDrawing::Forget() {
    width_ = height_ = 0;
    origin_ = bottom_;
    seams_.clear();
    drawn_.clear();
    lastBox_ = {};
}

void RecordedDrawing::Add(Item item) {
    width_ = std::max(width_, item.place.right);
    height_ = std::max(height_, item.place.bottom);
    drawn_.push_back(std::move(item));
}

void RecordedDrawing::FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width,
                                    std::int64_t height, std::uint32_t colour) {
    top -= origin_;
    lastBox_ = AreaOf(left, top, left + width, top + height);
    Add({Fill{left, top, width, height, colour}, lastBox_});
}

void RecordedDrawing::DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                               std::uint32_t colour) {
    y1 -= origin_;
    y2 -= origin_;
    Add({Line{x1, y1, x2, y2, colour}, OwnerOf(AreaOf(x1, y1, x2, y2))});
}

/// The place of the box that was begun last, if the line is one of its edges; else that of the line.
Area RecordedDrawing::OwnerOf(const Area& line) const {
    const bool isEdge =
        Holds(lastBox_, line) && (line.Height() == lastBox_.Height() || line.Width() == lastBox_.Width());
    return isEdge ? lastBox_ : line;
}

void RecordedDrawing::PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                                 const std::vector<PrintedText>& texts) {
    top -= origin_;
    Add({Texts{left, top, width, height, texts}, AreaOf(left, top, left + width, top + height)});
}

void RecordedDrawing::EndDrawing(std::int64_t bottom, TextView title) {
    seams_.push_back({static_cast<double>(bottom - origin_), Text(title)});
    bottom_ = bottom;
}

void RecordedDrawing::Close() {
    if (OnClose) OnClose();
}

std::vector<RecordedDrawing::Place> RecordedDrawing::Places() const {
    std::vector<Place> places;
    places.reserve(drawn_.size());
    for (const Item& item : drawn_) places.push_back({item.place, !std::holds_alternative<Line>(item.what)});
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.area.top < b.area.top; });
    return places;
}

bool RecordedDrawing::BelongsTo(const Area& area, const Area& place) {
    const auto overlaps = [](double begin, double end, double first, double last) {
        return first < end && (last > begin || (first == last && first >= begin));
    };
    return overlaps(area.left, area.right, place.left, place.right) &&
           overlaps(area.top, area.bottom, place.top, place.bottom);
}

void RecordedDrawing::Draw(DrawingSurface& surface, const Area& area) const {
    const auto draw = [&](const auto& what) {
        using What = std::decay_t<decltype(what)>;
        if constexpr (std::is_same_v<What, Fill>) {
            surface.FillRectangle(what.left, what.top, what.width, what.height, what.colour);
        } else if constexpr (std::is_same_v<What, Line>) {
            surface.DrawLine(what.x1, what.y1, what.x2, what.y2, what.colour);
        } else {
            surface.PrintTexts(what.left, what.top, what.width, what.height, what.texts);
        }
    };
    for (const Item& item : drawn_) {
        if (BelongsTo(area, item.place)) std::visit(draw, item.what);
    }
}

}  // namespace swiftroll::modPreview
