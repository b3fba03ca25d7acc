// The context menu of the tables: which entries it offers for a cell, and what opens it.
#include "shell/frm_main.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kComparisons[] = {" est <=", " est =", " est >="};
constexpr TextView kValueModes[] = {"V<=", "V=", "V>="};

}  // namespace

void frmMain::BindContextMenu() {
    const auto bind = [this](Command& command, bool bSelect, TextView sMode) {
        command.Operation = [this, bSelect, sMode] { modSelectionIn.Add_Remove_Selection(bSelect, sMode); };
    };
    const struct {
        Command &add, &remove;
        TextView sMode;
    } links[] = {{mnuAddIndi, mnuRemoveIndi, "I"},
                 {mnuAddParents, mnuRemoveParents, "P"},
                 {mnuAddSpouses, mnuRemoveSpouses, "S"},
                 {mnuAddChildren, mnuRemoveChildren, "C"}};
    for (const auto& link : links) {
        bind(link.add, true, link.sMode);
        bind(link.remove, false, link.sMode);
    }
    for (std::size_t i = 0; i < mnuAddValue.size(); ++i) {
        bind(mnuAddValue[i], true, kValueModes[i]);
        bind(mnuRemoveValue[i], false, kValueModes[i]);
    }
}

void frmMain::HitTest(std::int32_t lRow, std::int32_t lCol) {
    lHitRow = lRow;
    lHitCol = ColumnId::OfSection(lCol);
}

void frmMain::lvw_MouseUp(MouseButton button) {
    if (button != MouseButton::Right) return;
    OnActiveTable("lvw_MouseUp", [this](Table& table) {
        mnuColSelect.Enabled = mnuColUnselect.Enabled = &table != &lvwOut;
        mnuFindPath.Enabled = &table == &lvwIn && cmdFindPath.Enabled;
        mnuDrawKinship.Enabled = &table == &lvwKinship;
        const ColumnId iCol = lHitCol;
        ModifyContextMenu();
        MarkSubItems(iCol, true);
        modSelectionIn.context.bRestoreClickedRow = true;
        // While a command of the menu runs for long, another menu may open and close.
        const ClickedRow clicked = clicked_;
        ports.dialogs.PopUp(mnuContext);
        clicked_ = clicked;
        MarkSubItems(iCol, false);
        mnuFindPath.Enabled = mnuDrawKinship.Enabled = true;
    });
}

void frmMain::ModifyContextMenu() {
    if (lvwActiveListView == nullptr) return;
    const Table& table = *lvwActiveListView;
    modSelectionIn::SelectionContext& context = modSelectionIn.context;
    context.SetClickedCell(*this, table, lHitCol);
    if (lHitCol) mnuColSelect.Enabled = mnuColUnselect.Enabled = &table != &lvwOut;
    mnuDeselectCurrent.Enabled = static_cast<bool>(lHitCol);
    mnuAddFavorite.Enabled = lHitRow >= 0;
    mnuFind.Enabled = mnuFindNext.Enabled = true;
    const bool isIndividual = context.sIdKind == "I";
    const bool isPerson = isIndividual || context.sIdKind == "F";
    for (Command* command : {&mnuAddIndi, &mnuAddParents, &mnuRemoveIndi, &mnuRemoveParents}) {
        command->Enabled = isIndividual;
    }
    for (Command* command : {&mnuAddSpouses, &mnuAddChildren, &mnuRemoveSpouses, &mnuRemoveChildren}) {
        command->Enabled = isPerson;
    }
    const Text& header = table.ColumnAt(context.iClickedCol).Caption;
    for (std::size_t i = 0; i < mnuAddValue.size(); ++i) {
        for (Command* value : {&mnuAddValue[i], &mnuRemoveValue[i]}) {
            value->Caption = Concat({header, kComparisons[i]});
            value->Enabled = !context.sIdKind.empty();
        }
    }
}

void frmMain::MarkSubItems(ColumnId iCol, bool bMark) {
    if (bMark) {
        const bool formsNoGroups =
            lvwActiveListView == &lvwOut && (!iCol || !modSelectionIn::FormsGroups(*this, iCol));
        clicked_ = {formsNoGroups ? nullptr : lvwActiveListView, lHitRow};
    }
    // A command of the menu may have gone to another table, but what was marked must be restored.
    Table* const table = clicked_.table;
    if (table == nullptr) return;
    if (clicked_.row >= 0 && clicked_.row < table->Count()) {
        Row row = table->Item(clicked_.row + 1);
        if (bMark) {
            clicked_.bClickedRowWasSelected = row.Selected();
            row.SetSelected(true);
        } else if (modSelectionIn.context.bRestoreClickedRow) {
            row.SetSelected(clicked_.bClickedRowWasSelected);
        }
    }
    table->SetPaintedColumn(std::nullopt);
    // The first column stands for the whole row.
    if (bMark && iCol) table->SetPaintedColumn(iCol.Section() == 0 ? ColumnId() : iCol);
}

void frmMain::lvw_KeyDown(const ListKey& key) {
    using Code = ListKey::Code;
    if (key.OpensMenu()) lvw_MouseUp(MouseButton::Right);
    if (!key.ctrl || key.code != Code::Letter) return;
    for (Command* command :
         {&mnuAddFavorite, &mnuSelectAll, &mnuDeselectAll, &mnuNextSelected, &mnuInvertSelection,
          &mnuDeselectCurrent, &mnuCopy, &mnuDeselectIn, &mnuFind, &mnuFindNext}) {
        if (command->Key == Concat({"Ctrl+", TextView(&key.letter, 1)})) return command->Click();
    }
}

}  // namespace swiftroll
