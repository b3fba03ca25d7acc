#include "tables/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "support/kind_of.h"
#include "tables/column_icon.h"
#include "tables/schema.h"
#include "text/edit.h"

namespace swiftroll {
namespace {

using test::KindOf;
constexpr ColumnId First = ColumnId::OfIndex(1), Second = ColumnId::OfIndex(2), Third = ColumnId::OfIndex(3);
constexpr FailureKind kOutOfRange = FailureKind::IndexOutOfRange;
const CellLook kBold{.Tag = "t", .ToolTipText = "tip", .Icon = "i", .ForeColor = 255, .Bold = true};

/// The first cells in the present order of the rows, one behind the other.
Text ColumnText(Table& table) {
    Text text;
    for (std::int32_t i = 1; i <= table.Count(); ++i) text += table.Item(i).Text();
    return text;
}

class TableTest : public testing::Test {
  protected:
    /// Adds one row a character, with the character as its key and its first cell.
    void AddRows(TextView characters) {
        for (const char& c : characters) table.Add({}, TextView(&c, 1), TextView(&c, 1));
    }
    RowKey Pair(TextView first, TextView second) {
        return RowKey(table.Store().Intern(first), table.Store().Intern(second));
    }
    TableSet tables;
    Table& table = tables.lvwXref1;
};

/// What a row of a plain list holds.
struct PlainRow {
    Text key, cell, interned, tag;
    int marks;
    friend bool operator==(const PlainRow&, const PlainRow&) = default;
};

PlainRow Plain(const Row& row) {
    const int marks = row.Selected() + 2 * row.Checked() + 4 * (row.Look(Third) == kBold);
    EXPECT_EQ(row.Marked(), row.Selected() || row.Checked());
    return {row.Key(), Text(row.Text()), Text(row.Cell(Second)), Text(row.Tag()), marks};
}

// Random additions, changes, removals, sorts and look-ups, compared with a plain list. A few first parts with
// many second ones, so that every way of keeping a pair is used; few cells, so that sorts must be stable, in
// a column of interned texts and in one of others.
TEST_F(TableTest, BehavesAsAPlainListOfRows) {
    std::mt19937 random(1);
    const TextView ids[] = {"@I2@", "", "@I10@", "@I1@"};
    std::vector<PlainRow> rows;
    const auto placeOf = [&](const Text& key) {
        const auto has = [&](const PlainRow& row) { return row.key == key; };
        return static_cast<std::int32_t>(std::find_if(rows.begin(), rows.end(), has) - rows.begin()) + 1;
    };
    for (int step = 0; step < 12000; ++step) {
        const Text first = random() % 8 == 0 ? "" : "@F" + std::to_string(random() % 3) + "@";
        const bool isSingle = random() % 10 == 0;  // the empty text too is a key
        const Text second = isSingle ? "" : "@I" + std::to_string(random() % 60) + "@";
        const Text key = first + second;
        const std::int32_t known = placeOf(key);
        const bool isKnown = known <= table.Count();
        const auto act = random() % 100;
        const Text cell = std::to_string(random() % 8);
        if (act < 50) {
            const auto at = static_cast<std::int32_t>(random() % (rows.size() + 1)) + 1;
            const auto kind = KindOf([&] { table.Add(at, Pair(first, second), table.Store().Put(cell)); });
            ASSERT_EQ(kind, isKnown ? std::optional(FailureKind::DuplicateKey) : std::nullopt) << key;
            if (!isKnown) rows.insert(rows.begin() + (at - 1), PlainRow{key, cell, "", "", 0});
        } else if (act < 65 && isKnown) {
            const Text id(ids[random() % 4]);
            const int marks = static_cast<int>(random() % 8);
            rows[static_cast<std::size_t>(known - 1)] = {key, cell, id, cell, marks};
            Row row = table.Item(key);
            row.SetCell(First, TextView(cell));
            row.SetCell(Second, table.Store().Intern(id));
            row.SetTag(cell);
            row.SetSelected((marks & 1) != 0);
            row.SetChecked((marks & 2) != 0);
            row.SetLook(Third, (marks & 4) != 0 ? kBold : CellLook());
        } else if (act < 94 && isKnown) {
            table.Remove(known);
            rows.erase(rows.begin() + (known - 1));
        } else if (act == 95) {
            const auto isMarked = [](const PlainRow& row) { return (row.marks & 3) != 0; };
            const auto others = std::stable_partition(rows.begin(), rows.end(), isMarked);
            ASSERT_EQ(table.GatherMarked(), others - rows.begin());
        } else if (act > 95) {
            const auto text = random() % 2 == 0 ? &PlainRow::cell : &PlainRow::interned;
            const bool descending = random() % 2 == 0;
            table.SortBy(text == &PlainRow::interned ? Second : First, descending);
            std::stable_sort(rows.begin(), rows.end(), [&](const PlainRow& a, const PlainRow& b) {
                return descending ? b.*text < a.*text : a.*text < b.*text;
            });
        } else if (act == 94 && random() % 10 == 0) {
            table.Clear();
            rows.clear();
        }
        ASSERT_EQ(table.Count(), static_cast<std::int32_t>(rows.size()));
        const auto found = table.Find(key);
        ASSERT_EQ(found.has_value(), placeOf(key) <= table.Count()) << key;
        ASSERT_TRUE(!found || found->Index() == placeOf(key)) << key;
        for (std::size_t i = 0; i < rows.size() && step % 20 == 0; ++i)
            ASSERT_TRUE(Plain(table.Item(static_cast<std::int32_t>(i + 1))) == rows[i]) << step << key;
    }
}

TEST_F(TableTest, EveryAccessIsChecked) {
    AddRows("ab");
    Row row = table.Item(1);
    for (const std::int32_t index : {0, -1, 3, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(KindOf([&] { table.Item(index); }), kOutOfRange) << index;
        EXPECT_EQ(KindOf([&] { table.Remove(index); }), kOutOfRange) << index;
        EXPECT_EQ(KindOf([&] { table.Add(index == 3 ? 4 : index, "k", "t"); }), kOutOfRange) << index;
    }
    for (const int index : {-1, 0, 6, 32767}) {
        const ColumnId column = ColumnId::OfIndex(index);
        EXPECT_EQ(KindOf([&] { row.Cell(column); }), kOutOfRange) << index;
        EXPECT_EQ(KindOf([&] { row.SetCell(column, TextView("x")); }), kOutOfRange) << index;
        EXPECT_EQ(KindOf([&] { table.ColumnAt(column); }), kOutOfRange) << index;
        EXPECT_EQ(KindOf([&] { table.MoveColumn(First, static_cast<std::int16_t>(index)); }), kOutOfRange)
            << index;
    }
    for (const ColumnId key : {ColumnId::OfIndex(0), ColumnId::OfIndex(6)}) {
        EXPECT_EQ(KindOf([&] { table.SetSortKey(key); }), kOutOfRange);
        EXPECT_EQ(KindOf([&] { table.SortBy(key, 0); }), kOutOfRange);
        EXPECT_EQ(KindOf([&] { table.SortByForms({"1", "2"}, key, 0); }), kOutOfRange);
    }
    EXPECT_EQ(KindOf([&] { row.SetLook(ColumnId::OfIndex(6), {}); }), kOutOfRange);
    EXPECT_EQ(KindOf([&] { table.SortByForms({"1"}, First, 0); }), FailureKind::InvalidArgument);
    for (const TextView key : {"", "x", "B", "k"})
        EXPECT_EQ(KindOf([&] { table.Item(key); }), FailureKind::KeyNotFound) << key;
    EXPECT_EQ(ColumnText(table), "ab");
    EXPECT_TRUE(!table.Sorted() && table.SortKey() == First);
}

TEST_F(TableTest, AHandleFromBeforeARemovalIsRefused) {
    const std::function<void(Row&)> uses[] = {
        [](Row& row) { row.Text(); },
        [](Row& row) { row.SetCell(First, TextView("x")); },
        [](Row& row) { row.Index(); },
        [](Row& row) { row.Key(); },
        [](Row& row) { row.Tag(); },
        [](Row& row) { row.SetTag("x"); },
        [](Row& row) { row.Marked(); },
        [](Row& row) { row.SetChecked(true); },
        [](Row& row) { row.Look(); },
        [](Row& row) { row.SetLook({}, {}); },
        [](Row& row) { row.VisitLengths([](ColumnId, std::size_t) {}); },
    };
    AddRows("abc");
    Row removed = table.Item(2), before = table.Item(1);
    table.Remove(2);
    Row cleared = table.Item(1);
    table.Clear();
    AddRows("abc");
    for (Row* row : {&removed, &before, &cleared}) {
        for (const auto& use : uses) EXPECT_EQ(KindOf([&] { use(*row); }), kOutOfRange);
    }
    EXPECT_EQ(ColumnText(table), "abc");
}

TEST_F(TableTest, SortedSortKeyAndSortOrder) {
    AddRows("bca");
    const TextView second[] = {"2", "1", "3"};
    for (std::int32_t i = 1; i <= 3; ++i) table.Item(i).SetCell(Second, second[i - 1]);
    table.SetSortKey(Second);
    table.SetSortOrder(1);
    EXPECT_EQ(ColumnText(table), "bca") << "not before Sorted is set";
    table.SetSorted(true);
    EXPECT_EQ(ColumnText(table), "abc");
    table.SetSortOrder(0);
    EXPECT_EQ(ColumnText(table), "cba");
    table.SetSortKey(First);
    EXPECT_EQ(ColumnText(table), "abc");
    table.SetSorted(false);
    table.SetSortOrder(1);
    EXPECT_EQ(ColumnText(table), "abc");
    table.SortByForms({"2", "1", "2"}, Third, 0);
    EXPECT_EQ(ColumnText(table), "bac") << "by the forms alone";
    EXPECT_TRUE(table.Sorted() && table.SortKey() == Third && table.SortOrder() == 0);
    table.SortByForms({"1", "2", "2"}, Third, 1);
    EXPECT_EQ(ColumnText(table), "acb");
    table.Clear();
    EXPECT_TRUE(table.Sorted());
    table.SetSortOrder(0);  // of an empty table
}

TEST_F(TableTest, TablesOfOneReadShareTheirTexts) {
    Row indi = tables.lvwIn.Add({}, "@I1@", "@I1@");
    Row link = tables.lvwXref.Add({}, RowKey(indi.Ref(In::ID)), indi.Ref(In::ID));
    tables.lvwIn.Clear();
    EXPECT_EQ(link.Text(), "@I1@");
    EXPECT_EQ(&tables.lvwIn.Store(), &tables.lvwXref.Store());
    EXPECT_NE(&tables.lvwOut.Store(), &tables.lvwXref.Store());
}

TEST_F(TableTest, MovedColumnsCloseUp) {
    const std::tuple<std::int16_t, std::int16_t, TextView> moves[] = {
        {2, 4, "14235"}, {5, 1, "25341"}, {5, 5, "14235"}, {3, 2, "14235"}, {2, 2, "12345"}, {1, 5, "51234"}};
    for (const auto& [index, position, expected] : moves) {
        table.MoveColumn(ColumnId::OfIndex(index), position);
        Text positions;
        for (const Column& column : table.Columns()) positions += static_cast<char>('0' + column.Position);
        EXPECT_EQ(positions, expected) << index << " to " << position;
    }
}

TEST_F(TableTest, IconsShowTheSortColumnAndKeepTheSelection) {
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
