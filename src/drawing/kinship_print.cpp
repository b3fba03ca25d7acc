#include "drawing/kinship_print.h"

#include "drawing/tagged_text.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modPrint {
namespace {

using modKinshipOutput::CellRectangle;
using modKinshipOutput::CellSizes;

/// A screen has 96 pixels to the inch, a twip is a 1440th of it.
constexpr std::int64_t kTwipsPerPixel = 15;
/// A4 in the rounded centimetres of the layout, as twips.
constexpr std::int64_t kLongSide = 29 * 144000 / 254, kShortSide = 21 * 144000 / 254;
/// The two lines of a marriage stand this much, in pixels, inside the cell.
constexpr std::int64_t kMarriageInset = 5;
constexpr std::uint32_t kBlack = 0;

}  // namespace

void KinshipPrint::Begin(const CellSizes& sizes) {
    preview_.Open(sKinshipTitle_, sizes.bLandscape ? kLongSide : kShortSide,
                  sizes.bLandscape ? kShortSide : kLongSide);
}

void KinshipPrint::WriteCell(TextView sClass, TextView sText, const CellRectangle& place,
                             const CellSizes& sizes) {
    std::int64_t height = place.height, width = place.width;
    const bool isMarriage = sClass == "SpouseLine";
    if (isMarriage) (sizes.bLandscape ? height : width) -= kMarriageInset;
    const Frame frame{place.left * kTwipsPerPixel, place.top * kTwipsPerPixel,
                      (place.left + width) * kTwipsPerPixel, (place.top + height) * kTwipsPerPixel};
    const bool across = sizes.bLandscape;
    if (isMarriage) {
        DrawEdges(frame, {across, !across, across, !across});
    } else if (sClass == "ChildVLine") {
        DrawEdges(frame, {!across, false, false, across});
    } else if (sClass == "ChildHLine") {
        DrawEdges(frame, {true, true, !across, across});
    } else {
        const ColourButton& colour = sClass == "IndivMBox"   ? source_.options.cmdColorMale
                                     : sClass == "IndivFBox" ? source_.options.cmdColorFemale
                                                             : source_.options.cmdColorUndefined;
        WriteBox(frame, colour.Colour(), sText);
    }
}

void KinshipPrint::DrawEdges(const Frame& frame, Edges edges) {
    if (edges.top) preview_.DrawLine(frame.left, frame.top, frame.right, frame.top, kBlack);
    if (edges.left) preview_.DrawLine(frame.left, frame.top, frame.left, frame.bottom, kBlack);
    if (edges.bottom) preview_.DrawLine(frame.left, frame.bottom, frame.right, frame.bottom, kBlack);
    if (edges.right) preview_.DrawLine(frame.right, frame.top, frame.right, frame.bottom, kBlack);
}

void KinshipPrint::WriteBox(const Frame& frame, std::uint32_t colour, TextView sText) {
    const std::int64_t width = frame.right - frame.left, height = frame.bottom - frame.top;
    preview_.FillRectangle(frame.left, frame.top, width, height, colour);
    DrawEdges(frame, {true, true, true, true});
    // Tags that no text of a person has would be printed.
    const Text text =
        sText == kUnknownPartner
            ? Text("?")
            : ReplaceAll(ReplaceAll(sText, "<p class=Right style=\"text-align: right\">", "<RIGHT>"), "</p>",
                         "");
    const std::int64_t lineBreak = ParseDecimal(font_.size).value_or(0);
    std::vector<PrintedText> texts(1);
    for (const modPreview::TextPiece& piece : modPreview::SplitTags(text)) {
        PrintedText& next = texts.back();
        if (piece.afterBreak) next.gap += lineBreak;
        if (piece.text.empty()) continue;
        next.text = piece.text;
        next.font = font_;
        next.font.strikethrough = false;  // the page of HTML has none either
        next.font.bold = piece.bold;
        next.font.underline = piece.underline;
        next.font.italic = piece.italic;
        texts.emplace_back();
    }
    texts.pop_back();
    preview_.PrintTexts(frame.left, frame.top, width, height, texts);
}

void KinshipPrint::EndDrawing(std::int64_t lTop, std::int64_t) { preview_.EndDrawing(lTop * kTwipsPerPixel); }

void KinshipPrint::End(std::int64_t) { preview_.Close(); }

void KinshipPrint::Fail(const Failure& failure) { TellPrintFailure(source_.feedback, failure); }

void TellPrintFailure(Feedback& feedback, const Failure& failure) {
    feedback.Box(" - Kinship", Concat({"Erreor d'impression", kLineEnd, failure.What(), " (",
                                       Decimal(failure.Number()), ")"}));
}

}  // namespace swiftroll::modPrint
