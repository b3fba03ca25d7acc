#pragma once

#include <cairo.h>

#include "drawing/drawing_sheets.h"
#include "drawing_files/cairo_font.h"
#include "drawing_files/font_shapes.h"

namespace swiftroll::modDrawingFiles {

/// Draws on a page of the library, whose unit is the point.
class CairoSurface : public modPreview::SheetSurface {
  public:
    /// `context` draws on the page; it, `shapes` and `faces` outlive this.
    CairoSurface(cairo_t& context, FontShapes& shapes, FontFaces& faces);

    void FillRectangle(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                       std::uint32_t colour) override;
    void DrawLine(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                  std::uint32_t colour) override;
    void PrintTexts(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height,
                    const std::vector<PrintedText>& texts) override;
    void ShowPart(double x, double y, double scale, const modPreview::Area& area,
                  const std::function<void()>& draw) override;

  private:
    void SetColour(std::uint32_t colour);
    cairo_t& context_;
    FontShapes& shapes_;
    FontFaces& faces_;
};

}  // namespace swiftroll::modDrawingFiles
