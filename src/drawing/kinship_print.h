#pragma once

#include "drawing/kinship_document.h"

namespace swiftroll::modPrint {

/// Tells in a box why drawings could not be printed.
void TellPrintFailure(Feedback& feedback, const Failure& failure);

/// The drawings on an A4 sheet, at the places of the page of HTML: pixels of the screen as twips.
class KinshipPrint : public modKinshipOutput::KinshipDocument {
  public:
    /// `preview` is the sheet.
    KinshipPrint(const modKinshipOutput::DrawingSource& source, TextView sKinshipTitle,
                 DrawingDevice& preview)
        : KinshipDocument(source, sKinshipTitle), preview_(preview) {}

  protected:
    void Begin(const modKinshipOutput::CellSizes& sizes) override;
    void WriteCell(TextView sClass, TextView sText, const modKinshipOutput::CellRectangle& place,
                   const modKinshipOutput::CellSizes& sizes) override;
    void EndDrawing(std::int64_t lTop, std::int64_t lWidth) override;
    void End(std::int64_t lTop) override;
    void Fail(const Failure& failure) override;

  private:
    /// A rectangle of the sheet in twips, and which of its edges are drawn.
    struct Frame {
        std::int64_t left, top, right, bottom;
    };
    struct Edges {
        bool top, left, bottom, right;
    };
    void DrawEdges(const Frame& frame, Edges edges);
    void WriteBox(const Frame& frame, std::uint32_t colour, TextView sText);

    DrawingDevice& preview_;
};

}  // namespace swiftroll::modPrint
