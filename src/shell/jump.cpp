#include "shell/jump.h"

namespace swiftroll {

void JumpTo(Application& app, Table& target, TextView sKey) {
    if (auto current = target.Current()) current->SetSelected(false);
    auto row = sKey.empty() ? std::nullopt : target.Find(sKey);
    if (!row) return;
    target.SetCurrent(*row);
    row->SetSelected(true);
    row->SetChecked(true);
    row->EnsureVisible();
    app.ShowTab(&target == &app.lvwFamily ? Tab::Family : Tab::In);
}

}  // namespace swiftroll
