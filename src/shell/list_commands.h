#pragma once

#include <array>

#include "app/controls.h"

namespace swiftroll {

/// The commands of the context menu of the tables, in its order. Titles stand above the entries that belong
/// to them, and the heads of submenus do nothing by themselves.
struct ListCommands {
    explicit ListCommands(Window& window);

    /// Title of the whole menu.
    Command mnuContextTitle;
    Command mnuAddFavorite;
    Command mnuCol;
    Command mnuColSelect, mnuColUnselect, mnuResetCol;

    // Marks of the active table
    Command mnuSpe2;
    Command mnuNextSelected, mnuDeselectCurrent, mnuDeselectAll, mnuSelectAll, mnuInvertSelection;
    Command mnuCopy;
    Command mnuFind, mnuFindNext;

    // Marks of lvwIn; the last three of each submenu compare values
    Command mnuSelect;
    Command mnuDeselectIn;
    Command mnuAdd;
    Command mnuAddIndi, mnuAddParents, mnuAddSpouses, mnuAddChildren;
    std::array<Command, 3> mnuAddValue;
    Command mnuRemove;
    Command mnuRemoveIndi, mnuRemoveParents, mnuRemoveSpouses, mnuRemoveChildren;
    std::array<Command, 3> mnuRemoveValue;

    /// Title of the kinship commands.
    Command mnuKinship;
};

}  // namespace swiftroll
