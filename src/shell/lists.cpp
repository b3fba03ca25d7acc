#include "shell/lists.h"

#include "list/format_row.h"
#include "list/sort_keys.h"
#include "shell/jump.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

void SetMarks(Row row, bool on) {
    row.SetSelected(on);
    row.SetChecked(on);
}

}  // namespace

Lists::Lists(Application& app, ListCommands& commands, modSelectionIn::Engine& selection, frmFind& findDialog,
             Tabs& tabs, ListFilters& filters, MarkHistory& marks)
    : app_(app),
      selection_(selection),
      findDialog_(findDialog),
      tabs_(tabs),
      filters_(filters),
      marks_(marks) {
    commands.mnuNextSelected.Operation = [this] { mnuNextSelected_Click(); };
    commands.mnuDeselectCurrent.Operation = [this] { mnuDeselectCurrent_Click(); };
    commands.mnuDeselectAll.Operation =
        findDialog_.cmdDeselectAll.Operation = [this] { mnuDeselectAll_Click(); };
    commands.mnuSelectAll.Operation = [this] { mnuSelectAll_Click(); };
    commands.mnuInvertSelection.Operation = [this] { mnuInvertSelection_Click(); };
    commands.mnuDeselectIn.Operation = [this] { DeselectAll(app_.lvwIn); };
    commands.cmdCheckShown.Operation = commands.mnuCheckShown.Operation = [this] { mnuCheckShown_Click(); };
    commands.cmdGather.Operation = commands.mnuGather.Operation = [this] { Gather(); };
    commands.mnuCopy.Operation = [this] { mnuCopy_Click(); };
    commands.mnuFind.Operation = [this] { mnuFind_Click(); };
    commands.mnuFindNext.Operation = [this] { findDialog_.FindNext(); };
}

void Lists::HitTest(std::int32_t lRow, std::int32_t lCol) {
    lHitRow = lRow;
    lHitCol = ColumnId::OfSection(lCol);
}

void Lists::OnActiveTable(const char* sProc, const std::function<void(Table&)>& command, TextView arguments) {
    Table* const table = app_.lvwActiveListView;
    if (table == nullptr) return;
    app_.trail.Guard(
        sProc, [&] { command(*table); },
        [&] {
            return Concat(
                {table->Name(), "/", Decimal(lHitRow), "/", Decimal(lHitCol.Section()), "/", arguments});
        });
}

void Lists::SSTab1_DblClick() {
    tabs_.SSTab1_GotFocus();
    Gather();
}

void Lists::Gather() {
    PlaceSelected();
    StatusBar1_DblClick();
}

void Lists::StatusBar1_DblClick() {
    if (!TabHasTable(app_.SSTab1)) return;
    OnActiveTable("StatusBar1_DblClick", [this](Table& table) {
        app_.pnlMessage.Set(
            Concat({Decimal(table.MarkedCount()), " \"", kTabCaptions[static_cast<std::size_t>(app_.SSTab1)],
                    "(s)\" sélectionnée(s) sur "_t, Decimal(table.Count())}));
    });
}

void Lists::PlaceSelected() {
    if (!TabHasTable(app_.SSTab1)) return;
    OnActiveTable("PlaceSelected", [this](Table& table) {
        table.SetSorted(false);
        const std::int32_t count = table.GatherMarked();
        // From the first to the last: as many of them as there is room for are in view then.
        if (count > 0) table.Item(1).EnsureVisible();
        if (count > 1) table.Item(count).EnsureVisible();
        SetAllColumnIcons(app_);
    });
}

void Lists::lvw_DblClick(Table& table) {
    if (&table == &app_.lvwOut) {
        if (lHitRow < 0 || !lHitCol) return;
        return app_.trail.Guard(
            "lvwOut_DblClick", [this] { marks_.Run(app_.lvwIn, [this] { selection_.SelectGroups(); }); },
            [] { return Text(); });
    }
    if (!app_.bFamiliesRead || lHitRow < 0 || lHitRow >= table.Count()) return;
    if (!lHitCol || lHitCol.Index() > table.ColumnCount()) return;
    const CellMeaning& meaning = table.ColumnAt(lHitCol).Facts->meaning;
    if (!meaning.namesIt) return;
    const bool isFamily = meaning.subject == Subject::Family;
    JumpTo(app_, isFamily ? app_.lvwFamily : app_.lvwIn,
           table.Item(lHitRow + 1).Cell(isFamily ? meaning.family : meaning.individual));
}

void Lists::lvw_ColumnClick(Table& table, Column& column) {
    modCalcOut::lvw_ColumnClick(app_, app_, table, column, app_.ports.keyboard.IsShiftDown());
}

void Lists::mnuNextSelected_Click() {
    selection_.context.bRestoreClickedRow = false;
    OnActiveTable("mnuNextSelected_Click", [this](Table& table) {
        table.SetSorted(false);
        for (std::int32_t i = std::max(lHitRow, -1) + 2; i <= table.Count(); ++i) {
            Row row = table.Item(i);
            if (!row.Marked()) continue;
            row.SetSelected(true);
            row.EnsureVisible();
            table.SetCurrent(row);
            lHitRow = i - 1;
            return;
        }
    });
}

/// Runs a command that marks rows of the active table.
void Lists::MarkActiveTable(const char* sProc, const std::function<void(Table&)>& command) {
    selection_.context.bRestoreClickedRow = false;
    OnActiveTable(sProc, [&](Table& table) { marks_.Run(table, [&] { command(table); }); });
}

void Lists::mnuDeselectCurrent_Click() {
    MarkActiveTable("mnuDeselectCurrent_Click", [this](Table& table) {
        if (lHitRow >= 0) SetMarks(table.Item(lHitRow + 1), false);
    });
}

void Lists::mnuDeselectAll_Click() {
    if (app_.lvwActiveListView != nullptr) DeselectAll(*app_.lvwActiveListView);
}

void Lists::DeselectAll(Table& table) {
    selection_.context.bRestoreClickedRow = false;
    app_.trail.Guard(
        "mnuDeselectAll_Click",
        [&] {
            marks_.Run(table, [&] {
                for (std::int32_t i = 1; i <= table.Count(); ++i) SetMarks(table.Item(i), false);
            });
        },
        [&] { return table.Name(); });
}

void Lists::mnuSelectAll_Click() {
    MarkActiveTable("mnuSelectAll_Click", [](Table& table) {
        for (std::int32_t i = 1; i <= table.Count(); ++i) SetMarks(table.Item(i), true);
    });
}

void Lists::mnuInvertSelection_Click() {
    MarkActiveTable("mnuInvertSelection_Click", [](Table& table) {
        for (std::int32_t i = 1; i <= table.Count(); ++i) {
            const Row row = table.Item(i);
            SetMarks(row, !row.Marked());
        }
    });
}

void Lists::mnuCheckShown_Click() {
    MarkActiveTable("mnuCheckShown_Click", [this](Table& table) {
        RowFilter& filter = filters_.Of(table);
        filter.Sync();
        for (std::int32_t place = 0; place < filter.Count(); ++place) {
            SetMarks(table.Item(filter.RowAt(place)), true);
        }
    });
}

/// The dialog looks in the column that was clicked last, with whatever button.
void Lists::mnuFind_Click() {
    Text sCell;
    OnActiveTable("mnuFind_Click", [&](Table& table) {
        if (!lHitCol || lHitCol.Index() > table.ColumnCount()) return;
        selection_.context.iClickedCol = lHitCol;
        if (lHitRow >= 0 && lHitRow < table.Count()) sCell = table.Item(lHitRow + 1).Cell(lHitCol);
    });
    findDialog_.Open(sCell);
}

/// The marked rows of the active table as lines, with the captions before them where they are wanted; nothing
/// for a table that cannot be exported.
std::optional<Text> Lists::MarkedLines() {
    if (app_.lvwActiveListView == nullptr) return std::nullopt;
    const modCalcOut::RowFormatter formatter(app_, app_, *app_.lvwActiveListView,
                                             app_.chkIncludeHeaders.Checked());
    if (!formatter.IsReady()) return std::nullopt;
    const bool bTabs = app_.optTabSpace.Index() == 0;
    Text lines;
    if (app_.chkIncludeHeaders.Checked()) lines = Concat({formatter.FormatHeaders(bTabs), kLineEnd});
    for (std::int32_t i = 1; i <= app_.lvwActiveListView->Count(); ++i) {
        const Row row = app_.lvwActiveListView->Item(i);
        if (!row.Marked()) continue;
        lines += formatter.FormatListItem(row, bTabs);
        lines += kLineEnd;
    }
    return lines;
}

void Lists::mnuCopy_Click() {
    selection_.context.bRestoreClickedRow = false;
    OnActiveTable("mnuCopy_Click", [this](Table&) {
        if (const auto lines = MarkedLines()) app_.ports.clipboard.SetText(*lines);
    });
}

Text Lists::DragText() {
    Text lines;
    OnActiveTable("lvw_OLEStartDrag", [&](Table&) { lines = MarkedLines().value_or(Text()); });
    return lines;
}

Text Lists::DragPerson() {
    Text sId;
    OnActiveTable("DragPerson", [&](Table& table) {
        modSelectionIn::SelectionContext context;
        context.SetClickedCell(app_, table, lHitCol);
        sId = context.IndividualOf(table, lHitRow).value_or(Text());
    });
    return sId;
}

}  // namespace swiftroll
