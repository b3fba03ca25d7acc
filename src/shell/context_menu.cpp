#include "shell/context_menu.h"

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kComparisons[] = {" est <=", " est =", " est >="};
constexpr TextView kValueModes[] = {"V<=", "V=", "V>="};

}  // namespace

ContextMenu::ContextMenu(Application& app, MainCommands& commands, modSelectionIn::Engine& selection,
                         Lists& lists, ListColumns& columns, MarkHistory& marks)
    : mnuContext(commands.TableMenu()),
      app_(app),
      commands_(commands),
      selection_(selection),
      lists_(lists),
      columns_(columns),
      marks_(marks) {
    const auto bind = [this](Command& command, bool bSelect, TextView sMode,
                             std::int32_t lGenerations = modSelectionIn::kAllGenerations) {
        command.Operation = [this, bSelect, sMode, lGenerations] {
            marks_.Run(app_.lvwIn, [&] { selection_.Add_Remove_Selection(bSelect, sMode, lGenerations); });
        };
    };
    const struct {
        Command &add, &remove;
        TextView sMode;
    } links[] = {{commands_.mnuAddIndi, commands_.mnuRemoveIndi, "I"},
                 {commands_.mnuAddParents, commands_.mnuRemoveParents, "P"},
                 {commands_.mnuAddSpouses, commands_.mnuRemoveSpouses, "S"},
                 {commands_.mnuAddChildren, commands_.mnuRemoveChildren, "C"}};
    for (const auto& link : links) {
        bind(link.add, true, link.sMode);
        bind(link.remove, false, link.sMode);
    }
    const struct {
        GenerationCommands &add, &remove;
        TextView sMode;
    } lineages[] = {{commands_.mnuAddAncestors, commands_.mnuRemoveAncestors, "A"},
                    {commands_.mnuAddDescendants, commands_.mnuRemoveDescendants, "D"}};
    for (const auto& lineage : lineages) {
        for (std::size_t i = 0; i < GenerationCommands::kChoices.size(); ++i) {
            bind(lineage.add.upTo[i], true, lineage.sMode, GenerationCommands::kChoices[i]);
            bind(lineage.remove.upTo[i], false, lineage.sMode, GenerationCommands::kChoices[i]);
        }
    }
    for (std::size_t i = 0; i < commands_.mnuAddValue.size(); ++i) {
        bind(commands_.mnuAddValue[i], true, kValueModes[i]);
        bind(commands_.mnuRemoveValue[i], false, kValueModes[i]);
    }
}

void ContextMenu::lvw_MouseUp(MouseButton button) {
    if (button != MouseButton::Right) return;
    lists_.OnActiveTable("lvw_MouseUp", [this](Table& table) {
        commands_.mnuColSelect.Enabled = commands_.mnuColUnselect.Enabled = &table != &app_.lvwOut;
        commands_.mnuFindPath.Enabled = &table == &app_.lvwIn && commands_.cmdFindPath.Enabled;
        commands_.mnuDrawKinship.Enabled = &table == &app_.lvwKinship;
        const ColumnId iCol = lists_.lHitCol;
        ModifyContextMenu();
        const MarkHistory::Start start(marks_, table);
        MarkSubItems(iCol, true);
        selection_.context.bRestoreClickedRow = true;
        // While a command of the menu runs for long, another menu may open and close.
        const ClickedRow clicked = clicked_;
        app_.ports.dialogs.PopUp(mnuContext);
        clicked_ = clicked;
        MarkSubItems(iCol, false);
        commands_.mnuAddFavorite.Enabled = commands_.mnuFindPath.Enabled = commands_.mnuDrawKinship.Enabled =
            true;
    });
}

void ContextMenu::SSTab1_RightClick() {
    if (!TabHasTable(app_.SSTab1) || app_.lvwActiveListView == nullptr) return;
    lists_.HitTest(-1, -1);
    lvw_MouseUp(MouseButton::Right);
}

void ContextMenu::ModifyContextMenu() {
    if (app_.lvwActiveListView == nullptr) return;
    const Table& table = *app_.lvwActiveListView;
    modSelectionIn::SelectionContext& context = selection_.context;
    context.SetClickedCell(app_, table, lists_.lHitCol);
    if (lists_.lHitCol) {
        commands_.mnuColSelect.Enabled = commands_.mnuColUnselect.Enabled = &table != &app_.lvwOut;
    }
    commands_.mnuDeselectCurrent.Enabled = static_cast<bool>(lists_.lHitCol);
    commands_.mnuAddFavorite.Enabled = lists_.lHitRow >= 0 && !app_.IsSummary(&table);
    commands_.mnuFind.Enabled = commands_.mnuFindNext.Enabled = true;
    columns_.FitCommands();
    marks_.Follow();
    const bool isIndividual = context.sIdKind == "I";
    commands_.mnuAllKin.Enabled = isIndividual && lists_.lHitRow >= 0 && app_.bFamiliesRead;
    commands_.mnuKinFrom.Enabled = commands_.mnuKinTo.Enabled =
        isIndividual && lists_.lHitRow >= 0 && app_.bFamiliesRead;
    const bool isPerson = isIndividual || context.sIdKind == "F";
    for (Command* command : {&commands_.mnuAddIndi, &commands_.mnuAddParents, &commands_.mnuRemoveIndi,
                             &commands_.mnuRemoveParents}) {
        command->Enabled = isIndividual;
    }
    for (GenerationCommands* lineage : {&commands_.mnuAddAncestors, &commands_.mnuAddDescendants,
                                        &commands_.mnuRemoveAncestors, &commands_.mnuRemoveDescendants}) {
        lineage->Enable(isIndividual);
    }
    for (Command* command : {&commands_.mnuAddSpouses, &commands_.mnuAddChildren, &commands_.mnuRemoveSpouses,
                             &commands_.mnuRemoveChildren}) {
        command->Enabled = isPerson;
    }
    const Text& header = table.ColumnAt(context.iClickedCol).Caption;
    for (std::size_t i = 0; i < commands_.mnuAddValue.size(); ++i) {
        for (Command* value : {&commands_.mnuAddValue[i], &commands_.mnuRemoveValue[i]}) {
            value->Caption = Concat({header, kComparisons[i]});
            value->Enabled = !context.sIdKind.empty();
        }
    }
}

void ContextMenu::MarkSubItems(ColumnId iCol, bool bMark) {
    if (bMark) {
        const bool formsNoGroups =
            app_.lvwActiveListView == &app_.lvwOut && (!iCol || !modSelectionIn::FormsGroups(app_, iCol));
        clicked_ = {formsNoGroups ? nullptr : app_.lvwActiveListView, lists_.lHitRow};
    }
    // A command of the menu may have gone to another table, but what was marked must be restored.
    Table* const table = clicked_.table;
    if (table == nullptr) return;
    if (clicked_.row >= 0 && clicked_.row < table->Count()) {
        Row row = table->Item(clicked_.row + 1);
        if (bMark) {
            clicked_.bClickedRowWasSelected = row.Selected();
            row.SetSelected(true);
        } else if (selection_.context.bRestoreClickedRow) {
            row.SetSelected(clicked_.bClickedRowWasSelected);
        }
    }
    table->SetPaintedColumn(std::nullopt);
    // The first column stands for the whole row.
    if (bMark && iCol) table->SetPaintedColumn(iCol.Section() == 0 ? ColumnId() : iCol);
}

void ContextMenu::lvw_KeyDown(const ListKey& key) {
    using Code = ListKey::Code;
    if (key.OpensMenu()) lvw_MouseUp(MouseButton::Right);
    if (!key.ctrl || key.code != Code::Letter) return;
    for (Command* command : {&commands_.mnuAddFavorite, &commands_.mnuSelectAll, &commands_.mnuDeselectAll,
                             &commands_.mnuNextSelected, &commands_.mnuInvertSelection,
                             &commands_.mnuDeselectCurrent, &commands_.mnuCopy, &commands_.mnuDeselectIn,
                             &commands_.mnuFind, &commands_.mnuFindNext, &commands_.mnuUndoMarks}) {
        if (command->Key == Concat({"Ctrl+", TextView(&key.letter, 1)})) return command->Click();
    }
}

}  // namespace swiftroll
