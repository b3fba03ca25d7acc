// What the selection does in cases that a genealogist would tell apart, and how it fails.
#include "kinship/kinship_fixture.h"
#include "list/list_fixture.h"

namespace swiftroll::test {
namespace {

/// A file that was read, with the words of its marks.
struct Selected : AfterRead {
    using AfterRead::AfterRead;

    void Mark(Table& table, std::initializer_list<TextView> keys) {
        for (const TextView key : keys) table.Item(key).SetChecked(true);
    }
    /// Clicks on a column, from 0, and adds.
    void Run(Table& table, int column, TextView sMode) {
        main.lvwActiveListView = &table;
        main.modSelectionIn.context.SetClickedCell(main, table, column);
        main.modSelectionIn.Add_Remove_Selection(true, sMode);
    }
    /// The marked individuals: "A B".
    Text Marked() {
        Text marked;
        for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) {
            const Row row = main.lvwIn.Item(i);
            if (row.Marked())
                marked += Concat({marked.empty() ? "" : " ", row.Text().substr(1, row.Text().size() - 2)});
        }
        return marked;
    }
    void UnmarkAll() {
        for (Table* table : main.Shown()) {
            for (std::int32_t i = 1; i <= table->Count(); ++i) {
                table->Item(i).SetSelected(false);
                table->Item(i).SetChecked(false);
            }
        }
    }
};

TEST(Selection, ACellMeansWhatItsColumnHolds) {
    TestMain t;
    t.main.lvwOut.MoveColumn(t.main.lvwOut.FindColumn("Place")->Index, 1);
    t.main.InitIndexes();
    const std::pair<Table*, Texts> cases[] = {
        {&t.main.lvwIn, Texts(17, "I 0 -1")},
        {&t.main.lvwFamily,
         {"F -1 0", "I 1 0", "I 2 0", "I 3 0", "F -1 0", "F -1 0", "F -1 0", "F -1 0", "I 1 0", "I 2 0",
          "I 3 0"}},
        {&t.main.lvwXref, {"I 0 5", "I 0 5", "I 2 5", "I 0 5", "I 2 5", "F -1 5", "F -1 5"}},
        {&t.main.lvwFamilyXref, {"F 2 0", "I 2 0", "I 2 0", "I 2 0", "F 2 0", "I 2 0"}},
        {&t.main.lvwKinship, {"I 1 4", "I 1 4", "I 1 4", "I 1 4", "F 1 4", "F 1 4", " -1 -1", " -1 -1"}},
        {&t.main.lvwXref1, Texts(5, " -1 -1")},
    };
    auto& context = t.main.modSelectionIn.context;
    const auto click = [&](const Table& table, std::int32_t column) {
        context.SetClickedCell(t.main, table, column);
        return Concat({context.sIdKind, " ", Decimal(context.iIndiCol), " ", Decimal(context.iFamCol)});
    };
    for (const auto& [table, meanings] : cases) {
        for (std::int16_t column = 0; column < table->ColumnCount(); ++column) {
            EXPECT_EQ(click(*table, column), meanings.at(static_cast<std::size_t>(column)))
                << table->Name() << column;
            EXPECT_EQ(context.iClickedCol, column);
        }
        for (const std::int32_t beside : {-1, static_cast<std::int32_t>(table->ColumnCount())}) {
            EXPECT_EQ(click(*table, beside), " -1 -1");
            EXPECT_EQ(context.iClickedCol, 0);
        }
    }
    Texts before;
    for (const Column& column : t.main.lvwOut.Columns()) {
        if (click(t.main.lvwOut, column.Index - 1) == "S -1 -1") before.push_back(column.Key);
    }
    EXPECT_EQ(before, Rows({"ID", "LastName", "Place"}));
}

TEST(Selection, AFailureEndsItAndKeepsTheMarksMade) {
    Selected t({"A m", "B f", "C m", "D f"}, {"A - C", "B Gone D"});
    t.Mark(t.main.lvwFamily, {"@F1@", "@F2@"});
    t.Run(t.main.lvwFamily, 0, "S");
    EXPECT_EQ(t.Marked(), "A B");
    ASSERT_EQ(t.main.trail.Reports(), 1);
    EXPECT_EQ(t.dialogs.boxes.back().title, "SwiftRoll (v3.4.0) - Erreur \"Add_Remove_Selection");
    const Text& text = t.dialogs.boxes.back().text;
    EXPECT_NE(text.find("@Gone@"), Text::npos) << text;
    EXPECT_NE(text.find("|lvwFamily/-1/S/F/0/-1/0//@F2@|"), Text::npos) << text;
    EXPECT_FALSE(t.main.bWaitCursor);

    t.UnmarkAll();
    t.main.lvwFamily.Remove(t.main.lvwFamily.Item("@F1@").Index());
    t.Mark(t.main.lvwIn, {"@C@", "@D@"});
    t.Run(t.main.lvwIn, 0, "P");
    EXPECT_EQ(t.Marked(), "C D");
    ASSERT_EQ(t.main.trail.Reports(), 2);
    EXPECT_NE(t.dialogs.boxes.back().text.find("|lvwIn/-1/P/I/0/0/-1/@C@/@F1@|"), Text::npos)
        << t.dialogs.boxes.back().text;
    // Values know no unknown individual.
    t.Mark(t.main.lvwFamily, {"@F2@"});
    t.Run(t.main.lvwFamily, 0, "V=");
    EXPECT_EQ(t.Marked(), "B C D");
    EXPECT_EQ(t.main.trail.Reports(), 2);
}

}  // namespace
}  // namespace swiftroll::test
