// What a double click in a table leads to.
#include "shell/frm_main.h"

namespace swiftroll {

void frmMain::lvw_DblClick(Table& table) {
    if (&table == &lvwOut) {
        if (lHitRow < 0 || !lHitCol) return;
        return trail.Guard(
            "lvwOut_DblClick", [this] { modSelectionIn.SelectGroups(); }, [] { return Text(); });
    }
    if (!bFamiliesRead || lHitRow < 0 || lHitRow >= table.Count()) return;
    if (!lHitCol || lHitCol.Index() > table.ColumnCount()) return;
    const CellMeaning& meaning = table.ColumnAt(lHitCol).Facts->meaning;
    if (!meaning.namesIt) return;
    const bool isFamily = meaning.subject == Subject::Family;
    JumpTo(isFamily ? lvwFamily : lvwIn,
           table.Item(lHitRow + 1).Cell(isFamily ? meaning.family : meaning.individual));
}

/// Goes to the row of a key; a cell that names nobody leads nowhere.
void frmMain::JumpTo(Table& target, TextView sKey) {
    if (auto current = target.Current()) current->SetSelected(false);
    auto row = sKey.empty() ? std::nullopt : target.Find(sKey);
    if (!row) return;
    target.SetCurrent(*row);
    row->SetSelected(true);
    row->SetChecked(true);
    row->EnsureVisible();
    ShowTab(&target == &lvwFamily ? Tab::Family : Tab::In);
}

}  // namespace swiftroll
