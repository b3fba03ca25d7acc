#include "tables/column_icon.h"

#include <gtest/gtest.h>

namespace swiftroll {
namespace {

TEST(ColumnIcon, ShowsTheSortColumnAndKeepsTheSelection) {
    TableSet tables;
    Table& table = tables.lvwXref1;
    const auto icons = [&] {
        std::string all;
        for (const Column& column : table.Columns()) all += column.Icon + " ";
        return all;
    };
    Column& type = table.ColumnAt(ColumnId::OfIndex(2));
    table.ColumnAt(ColumnId::OfIndex(1)).Icon = "OfUp";
    table.ColumnAt(ColumnId::OfIndex(3)).Icon = "";
    table.ColumnAt(ColumnId::OfIndex(4)).Icon = "Of??";
    table.SortBy(ColumnId::OfIndex(2), 0);
    SetColumnIcon(table, type, true);
    EXPECT_EQ(icons(), "OfNo OnDw OnNo OnNo OnNo ");
    table.SetSortOrder(1);
    SetColumnIcon(table, type, false);
    EXPECT_EQ(icons(), "OfNo OnUp OnNo OnNo OnNo ");
    SetColumnIcon(table, table.ColumnAt(ColumnId::OfIndex(1)), true);
    EXPECT_EQ(icons(), "OfNo OnNo OnNo OnNo OnNo ");
    table.SetSorted(false);
    type.Icon = "OfUp";
    SetColumnIcon(table, type, false);
    EXPECT_EQ(type.Icon, "OfNo");
    // All shown tables at once, which are all but this one.
    for (Table* one : tables.All()) one->SortBy(ColumnId::OfIndex(2), 1);
    SetAllColumnIcons(tables);
    EXPECT_EQ(type.Icon, "OfNo");
    for (const Table* shown : tables.Shown()) {
        EXPECT_EQ(shown->ColumnAt(ColumnId::OfIndex(2)).Icon, "OnUp") << shown->Name();
        EXPECT_EQ(tables.Named(shown->Name()), shown);
    }
    EXPECT_EQ(tables.Named("lvwNone"), nullptr);
}

}  // namespace
}  // namespace swiftroll
