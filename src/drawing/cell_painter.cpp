#include "drawing/cell_painter.h"

#include "drawing/cell_texts.h"
#include "drawing/tagged_text.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modPrint {
namespace {

/// The two lines of a marriage stand this much, in pixels, inside the cell.
constexpr std::int64_t kMarriageInset = 5;
constexpr std::uint32_t kBlack = 0;

/// A rectangle of the sheet in twips, and which of its edges are drawn.
struct Frame {
    std::int64_t left, top, right, bottom;
};
struct Edges {
    bool top, left, bottom, right;
};

void DrawEdges(DrawingSurface& surface, const Frame& frame, Edges edges) {
    if (edges.top) surface.DrawLine(frame.left, frame.top, frame.right, frame.top, kBlack);
    if (edges.left) surface.DrawLine(frame.left, frame.top, frame.left, frame.bottom, kBlack);
    if (edges.bottom) surface.DrawLine(frame.left, frame.bottom, frame.right, frame.bottom, kBlack);
    if (edges.right) surface.DrawLine(frame.right, frame.top, frame.right, frame.bottom, kBlack);
}

}  // namespace

void CellPainter::Draw(DrawingSurface& surface, TextView sClass, TextView sText,
                       const modKinshipOutput::CellRectangle& place, bool bLandscape) const {
    std::int64_t height = place.height, width = place.width;
    const bool isMarriage = sClass == "SpouseLine";
    if (isMarriage) (bLandscape ? height : width) -= kMarriageInset;
    const Frame frame{place.left * kTwipsPerPixel, place.top * kTwipsPerPixel,
                      (place.left + width) * kTwipsPerPixel, (place.top + height) * kTwipsPerPixel};
    if (sClass == "ChildVLine") {
        return DrawEdges(surface, frame, {!bLandscape, false, false, bLandscape});
    }
    if (sClass == "ChildHLine") return DrawEdges(surface, frame, {true, true, !bLandscape, bLandscape});
    if (isMarriage) {
        DrawEdges(surface, frame, {bLandscape, !bLandscape, bLandscape, !bLandscape});
    } else {
        DrawGround(surface, sClass, place);
        DrawEdges(surface, frame, {true, true, true, true});
    }
    const std::vector<PrintedText> texts = TextsOf(sText);
    if (texts.empty()) return;
    surface.PrintTexts(frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top, texts);
}

void CellPainter::DrawGround(DrawingSurface& surface, TextView sClass,
                             const modKinshipOutput::CellRectangle& place) const {
    const ColourButton& colour = sClass == "IndivMBox"   ? options_.cmdColorMale
                                 : sClass == "IndivFBox" ? options_.cmdColorFemale
                                                         : options_.cmdColorUndefined;
    surface.FillRectangle(place.left * kTwipsPerPixel, place.top * kTwipsPerPixel,
                          place.width * kTwipsPerPixel, place.height * kTwipsPerPixel, colour.Colour());
}

std::vector<PrintedText> CellPainter::TextsOf(TextView sText) const {
    // Tags that no text of a person has would be printed.
    const Text text = sText == modKinshipOutput::kUnknownPartner
                          ? Text("?")
                          : ReplaceAll(ReplaceAll(sText, modKinshipOutput::kIdBegins, "<RIGHT>"),
                                       modKinshipOutput::kIdEnds, "");
    const std::int64_t lineBreak = ParseDecimal(font_.size).value_or(0);
    std::vector<PrintedText> texts;
    std::int64_t gap = 0;
    for (const modPreview::TextPiece& piece : modPreview::SplitTags(text)) {
        if (piece.afterBreak) gap += lineBreak;
        if (piece.text.empty()) continue;
        PrintedText& next = texts.emplace_back();
        next.text = piece.text;
        next.gap = std::exchange(gap, 0);
        next.side = piece.toRight ? TextSide::Right : TextSide::Centre;
        next.font = font_;
        next.font.strikethrough = false;  // the page of HTML has none either
        next.font.bold = piece.bold;
        next.font.underline = piece.underline;
        next.font.italic = piece.italic;
    }
    return texts;
}

}  // namespace swiftroll::modPrint
