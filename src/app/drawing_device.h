#pragma once

#include <cstdint>

#include "app/cell_font.h"

namespace swiftroll {

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
    /// Prints one line of text with its top left corner at (x, y), cut where it is longer than `width`. Gives
    /// the height of the line.
    virtual std::int64_t PrintLine(std::int64_t x, std::int64_t y, std::int64_t width, TextView text,
                                   const CellFont& font) = 0;
    /// The drawings after this one belong to another path.
    virtual void EndDrawing(std::int64_t bottom) = 0;
    virtual void Close() = 0;
};

/// For presentations without paper.
struct NoDrawingDevice : DrawingDevice {
    void Open(TextView, std::int64_t, std::int64_t) override {}
    void FillRectangle(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    void DrawLine(std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint32_t) override {}
    std::int64_t PrintLine(std::int64_t, std::int64_t, std::int64_t, TextView, const CellFont&) override {
        return 0;
    }
    void EndDrawing(std::int64_t) override {}
    void Close() override {}
};

}  // namespace swiftroll
