#include "drawing/text_fit.h"

#include <algorithm>
#include <optional>

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modPreview {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTextMargin = 45;  // between the edge of a box and its texts
constexpr double kSmallestScale = 0.5, kScaleStep = 0.1;
constexpr TextView kCut = "…"_t;

/// Breaks texts into the lines of a room at one scale.
class LineBreaker {
  public:
    LineBreaker(const Area& room, double scale, bool mustFit)
        : room_(room), scale_(scale), mustFit_(mustFit), y_(room.top) {}

    /// False when the text goes beyond the room, unless it must fit: then it is cut.
    bool Add(const PrintedText& text, const FontShape& shape) {
        text_ = &text;
        shape_ = &shape;
        size_ = FontSize(text.font) * scale_;
        y_ += static_cast<double>(text.gap);
        for (TextView rest = text.text; !rest.empty();) {
            const TextView line = TakeLine(rest);
            if (!mustFit_ && WidthOf(line) > room_.Width()) return false;
            if (y_ + LineHeight() > room_.bottom) {
                if (mustFit_) MarkCut();
                return false;
            }
            Place(line);
        }
        return true;
    }

    /// The lines, in the middle between top and bottom.
    std::vector<PlacedLine> Take() {
        for (PlacedLine& line : lines_) line.baseline += (room_.bottom - y_) / 2;
        return std::move(lines_);
    }

  private:
    double LineHeight() const { return (shape_->ascent + shape_->descent) * size_; }
    double WidthOf(TextView text) const { return shape_->WidthOf(text) * size_; }

    /// As many words as fit; one that is too long is broken where it must.
    TextView TakeLine(TextView& rest) const {
        std::size_t end = 0;
        for (std::size_t at = 0; at < rest.size();) {
            const std::size_t wordEnd = std::min(rest.find(' ', at + 1), rest.size());
            if (end > 0 && WidthOf(rest.substr(0, wordEnd)) > room_.Width()) break;
            at = end = wordEnd;
        }
        if (mustFit_) {
            while (end > 1 && WidthOf(rest.substr(0, end)) > room_.Width()) --end;
        }
        const TextView line = TrimRight(rest.substr(0, end));
        rest = TrimLeft(rest.substr(end));
        return line;
    }

    void Place(TextView line) {
        const double width = WidthOf(line), spare = room_.Width() - width;
        const double x = room_.left + (text_->side == TextSide::Left     ? 0
                                       : text_->side == TextSide::Centre ? spare / 2
                                                                         : spare);
        lines_.push_back({Text(line), &text_->font, x, y_ + shape_->ascent * size_, width, size_});
        y_ += LineHeight();
    }

    /// The last line tells that something is missing behind it.
    void MarkCut() {
        if (lines_.empty()) return;
        PlacedLine& last = lines_.back();
        Text cut = Concat({last.text, kCut});
        while (cut.size() > 1 && shape_->WidthOf(cut) * last.size > room_.Width()) {
            cut.erase(cut.size() - 2, 1);
        }
        last.width = std::min(shape_->WidthOf(cut) * last.size, room_.Width());
        last.x = std::min(last.x, room_.right - last.width);
        last.text = std::move(cut);
    }

    Area room_;
    double scale_;
    bool mustFit_;
    double y_, size_ = 0;
    const PrintedText* text_ = nullptr;
    const FontShape* shape_ = nullptr;
    std::vector<PlacedLine> lines_;
};

}  // namespace

double FontShape::WidthOf(TextView text) const {
    double width = 0;
    for (const char c : text) width += advances[static_cast<unsigned char>(c)];
    return width;
}

double FontSize(const CellFont& font) {
    // Tenths behind a comma or a point; the font was checked when it was taken.
    const Text size = ReplaceAll(font.size, ",", ".");
    const std::size_t point = std::min(size.find('.'), size.size());
    const Text decimals = size.substr(std::min(point + 1, size.size()));
    double points = static_cast<double>(ParseDecimal(TextView(size).substr(0, point)).value_or(0));
    double part = static_cast<double>(ParseDecimal(decimals).value_or(0));
    for (std::size_t i = 0; i < decimals.size(); ++i) part /= 10;
    return std::max(1.0, points + part) * kTwipsPerPoint;
}

std::vector<PlacedLine> FitTexts(const Area& box, const std::vector<PrintedText>& texts,
                                 const std::function<const FontShape&(const CellFont&)>& shapeOf) {
    const Area room{box.left + kTextMargin, box.top + kTextMargin, box.right - kTextMargin,
                    box.bottom - kTextMargin};
    if (room.Width() <= 0 || room.Height() <= 0) return {};
    for (double scale = 1;; scale -= kScaleStep) {
        const bool mustFit = scale <= kSmallestScale + kScaleStep / 2;
        LineBreaker lines(room, mustFit ? kSmallestScale : scale, mustFit);
        const bool fits = std::all_of(texts.begin(), texts.end(), [&](const PrintedText& text) {
            return lines.Add(text, shapeOf(text.font));
        });
        if (fits || mustFit) return lines.Take();
    }
}

}  // namespace swiftroll::modPreview
