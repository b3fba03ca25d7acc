#include "selection/context.h"

namespace swiftroll::modSelectionIn {
namespace {

const char* IdKindOf(Subject subject) {
    switch (subject) {
        case Subject::Individual:
            return "I";
        case Subject::Family:
            return "F";
        case Subject::Group:
            return "S";
        case Subject::Nothing:
            break;
    }
    return "";
}

}  // namespace

bool FormsGroups(const Application& app, ColumnId column) {
    const Positions& positions = app.positions;
    return positions.Of(app.lvwOut).iPosOfCol[column] < positions.iPosNumber;
}

void SelectionContext::SetClickedCell(const Application& app, const Table& table, ColumnId column) {
    sIdKind.clear();
    iClickedCol = ColumnId::OfSection(0);
    iIndiCol = iFamCol = {};
    if (!column || column.Index() > table.ColumnCount()) return;
    iClickedCol = column;
    const CellMeaning& meaning = table.ColumnAt(column).Facts->meaning;
    if (meaning.subject == Subject::Group && !FormsGroups(app, column)) return;
    sIdKind = IdKindOf(meaning.subject);
    iIndiCol = meaning.individual;
    iFamCol = meaning.family;
}

std::optional<Text> SelectionContext::IndividualOf(const Table& table, std::int32_t row) const {
    if (sIdKind != IdKindOf(Subject::Individual) || row < 0 || row >= table.Count()) return std::nullopt;
    return Text(table.Item(row + 1).Cell(iIndiCol));
}

}  // namespace swiftroll::modSelectionIn
