#include "drawing/kinship_document.h"

#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"

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

bool KinshipDocument::DisplayKinship(int iStage, const KinshipGrid& grid) {
    const CellSizes sizes(source_.options);
    try {
        if (iStage == kFirst) Begin(sizes);
        if (iStage != kLast) {
            WriteDrawing(grid, sizes);
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

void KinshipDocument::WriteDrawing(const KinshipGrid& grid, const CellSizes& sizes) {
    constexpr std::int64_t kBeforeRule = 20, kBehindRule = 10;
    for (const GridCell& cell : grid.asGrid) {
        CellRectangle place = RectangleOf(cell, grid, sizes);
        place.top += lPageTop_;
        place.left += lPageLeft;
        WriteCell(ClassOf(cell), TextOf(cell), place, sizes);
    }
    lPageTop_ += kBeforeRule + DrawingHeight(grid, sizes);
    EndDrawing(lPageTop_, RuleWidth(grid, sizes));
    lPageTop_ += kBehindRule;
}

TextView KinshipDocument::ClassOf(const GridCell& cell) const {
    switch (cell.kind) {
        case CellKind::Person: {
            const auto person = source_.tables.lvwIn.Find(TextView(cell.id));
            const TextView sex = person ? person->Cell(In::Sex) : TextView();
            return sex == "M" ? "IndivMBox" : sex == "F" ? "IndivFBox" : "IndivUBox";
        }
        case CellKind::UnknownPerson:
            return "IndivUBox";
        case CellKind::Marriage:
            return "SpouseLine";
        case CellKind::ChildLeft:
            return "ChildHLine";
        case CellKind::Child1Parent:
        case CellKind::Child2Parents:
        case CellKind::Children1Parent:
        case CellKind::Children2Parents:
            break;
    }
    return "ChildVLine";
}

Text KinshipDocument::TextOf(const GridCell& cell) const {
    if (cell.kind == CellKind::Person) return texts_.IndividualInfos(cell.id);
    if (cell.kind == CellKind::UnknownPerson) return Text(kUnknownPartner);
    if (cell.kind == CellKind::Marriage) return texts_.FamilyInfos(cell.id);
    return {};
}

}  // namespace swiftroll::modKinshipOutput
