#include "shell/grouping.h"

#include <algorithm>

#include "list/calc_output.h"
#include "tables/columns.h"

namespace swiftroll {

std::optional<Grouping::Kind> Grouping::KindOf(ColumnId column) {
    const ColumnFacts& facts = Out::kColumns.at(static_cast<std::size_t>(column.Section()));
    if (facts.formsGroups) return Kind::Group;
    if (facts.IsYear()) return Kind::Year;
    return std::nullopt;
}

Text Grouping::NameOf(ColumnId column) const {
    constexpr TextView kPlainDate = "Date ";
    const Text& caption = app_.lvwOut.ColumnAt(column).Caption;
    return caption.starts_with(kPlainDate) ? caption.substr(kPlainDate.size()) : caption;
}

bool Grouping::IsLeftOut(ColumnId column) const {
    return app_.lvwOut.ColumnAt(column).Position > app_.lvwOut.ColumnAt(Out::Number).Position;
}

/// All columns as they stand on the screen.
std::vector<ColumnId> Grouping::InOrder() const {
    std::vector<ColumnId> order(app_.lvwOut.Columns().size());
    for (const Column& column : app_.lvwOut.Columns())
        order[static_cast<std::size_t>(column.Position - 1)] = column.Index;
    return order;
}

std::vector<ColumnId> Grouping::OfKind(Kind kind, bool isShown) const {
    std::vector<ColumnId> columns = InOrder();
    std::erase_if(columns,
                  [&](ColumnId column) { return KindOf(column) != kind || IsLeftOut(column) == isShown; });
    return columns;
}

void Grouping::Place(ColumnId column, std::size_t place) {
    const auto kind = KindOf(column);
    if (!kind) return;
    std::vector<ColumnId> order = InOrder(), same = Shown(*kind);
    std::erase(order, column);
    std::erase(same, column);
    auto before = *kind == Kind::Group ? order.begin() : std::ranges::find(order, ColumnId(Out::Number));
    if (place < same.size()) {
        before = std::ranges::find(order, same[place]);
    } else if (!same.empty()) {
        before = std::ranges::find(order, same.back()) + 1;
    }
    app_.lvwOut.MoveColumn(column, static_cast<std::int16_t>(before - order.begin() + 1));
}

void Grouping::TakeOut(ColumnId column) {
    // The others close up, `Number` among them.
    if (!IsLeftOut(column)) app_.lvwOut.MoveColumn(column, app_.lvwOut.ColumnAt(Out::Number).Position);
}

bool Grouping::IsListStale() const {
    if (!app_.listedFrom || app_.lvwIn.Count() == 0) return false;
    return *app_.listedFrom != modCalcOut::BasisOf(app_, modPrivacy::BornAfter(app_, app_.ports.clock));
}

}  // namespace swiftroll
