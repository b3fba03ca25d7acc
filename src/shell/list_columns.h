#pragma once

#include "shell/lists.h"

namespace swiftroll {

struct MainCommands;

/// What the user does with the columns of the active table, all of them or the one of the last hit test:
/// which are seen, how wide they are, which are exported.
class ListColumns {
  public:
    ListColumns(Application& app, MainCommands& commands, Lists& lists);

    /// The menu of the header of a column.
    const Menu mnuHeader;
    /// Opens it for the column of the last hit test.
    void Header_RightClick();
    /// Fits the commands of one column to the active table and the last hit test.
    void FitCommands();
    /// Makes a column as wide as its widest text and its caption need, within bounds.
    void FitWidth(Table& table, ColumnId column);
    /// What the tip of a column's header says.
    Text TipOf(const Table& table, const Column& column) const;
    /// For the presentation, which knows its letters: the width that a cell, or a header, needs for a text,
    /// in hundredths of a millimetre.
    std::function<std::int32_t(TextView text, bool isHeader)> Measure;

  private:
    void mnuColSelUnsel(TextView sPrefix);
    void OnHitColumn(const char* sProc, const std::function<void(Table&, Column&)>& command);

    Application& app_;
    MainCommands& commands_;
    Lists& lists_;
};

}  // namespace swiftroll
