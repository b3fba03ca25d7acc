#include "drawing/kinship_document.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

constexpr std::int64_t lPageLeft = 10;
constexpr int kFirst = 1, kLast = 9;

}  // namespace

KinshipDocument::KinshipDocument(const DrawingSource& source, TextView sKinshipTitle)
    : source_(source),
      sKinshipTitle_(sKinshipTitle),
      font_(ParseCellFont(source.options.txtFont.Get()).value_or(CellFont())),
      texts_(source, font_) {}

bool KinshipDocument::DisplayKinship(int iStage, const KinshipGrid& grid, TextView sPathTitle) {
    const CellSizes sizes(source_.options);
    try {
        if (iStage == kFirst) Begin(sizes);
        if (iStage != kLast) {
            WriteDrawing(grid, sizes, sPathTitle);
        } else {
            End(lPageTop_);
            source_.feedback.pnlMessage.Set(Concat({sKinshipTitle_, " : Terminé"_t}));
        }
    } catch (const std::exception&) {
        Fail(CurrentFailure());
        return true;
    }
    return false;
}

void KinshipDocument::WriteDrawing(const KinshipGrid& grid, const CellSizes& sizes, TextView sPathTitle) {
    constexpr std::int64_t kBeforeRule = 20, kBehindRule = 10;
    for (const GridCell& cell : grid.asGrid) {
        CellRectangle place = RectangleOf(cell, grid, sizes);
        place.top += lPageTop_;
        place.left += lPageLeft;
        WriteCell(texts_.ClassOf(cell), texts_.TextOf(cell), place, sizes);
    }
    lPageTop_ += kBeforeRule + DrawingHeight(grid, sizes);
    EndDrawing(lPageTop_, RuleWidth(grid, sizes), sPathTitle);
    lPageTop_ += kBehindRule;
}

void KinshipDocument::TellWriteFailure(const Failure& failure) {
    source_.feedback.Box(
        " - Kinship", Concat({"Erreur d'écriture dans le fichier "_t, source_.options.cboKinship.Get(), ".",
                              kLineEnd, failure.What(), " (", Decimal(failure.Number()), ")"}));
}

}  // namespace swiftroll::modKinshipOutput
