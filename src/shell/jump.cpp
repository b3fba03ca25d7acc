#include "shell/jump.h"

namespace swiftroll {

std::optional<Row> GoToRow(Table& target, TextView sKey) {
    if (auto current = target.Current()) current->SetSelected(false);
    auto row = sKey.empty() ? std::nullopt : target.Find(sKey);
    if (!row) return row;
    target.SetCurrent(*row);
    row->SetSelected(true);
    row->EnsureVisible();
    return row;
}

void JumpTo(Application& app, Table& target, TextView sKey) {
    auto row = GoToRow(target, sKey);
    if (!row) return;
    row->SetChecked(true);
    app.ShowTab(&target == &app.lvwFamily ? Tab::Family : Tab::In);
}

}  // namespace swiftroll
