#pragma once

#include <variant>

#include "drawing/text_fit.h"

namespace swiftroll::modPreview {

/// Keeps a drawing as it was told, to draw parts of it again on any surface.
class RecordedDrawing : public DrawingDevice {
  public:
    void Open(TextView title, std::int64_t width, std::int64_t height) override;
    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t colour) override;
    void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                  std::uint32_t colour) override;
    void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                    const std::vector<PrintedText>& texts) override;
    void EndDrawing(std::int64_t bottom, TextView title) override;
    void Close() override;

    /// For a presentation, which shows the document when it begins and when it ends.
    std::function<void()> OnOpen, OnClose;

    /// Forgets what was drawn so far; what comes next begins at the top again.
    void Forget();

    const Text& Title() const { return title_; }
    /// Whether the document asks for a sheet that is wider than high.
    bool IsLandscape() const { return isLandscape_; }
    /// What the drawings take, from the corner.
    double Width() const { return width_; }
    double Height() const { return height_; }
    /// How much was drawn.
    std::size_t Size() const { return drawn_.size(); }
    /// Where one drawing ends and the next one begins, from the top, and what it shows.
    struct Seam {
        double bottom;
        Text title;
    };
    const std::vector<Seam>& Seams() const { return seams_; }
    /// The place of everything that was drawn, from the top down. Boxes and texts are not to be cut; the
    /// edges of a box count as part of it.
    struct Place {
        Area area;
        bool isWhole;
    };
    std::vector<Place> Places() const;
    /// Whether something at `place` belongs to `area`: what only touches it from outside does not, and what
    /// has no width lies in the area that it begins.
    static bool BelongsTo(const Area& area, const Area& place);
    /// Draws what belongs to `area`, which reaches beyond it where it is cut.
    void Draw(DrawingSurface& surface, const Area& area) const;

  private:
    struct Fill {
        std::int64_t left, top, width, height;
        std::uint32_t colour;
    };
    struct Line {
        std::int64_t x1, y1, x2, y2;
        std::uint32_t colour;
    };
    struct Texts {
        std::int64_t left, top, width, height;
        std::vector<PrintedText> texts;
    };
    struct Item {
        std::variant<Fill, Line, Texts> what;
        Area place;  // of a line, that of the box that it is an edge of
    };
    void Add(Item item);
    Area OwnerOf(const Area& line) const;

    Text title_;
    bool isLandscape_ = false;
    double width_ = 0, height_ = 0;
    std::int64_t origin_ = 0, bottom_ = 0;  // where what is kept begins, and where the last drawing ended
    std::vector<Seam> seams_;
    std::vector<Item> drawn_;
    Area lastBox_;
};

}  // namespace swiftroll::modPreview
