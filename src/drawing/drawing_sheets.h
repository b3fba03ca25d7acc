#pragma once

#include "drawing/recorded_drawing.h"

namespace swiftroll::modPreview {

/// A surface on which a part of a drawing can be shown at another place and size.
class SheetSurface : public DrawingSurface {
  public:
    /// Runs `draw`, whose drawing has its corner at (`x`, `y`) and `scale` of its size, and of which nothing
    /// shows beyond `area`, but for what lines at its edges reach.
    virtual void ShowPart(double x, double y, double scale, const Area& area,
                          const std::function<void()>& draw) = 0;
};

/// A sheet of paper and what of it can be printed on, in twips.
struct Paper {
    double width = 0, height = 0;
    Area printable;
};

/// A4 with margins that every printer leaves.
Paper A4Paper(bool isLandscape);

/// How drawings are laid out on sheets.
struct SheetLayout {
    /// What belongs on a sheet is made smaller to fit it.
    bool fitToSheet = false;
    /// Each drawing begins a sheet.
    bool drawingPerSheet = false;
};

/// The sheets that the drawings take: beside and below each other on as many as they need, cut between
/// drawings and boxes where that can be, or made smaller to fit. Sheets without anything on them are left
/// out. A document with a title has it on each sheet, with that of the drawing where a sheet shows one alone,
/// and the number of the page.
class DrawingSheets {
  public:
    /// `firstPage` is the number of the first sheet.
    DrawingSheets(const RecordedDrawing& drawing, const Paper& paper, SheetLayout layout, int firstPage = 1);

    int Count() const { return static_cast<int>(parts_.size()); }
    const Paper& Sheet() const { return paper_; }
    /// Draws the sheet `index` from 0.
    void Draw(SheetSurface& surface, int index) const;

  private:
    struct Part {
        Area area;
        double scale;
    };
    using Places = std::vector<RecordedDrawing::Place>;
    void LayOut(SheetLayout layout);
    void Fit(const Places& places, double top, double bottom);
    void Divide(const Places& places, double top, double bottom);
    void AddRow(const Places& inRow, const Area& row);
    void DrawFrame(DrawingSurface& surface, int index) const;
    const Text* TitleOf(const Area& part) const;

    const RecordedDrawing& drawing_;
    Paper paper_;
    Area room_;  // for the drawing, on the sheet
    int firstPage_;
    std::vector<Part> parts_;  // by sheet
};

}  // namespace swiftroll::modPreview
