#pragma once

#include <array>

#include "app/controls.h"
#include "app/positions.h"
#include "selection/lineage.h"

namespace swiftroll {

/// The submenu of an action that goes on from generation to generation.
struct GenerationCommands {
    /// How far it may go; the first is no limit.
    static constexpr std::array<std::int32_t, 6> kChoices = {modSelectionIn::kAllGenerations, 1, 2, 3, 5, 10};

    /// The entries have the name of the head and an index.
    GenerationCommands(Window& window, TextView name, TextView caption);
    Menu Entry();
    void Enable(bool enabled);

    Command head;
    std::array<Command, kChoices.size()> upTo;
};

/// The commands of the context menu of the tables, in its order. Titles stand above the entries that belong
/// to them, and the heads of submenus do nothing by themselves.
struct ListCommands {
    explicit ListCommands(Window& window);

    /// Title of the whole menu.
    Command mnuContextTitle;
    Command mnuAddFavorite;
    Command mnuCol;
    Command mnuColSelect, mnuColUnselect, mnuResetCol;
    // The column of the last hit test, here and in the menu of its header
    Command mnuHeader;
    Command mnuColSort, mnuColExport, mnuColFit, mnuColHide;
    Command mnuColShow;
    std::array<Command, kMaxColumns> mnuColShown;  // one for each column that is hidden

    // Marks of the active table
    Command mnuSpe2;
    Command mnuNextSelected, mnuDeselectCurrent, mnuDeselectAll, mnuSelectAll, mnuInvertSelection;
    Command cmdCheckShown, mnuCheckShown;
    Command cmdGather, mnuGather;
    Command cmdUndoMarks, mnuUndoMarks;
    Command mnuFilter;
    Command mnuCopy;
    Command mnuFind, mnuFindNext;

    // Marks of lvwIn
    Command mnuSelect;
    Command mnuDeselectIn;
    Command mnuAdd;
    Command mnuAddIndi, mnuAddParents, mnuAddSpouses, mnuAddChildren;
    std::array<Command, 3> mnuAddValue;  // they compare values
    GenerationCommands mnuAddAncestors, mnuAddDescendants;
    Command mnuRemove;
    Command mnuRemoveIndi, mnuRemoveParents, mnuRemoveSpouses, mnuRemoveChildren;
    std::array<Command, 3> mnuRemoveValue;
    GenerationCommands mnuRemoveAncestors, mnuRemoveDescendants;

    /// Title of the kinship commands.
    Command mnuKinship;
};

}  // namespace swiftroll
