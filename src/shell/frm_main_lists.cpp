// The tabs with their tables, and the commands that work on the active table.
#include "list/format_row.h"
#include "list/sort_keys.h"
#include "shell/frm_main.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kTabCaptions[] = {"Entrée"_t,  "Sortie",      "Famille Xref", "Xref",   "Famille",
                                     "Parenté"_t, "Opt. Format", "Opt. Liens",   "Options"};

void SetMarks(Row row, bool on) {
    row.SetSelected(on);
    row.SetChecked(on);
}

}  // namespace

void frmMain::BindLists() {
    mnuAddFavorite.Operation = [this] { mnuAddFavorite_Click(); };
    mnuNextSelected.Operation = [this] { mnuNextSelected_Click(); };
    mnuDeselectCurrent.Operation = [this] { mnuDeselectCurrent_Click(); };
    mnuDeselectAll.Operation = frmFind.cmdDeselectAll.Operation = [this] { mnuDeselectAll_Click(); };
    mnuSelectAll.Operation = [this] { mnuSelectAll_Click(); };
    mnuInvertSelection.Operation = [this] { mnuInvertSelection_Click(); };
    mnuDeselectIn.Operation = [this] { DeselectAll(lvwIn); };
    mnuColSelect.Operation = [this] { mnuColSelUnsel("On"); };
    mnuColUnselect.Operation = [this] { mnuColSelUnsel("Of"); };
    mnuResetCol.Operation = [this] { mnuResetCol_Click(); };
    mnuCopy.Operation = [this] { mnuCopy_Click(); };
    mnuFind.Operation = [this] { mnuFind_Click(); };
    mnuFindNext.Operation = [this] { frmFind.FindNext(); };
}

/// Runs a command on the active table, if there is one; a failure is reported with its name and `arguments`.
void frmMain::OnActiveTable(const char* sProc, const std::function<void(Table&)>& command,
                            TextView arguments) {
    Table* const table = lvwActiveListView;
    if (table == nullptr) return;
    trail.Guard(
        sProc, [&] { command(*table); },
        [&] {
            return Concat(
                {table->Name(), "/", Decimal(lHitRow), "/", Decimal(lHitCol.Section()), "/", arguments});
        });
}

void frmMain::TableGotFocus(Table& table) {
    LeaveFocus();
    lvwActiveListView = &table;
    mnuCopy.Enabled = true;
    OfferPrinting();
}

/// What a search has found can be printed once it is at an end and its table is the current one.
void frmMain::OfferPrinting() {
    const bool hasPaths = lvwActiveListView == &lvwKinship && lvwKinship.Count() > 0;
    if (hasPaths && !modKinship.IsRunning()) cmdPrintKinship.Enabled = true;
}

bool frmMain::TabHasTable() const { return SSTab1 <= Tab::Kinship; }

void frmMain::ShowTab(Tab tab) {
    SSTab1 = tab;
    SSTab1_GotFocus();
}

void frmMain::SSTab1_GotFocus() {
    ShowFavorites(SSTab1);
    Table* const tables[] = {&lvwIn, &lvwOut, &lvwFamilyXref, &lvwXref, &lvwFamily, &lvwKinship};
    if (TabHasTable()) {
        TableGotFocus(*tables[static_cast<std::size_t>(SSTab1)]);
        if (OnTabFocus) OnTabFocus();
        return;
    }
    mnuCopy.Enabled = false;
    if (SSTab1 == Tab::FormatOptions) SetFocus(lbOuputPlacesOrder);
    if (SSTab1 == Tab::LinkOptions) SetFocus(txtKinHeight);
    if (SSTab1 == Tab::Options) SetFocus(chkIgnoreCase);
}

void frmMain::SSTab1_DblClick() {
    SSTab1_GotFocus();
    PlaceSelected();
    StatusBar1_DblClick();
}

void frmMain::SSTab1_RightClick() {
    if (!TabHasTable() || lvwActiveListView == nullptr) return;
    HitTest(-1, -1);
    lvw_MouseUp(MouseButton::Right);
}

void frmMain::StatusBar1_DblClick() {
    if (!TabHasTable()) return;
    OnActiveTable("StatusBar1_DblClick", [this](Table& table) {
        std::int32_t count = 0;
        for (std::int32_t i = 1; i <= table.Count(); ++i) count += table.Item(i).Marked() ? 1 : 0;
        pnlMessage.Set(Concat({Decimal(count), " \"", kTabCaptions[static_cast<std::size_t>(SSTab1)],
                               "(s)\" sélectionnée(s) sur "_t, Decimal(table.Count())}));
    });
}

void frmMain::PlaceSelected() {
    if (!TabHasTable()) return;
    OnActiveTable("PlaceSelected", [this](Table& table) {
        table.SetSorted(false);
        const std::int32_t count = table.GatherMarked();
        // From the first to the last: as many of them as there is room for are in view then.
        if (count > 0) table.Item(1).EnsureVisible();
        if (count > 1) table.Item(count).EnsureVisible();
        SetAllColumnIcons(*this);
    });
}

void frmMain::lvw_ColumnClick(Table& table, Column& column) {
    modCalcOut::lvw_ColumnClick(*this, *this, table, column, ports.keyboard.IsShiftDown());
}

void frmMain::mnuNextSelected_Click() {
    modSelectionIn.context.bRestoreClickedRow = false;
    OnActiveTable("mnuNextSelected_Click", [this](Table& table) {
        table.SetSorted(false);
        for (std::int32_t i = std::max(lHitRow, -1) + 2; i <= table.Count(); ++i) {
            Row row = table.Item(i);
            if (!row.Marked()) continue;
            row.SetSelected(true);
            row.EnsureVisible();
            lHitRow = i - 1;
            return;
        }
    });
}

void frmMain::mnuDeselectCurrent_Click() {
    modSelectionIn.context.bRestoreClickedRow = false;
    OnActiveTable("mnuDeselectCurrent_Click", [this](Table& table) {
        if (lHitRow >= 0) SetMarks(table.Item(lHitRow + 1), false);
    });
}

void frmMain::mnuDeselectAll_Click() {
    if (lvwActiveListView != nullptr) DeselectAll(*lvwActiveListView);
}

void frmMain::DeselectAll(Table& table) {
    modSelectionIn.context.bRestoreClickedRow = false;
    trail.Guard(
        "mnuDeselectAll_Click",
        [&] {
            for (std::int32_t i = 1; i <= table.Count(); ++i) SetMarks(table.Item(i), false);
        },
        [&] { return table.Name(); });
}

void frmMain::mnuSelectAll_Click() {
    modSelectionIn.context.bRestoreClickedRow = false;
    OnActiveTable("mnuSelectAll_Click", [](Table& table) {
        for (std::int32_t i = 1; i <= table.Count(); ++i) SetMarks(table.Item(i), true);
    });
}

void frmMain::mnuInvertSelection_Click() {
    modSelectionIn.context.bRestoreClickedRow = false;
    OnActiveTable("mnuInvertSelection_Click", [](Table& table) {
        for (std::int32_t i = 1; i <= table.Count(); ++i) {
            const Row row = table.Item(i);
            SetMarks(row, !row.Marked());
        }
    });
}

void frmMain::mnuColSelUnsel(TextView sPrefix) {
    OnActiveTable(
        "mnuColSelUnsel",
        [&](Table& table) {
            if (&table == &lvwOut) return;
            for (Column& column : table.Columns()) column.Icon.replace(0, 2, sPrefix);
            modCalcOut::WarnWithoutColumns(*this, table);
        },
        sPrefix);
}

void frmMain::mnuResetCol_Click() {
    OnActiveTable("mnuResetCol_Click", [](Table& table) {
        for (Column& column : table.Columns()) column.Width = kColumnWidth;
    });
}

/// The dialog looks in the column that was clicked last, with whatever button.
void frmMain::mnuFind_Click() {
    Text sCell;
    OnActiveTable("mnuFind_Click", [&](Table& table) {
        if (!lHitCol || lHitCol.Index() > table.ColumnCount()) return;
        modSelectionIn.context.iClickedCol = lHitCol;
        if (lHitRow >= 0 && lHitRow < table.Count()) sCell = table.Item(lHitRow + 1).Cell(lHitCol);
    });
    frmFind.Open(sCell);
}

/// The marked rows of the active table as lines, with the captions before them where they are wanted; nothing
/// for a table that cannot be exported.
std::optional<Text> frmMain::MarkedLines() {
    if (lvwActiveListView == nullptr) return std::nullopt;
    const modCalcOut::RowFormatter formatter(*this, *this, *lvwActiveListView, chkIncludeHeaders.Checked());
    if (!formatter.IsReady()) return std::nullopt;
    const bool bTabs = optTabSpace.Index() == 0;
    Text lines;
    if (chkIncludeHeaders.Checked()) lines = Concat({formatter.FormatHeaders(bTabs), kLineEnd});
    for (std::int32_t i = 1; i <= lvwActiveListView->Count(); ++i) {
        const Row row = lvwActiveListView->Item(i);
        if (!row.Marked()) continue;
        lines += formatter.FormatListItem(row, bTabs);
        lines += kLineEnd;
    }
    return lines;
}

void frmMain::mnuCopy_Click() {
    modSelectionIn.context.bRestoreClickedRow = false;
    OnActiveTable("mnuCopy_Click", [this](Table&) {
        if (const auto lines = MarkedLines()) ports.clipboard.SetText(*lines);
    });
}

Text frmMain::DragText() {
    Text lines;
    OnActiveTable("lvw_OLEStartDrag", [&](Table&) { lines = MarkedLines().value_or(Text()); });
    return lines;
}

}  // namespace swiftroll
