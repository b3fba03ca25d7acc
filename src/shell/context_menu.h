#pragma once

#include "shell/list_columns.h"
#include "shell/main_commands.h"

namespace swiftroll {

enum class MouseButton { Left, Right };

/// A key as the tables know it.
struct ListKey {
    enum class Code { ContextMenu, F10, Letter, Other };
    Code code = Code::Other;
    char letter = 0;  // in capitals
    bool shift = false, ctrl = false, alt = false;
    /// Whether it opens the context menu.
    bool OpensMenu() const { return code == Code::ContextMenu || (code == Code::F10 && shift) || alt; }
};

/// The context menu of the tables: which entries it offers for a cell, and what opens it.
class ContextMenu {
  public:
    ContextMenu(Application& app, MainCommands& commands, modSelectionIn::Engine& selection, Lists& lists,
                ListColumns& columns, MarkHistory& marks);

    /// Its entries.
    const Menu mnuContext;
    /// The button was released over the active table: the right one opens the context menu.
    void lvw_MouseUp(MouseButton button);
    /// A key that was pressed in the active table. Its commands work on the cell of the last hit test, which
    /// is made anew for a key that opens the menu, and for no other.
    void lvw_KeyDown(const ListKey& key);
    /// Opens the context menu without a cell.
    void SSTab1_RightClick();

    /// Fits the menu to the cell of the last hit test.
    void ModifyContextMenu();
    /// Shows, or shows no more, which cells of the column the commands of the menu would work on. With them
    /// the clicked row becomes `Selected`, until the end if a command changed the marks meanwhile.
    void MarkSubItems(ColumnId iCol, bool bMark);

  private:
    /// The row that was clicked for the context menu, and whether it was `Selected` before.
    struct ClickedRow {
        Table* table = nullptr;
        std::int32_t row = -1;
        bool bClickedRowWasSelected = false;
    };

    Application& app_;
    MainCommands& commands_;
    modSelectionIn::Engine& selection_;
    Lists& lists_;
    ListColumns& columns_;
    MarkHistory& marks_;
    ClickedRow clicked_;
};

}  // namespace swiftroll
