#include "drawing/kinship_print.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modPrint {
namespace {

/// A4 in the rounded centimetres of the layout, as twips.
constexpr std::int64_t kLongSide = 29 * 144000 / 254, kShortSide = 21 * 144000 / 254;

}  // namespace

void KinshipPrint::Begin(const modKinshipOutput::CellSizes& sizes) {
    device_.Open(sKinshipTitle_, sizes.bLandscape ? kLongSide : kShortSide,
                 sizes.bLandscape ? kShortSide : kLongSide);
}

void KinshipPrint::WriteCell(TextView sClass, TextView sText, const modKinshipOutput::CellRectangle& place,
                             const modKinshipOutput::CellSizes& sizes) {
    painter_.Draw(device_, sClass, sText, place, sizes.bLandscape);
}

void KinshipPrint::EndDrawing(std::int64_t lTop, std::int64_t, TextView sPathTitle) {
    device_.EndDrawing(lTop * kTwipsPerPixel, sPathTitle);
}

void KinshipPrint::End(std::int64_t) { device_.Close(); }

void KinshipPrint::Fail(const Failure& failure) { TellPrintFailure(source_.feedback, failure); }

void TellPrintFailure(Feedback& feedback, const Failure& failure) {
    feedback.Box(" - Kinship", Concat({"Erreor d'impression", kLineEnd, failure.What(), " (",
                                       Decimal(failure.Number()), ")"}));
}

}  // namespace swiftroll::modPrint
