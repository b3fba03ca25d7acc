#pragma once

#include "app/drawing_device.h"
#include "drawing/cell_shape.h"
#include "drawing/drawing_source.h"

namespace swiftroll::modPrint {

/// Pixels of the page as twips of a drawing: a screen has 96 to the inch.
inline constexpr std::int64_t kTwipsPerPixel = 15;

/// Draws the cells of a page with their colours, edges and texts.
class CellPainter {
  public:
    /// `font` is that of the texts.
    CellPainter(const OptionRecord& options, const CellFont& font) : options_(options), font_(font) {}

    /// Draws a cell by its class; `sText` is its text as the page has it, `place` in pixels.
    void Draw(DrawingSurface& surface, TextView sClass, TextView sText,
              const modKinshipOutput::CellRectangle& place, bool bLandscape) const;
    /// Draws the ground of a box alone.
    void DrawGround(DrawingSurface& surface, TextView sClass,
                    const modKinshipOutput::CellRectangle& place) const;

  private:
    std::vector<PrintedText> TextsOf(TextView sText) const;

    const OptionRecord& options_;
    const CellFont& font_;
};

}  // namespace swiftroll::modPrint
