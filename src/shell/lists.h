#pragma once

#include "shell/frm_find.h"
#include "shell/list_filters.h"
#include "shell/mark_history.h"
#include "shell/tabs.h"

namespace swiftroll {

/// What the user does with the rows and columns of the active table.
class Lists {
  public:
    Lists(Application& app, ListCommands& commands, modSelectionIn::Engine& selection, frmFind& findDialog,
          Tabs& tabs, ListFilters& filters, MarkHistory& marks);

    /// Tells the row and the column that a button of the mouse, or a key of the menu, was pressed on, from 0;
    /// -1 for none.
    void HitTest(std::int32_t lRow, std::int32_t lCol);
    /// What the last hit test told, or the row that `mnuNextSelected` went to since.
    std::int32_t lHitRow = -1;
    ColumnId lHitCol;
    /// Runs a command on the active table, if there is one; a failure is reported with its name and
    /// `arguments`.
    void OnActiveTable(const char* sProc, const std::function<void(Table&)>& command,
                       TextView arguments = {});

    /// Goes to the individual or the family that the cell of the last hit test names; in lvwOut, marks the
    /// individuals of the marked groups.
    void lvw_DblClick(Table& table);
    /// Sorts by the column or, with Shift, switches it on or off for export.
    void lvw_ColumnClick(Table& table, Column& column);
    /// The marked rows of the active table as a text to drag.
    Text DragText();
    /// The identifier of the person whom a drag takes along, that of the cell of the last hit test; empty
    /// where it speaks of nobody.
    Text DragPerson();

    /// Puts the marked rows of the tab first, and tells how many there are.
    void SSTab1_DblClick();
    /// Tells how many rows of the active table are marked.
    void StatusBar1_DblClick();
    /// Puts the marked rows of the active table before the others.
    void PlaceSelected();
    /// The same, and tells how many there are.
    void Gather();

  private:
    void DeselectAll(Table& table);
    void MarkActiveTable(const char* sProc, const std::function<void(Table&)>& command);
    void mnuCheckShown_Click();
    void mnuNextSelected_Click();
    void mnuDeselectCurrent_Click();
    void mnuDeselectAll_Click();
    void mnuSelectAll_Click();
    void mnuInvertSelection_Click();
    void mnuFind_Click();
    void mnuCopy_Click();
    std::optional<Text> MarkedLines();

    Application& app_;
    modSelectionIn::Engine& selection_;
    frmFind& findDialog_;
    Tabs& tabs_;
    ListFilters& filters_;
    MarkHistory& marks_;
};

}  // namespace swiftroll
