#pragma once

#include <cstdint>
#include <vector>

#include "app/cell_font.h"

namespace swiftroll {

/// A text of a cell in its style, this many twips below the one before it.
struct PrintedText {
    Text text;
    CellFont font;
    std::int64_t gap = 0;
};

/// A sheet of paper, or the picture of one. Coordinates are twips, 1440 to the inch, from its top left
/// corner; colours are 0x00BBGGRR.
class DrawingDevice {
  public:
    virtual ~DrawingDevice() = default;
    /// Begins a document on a sheet of this size; what was drawn before is gone.
    virtual void Open(TextView title, std::int64_t width, std::int64_t height) = 0;
    virtual void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                               std::uint32_t colour) = 0;
    virtual void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                          std::uint32_t colour) = 0;
    /// Prints texts one below the other in a rectangle, each from its left edge on. What is too long is
    /// broken at its blanks, and where that is not enough all become smaller, down to half their size.
    virtual void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                            const std::vector<PrintedText>& texts) = 0;
    /// The drawings after this one belong to another path.
    virtual void EndDrawing(std::int64_t bottom) = 0;
    virtual void Close() = 0;
};

/// For presentations without paper.
struct NoDrawingDevice : DrawingDevice {
    void Open(TextView, std::int64_t, std::int64_t) override {}
    void FillRectangle(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    void DrawLine(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    void PrintTexts(std::int64_t, std::int64_t, std::int64_t, std::int64_t,
                    const std::vector<PrintedText>&) override {}
    void EndDrawing(std::int64_t) override {}
    void Close() override {}
};

}  // namespace swiftroll
