#include "shell/list_columns.h"

#include <algorithm>

#include "list/longest_texts.h"
#include "list/sort_keys.h"
#include "shell/main_commands.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

constexpr std::int32_t kNarrowest = 800, kWidest = 20000;
/// Where nobody measures letters.
constexpr std::int32_t kLetterWidth = 200;
/// Room of the tick in the first column.
constexpr std::int32_t kTickWidth = 600;

bool IsFirst(const Table& table, const Column& column) {
    return std::ranges::none_of(table.Columns(), [&](const Column& other) {
        return other.IsShown() && other.Position < column.Position;
    });
}

}  // namespace

ListColumns::ListColumns(Application& app, MainCommands& commands, Lists& lists)
    : mnuHeader(commands.HeaderMenu()),
      Measure([](TextView text, bool) { return static_cast<std::int32_t>(text.size()) * kLetterWidth; }),
      app_(app),
      commands_(commands),
      lists_(lists) {
    commands_.mnuColSelect.Operation = [this] { mnuColSelUnsel("On"); };
    commands_.mnuColUnselect.Operation = [this] { mnuColSelUnsel("Of"); };
    commands_.mnuResetCol.Operation = [this] {
        lists_.OnActiveTable("mnuResetCol_Click", [](Table& table) {
            for (Column& column : table.Columns()) column.Width = kColumnWidth;
        });
    };
    commands_.mnuColSort.Operation = [this] {
        OnHitColumn("mnuColSort_Click", [this](Table& table, Column& column) {
            modCalcOut::lvw_ColumnClick(app_, app_, table, column, false);
        });
    };
    commands_.mnuColExport.Operation = [this] {
        OnHitColumn("mnuColExport_Click", [this](Table& table, Column& column) {
            modCalcOut::lvw_ColumnClick(app_, app_, table, column, true);
        });
    };
    commands_.mnuColFit.Operation = [this] {
        OnHitColumn("mnuColFit_Click",
                    [this](Table& table, Column& column) { FitWidth(table, column.Index); });
    };
    commands_.mnuColHide.Operation = [this] {
        OnHitColumn("mnuColHide_Click", [](Table& table, Column& column) {
            if (std::ranges::count_if(table.Columns(), &Column::IsShown) > 1) column.Width = 0;
        });
    };
    for (std::size_t i = 0; i < commands_.mnuColShown.size(); ++i) {
        commands_.mnuColShown[i].Operation = [this, i] {
            lists_.OnActiveTable("mnuColShown_Click", [i](Table& table) {
                if (i >= table.Columns().size() || table.Columns()[i].IsShown()) return;
                table.Columns()[i].Width = table.Columns()[i].Facts->width;
            });
        };
    }
}

void ListColumns::OnHitColumn(const char* sProc, const std::function<void(Table&, Column&)>& command) {
    lists_.OnActiveTable(sProc, [&](Table& table) {
        const ColumnId column = lists_.lHitCol;
        if (column && column.Index() <= table.ColumnCount()) command(table, table.ColumnAt(column));
    });
}

void ListColumns::mnuColSelUnsel(TextView sPrefix) {
    lists_.OnActiveTable(
        "mnuColSelUnsel",
        [&](Table& table) {
            if (&table == &app_.lvwOut) return;
            for (Column& column : table.Columns()) column.Icon.replace(0, 2, sPrefix);
            modCalcOut::WarnWithoutColumns(app_, table);
        },
        sPrefix);
}

void ListColumns::Header_RightClick() {
    lists_.OnActiveTable("Header_RightClick", [this](Table&) {
        FitCommands();
        app_.ports.dialogs.PopUp(mnuHeader);
    });
}

void ListColumns::FitCommands() {
    if (app_.lvwActiveListView == nullptr) return;
    const Table& table = *app_.lvwActiveListView;
    const bool isColumn = lists_.lHitCol && lists_.lHitCol.Index() <= table.ColumnCount();
    const auto shown = std::ranges::count_if(table.Columns(), &Column::IsShown);
    commands_.mnuColSort.Enabled = commands_.mnuColFit.Enabled = isColumn;
    commands_.mnuColHide.Enabled = isColumn && shown > 1;
    commands_.mnuColExport.Enabled = isColumn && &table != &app_.lvwOut;
    commands_.mnuColExport.Caption = isColumn && table.ColumnAt(lists_.lHitCol).IsOn()
                                         ? "Ne plus exporter cette colonne"_t
                                         : "Exporter cette colonne"_t;
    commands_.mnuColShow.Enabled = shown < table.ColumnCount();
    for (std::size_t i = 0; i < commands_.mnuColShown.size(); ++i) {
        Command& command = commands_.mnuColShown[i];
        command.Visible = i < table.Columns().size() && !table.Columns()[i].IsShown();
        if (command.Visible) command.Caption = table.Columns()[i].Caption;
    }
}

Text ListColumns::TipOf(const Table& table, const Column& column) const {
    Text text = Concat({column.Caption, kLineEnd});
    if (&table != &app_.lvwOut) {
        text += column.IsOn()
                    ? "Coche verte : la colonne est exportée par la copie et le glisser-déposer."_t
                    : "Croix rouge : la colonne n'est pas exportée par la copie ni le glisser-déposer."_t;
        text +=
            Concat({kLineEnd, column.IsOn() ? "Maj+clic : ne plus l'exporter."_t : "Maj+clic : l'exporter."_t,
                    kLineEnd});
    }
    text += "Clic : trier. Double-clic sur la bordure : ajuster la largeur. Clic droit : menu."_t;
    return text;
}

void ListColumns::FitWidth(Table& table, ColumnId column) {
    std::int32_t width = std::max(kNarrowest, Measure(table.ColumnAt(column).Caption, true));
    for (const TextView text : LongestTexts(table, column)) width = std::max(width, Measure(text, false));
    if (IsFirst(table, table.ColumnAt(column))) width += kTickWidth;
    table.ColumnAt(column).Width = std::min(width, kWidest);
}

}  // namespace swiftroll
