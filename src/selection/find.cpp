#include "selection/find.h"

#include "list/sort_keys.h"
#include "text/literal.h"

namespace swiftroll::modSelectionIn {

bool FindCondition::Holds(TextView sCell) const {
    switch (match) {
        case Match::Whole:
            return sCell == text;
        case Match::Beginning:
            return sCell.starts_with(text);
        case Match::Anywhere:
            break;
    }
    return !sCell.empty() && sCell.find(text) != TextView::npos;
}

void FindState::FindNext(Application& app, Table& table, ColumnId iFirstCol) {
    const auto formOf = [&](TextView text) { return modCalcOut::KeepAlphaNum(app, text, false); };
    const FindCondition wanted1{formOf(first.text), first.match}, wanted2{formOf(second.text), second.match};
    if (lFindNext == 0) lFindNext = 1;
    bFound = false;
    for (std::int32_t i = lFindNext; i <= table.Count(); ++i) {
        Row row = table.Item(i);
        table.Need(row);
        const auto holds = [&](const FindCondition& wanted, ColumnId iCol) {
            return wanted.Holds(formOf(row.Cell(iCol)));
        };
        if (!holds(wanted1, iFirstCol)) continue;
        if (!wanted2.text.empty() && !holds(wanted2, iSecondCol)) continue;
        row.EnsureVisible();
        row.SetSelected(true);
        table.SetCurrent(row);
        lFindNext = i + 1;
        bFound = true;
        app.pnlMessage.Set("");
        return;
    }
    app.pnlMessage.Set(kNotFound);
}

}  // namespace swiftroll::modSelectionIn
