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
    /// Clicks on a column and adds.
    void Run(Table& table, ColumnId column, TextView sMode) {
        main.lvwActiveListView = &table;
        main.selection.context.SetClickedCell(main, table, column);
        main.selection.Add_Remove_Selection(true, sMode);
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

TEST(Selection, OnlyColumnsBeforeTheNumberFormGroupsAndBesideTheColumnsIsNothing) {
    TestMain t;
    t.main.lvwOut.MoveColumn(Out::Place, 1);
    t.main.InitIndexes();
    auto& context = t.main.selection.context;
    Texts before;
    for (const Column& column : t.main.lvwOut.Columns()) {
        context.SetClickedCell(t.main, t.main.lvwOut, column.Index);
        if (context.sIdKind == "S") before.push_back(column.Key);
    }
    EXPECT_EQ(before, Rows({"ID", "LastName", "Place"}));
    context.SetClickedCell(t.main, t.main.lvwIn, In::Place);
    for (const ColumnId beside : {ColumnId(), ColumnId(In::kEnd)}) {
        context.SetClickedCell(t.main, t.main.lvwIn, beside);
        EXPECT_TRUE(context.sIdKind.empty() && !context.iIndiCol && !context.iFamCol);
        EXPECT_EQ(context.iClickedCol, In::ID);
    }
}

TEST(Selection, AFailureEndsItAndKeepsTheMarksMade) {
    Selected t({"A m", "B f", "C m", "D f"}, {"A - C", "B Gone D"});
    t.Mark(t.main.lvwFamily, {"@F1@", "@F2@"});
    t.Run(t.main.lvwFamily, Family::IDFam, "S");
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
    t.Run(t.main.lvwIn, In::ID, "P");
    EXPECT_EQ(t.Marked(), "C D");
    ASSERT_EQ(t.main.trail.Reports(), 2);
    EXPECT_NE(t.dialogs.boxes.back().text.find("|lvwIn/-1/P/I/0/0/-1/@C@/@F1@|"), Text::npos)
        << t.dialogs.boxes.back().text;
    // Values know no unknown individual.
    t.Mark(t.main.lvwFamily, {"@F2@"});
    t.Run(t.main.lvwFamily, Family::IDFam, "V=");
    EXPECT_EQ(t.Marked(), "B C D");
    EXPECT_EQ(t.main.trail.Reports(), 2);
}

}  // namespace
}  // namespace swiftroll::test
