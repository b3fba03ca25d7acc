#pragma once

#include <cstdint>
#include <vector>

#include "app/cell_font.h"

namespace swiftroll {

enum class TextSide { Left, Centre, Right };

/// A text of a cell in its style, this many twips below the one before it.
struct PrintedText {
    Text text;
    CellFont font;
    std::int64_t gap = 0;
    TextSide side = TextSide::Left;
};

/// What boxes, lines and texts are drawn on. Coordinates are twips, 1440 to the inch, from the top left
/// corner; colours are 0x00BBGGRR.
class DrawingSurface {
  public:
    virtual ~DrawingSurface() = default;
    virtual void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                               std::uint32_t colour) = 0;
    virtual void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                          std::uint32_t colour) = 0;
    /// Prints texts one below the other in the middle of a rectangle. What is too long is broken at its
    /// blanks, and where that is not enough all become smaller, down to half their size; what then remains
    /// beyond the rectangle is cut.
    virtual void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                            const std::vector<PrintedText>& texts) = 0;
};

/// A sheet of paper, or a file or picture of one.
class DrawingDevice : public DrawingSurface {
  public:
    /// Begins a document on a sheet of this size; what was drawn before is gone.
    virtual void Open(TextView title, std::int64_t width, std::int64_t height) = 0;
    /// A drawing ends here, and what comes next belongs to another path; `title` tells what it shows.
    virtual void EndDrawing(std::int64_t bottom, TextView title) = 0;
    virtual void Close() = 0;
};

/// For presentations without paper.
struct NoDrawingDevice : DrawingDevice {
    void Open(TextView, std::int64_t, std::int64_t) override {}
    void FillRectangle(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    void DrawLine(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    void PrintTexts(std::int64_t, std::int64_t, std::int64_t, std::int64_t,
                    const std::vector<PrintedText>&) override {}
    void EndDrawing(std::int64_t, TextView) override {}
    void Close() override {}
};

}  // namespace swiftroll
