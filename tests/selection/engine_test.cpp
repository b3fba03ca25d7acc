// What the selection does in cases that a genealogist would tell apart, and how it fails.
#include <array>

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
    /// Clicks on a column, from 0, and adds or removes.
    void Run(Table& table, int column, TextView sMode, bool bSelect = true) {
        main.lvwActiveListView = &table;
        main.modSelectionIn.context.SetClickedCell(main, table, column);
        main.modSelectionIn.Add_Remove_Selection(bSelect, sMode);
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

TEST(Selection, FollowsTheMarksThatItMakesDownTheTable) {
    // Grand is above Mum in the file, Dad and Gran below their children.
    Selected t({"Grand m", "Mum f", "Kid m", "Dad m", "Gran f"},
               {"Grand - Mum", "Dad Mum Kid", "- Gran Dad"});
    t.Mark(t.main.lvwIn, {"@Kid@"});
    t.Run(t.main.lvwIn, 0, "P");
    EXPECT_EQ(t.Marked(), "Mum Kid Dad Gran");
    // Kid unmarks his parents before Dad could unmark Gran.
    t.Run(t.main.lvwIn, 0, "P", false);
    EXPECT_EQ(t.Marked(), "Kid Gran");
}

TEST(Selection, MarksTheRelativesOfPeopleAndFamilies) {
    Selected t({"A m", "B f", "C f", "D m", "E m", "F f"}, {"A B D", "A C E", "F - D"});
    const struct {
        Table& table;
        TextView key;
        int column;
        TextView sMode, marked;
    } cases[] = {
        {t.main.lvwFamily, "@F1@", 7, "S", "A B"},         // a family
        {t.main.lvwFamily, "@F1@", 8, "S", "B C"},         // the spouses of its husband
        {t.main.lvwFamily, "@F1@", 8, "C", "D E"},         // two marriages
        {t.main.lvwFamily, "@F2@", 0, "C", "E"},           //
        {t.main.lvwFamily, "@F2@", 9, "P", ""},            // nobody's child
        {t.main.lvwFamilyXref, "@F3@@D@", 2, "P", "A B"},  // the first of two families of origin
        {t.main.lvwFamilyXref, "@F3@@D@", 0, "S", "F"},   {t.main.lvwXref, "@A@@B@", 2, "I", "B"},
        {t.main.lvwXref, "@A@@B@", 0, "V=", "B C D E"},  // all to whom A is linked
        {t.main.lvwFamily, "@F1@", 1, "V=", "B C"},
    };
    for (const auto& c : cases) {
        t.UnmarkAll();
        t.Mark(c.table, {c.key});
        t.Run(c.table, c.column, c.sMode);
        EXPECT_EQ(t.Marked(), c.marked) << c.table.Name() << c.column << c.sMode;
        EXPECT_TRUE(c.table.Item(c.key).Checked());
        EXPECT_FALSE(c.table.Item(c.key).Selected());
    }
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Selection, ComparesYearsOfTheListAsTexts) {
    TestMain t;
    Arrange(t.main.lvwOut, {"LastName", "DateMax"});
    for (const auto& [id, name, year] : std::initializer_list<std::array<TextView, 3>>{
             {"@A@", "X", "1700"}, {"@B@", "x!", "1850"}, {"@C@", "Y", "1849"}, {"@D@", "Z", "999"}}) {
        AddIndividual(t.main, id, {{"LastName", name}, {"DateMax", year}});
    }
    t.main.cmdCalcOutput.Click();
    Table& list = t.main.lvwOut;
    list.Item("\\X").SetSelected(true);
    t.main.lvwActiveListView = &list;
    t.main.modSelectionIn.context.SetClickedCell(t.main, list, list.FindColumn("DateMax")->Index - 1);
    t.main.modSelectionIn.Add_Remove_Selection(true, "V>=");
    Text marked;
    for (std::int32_t i = 1; i <= 4; ++i) {
        if (t.main.lvwIn.Item(i).Marked()) marked += t.main.lvwIn.Item(i).Text();
    }
    EXPECT_EQ(marked, "@A@@B@@D@");
}

TEST(Selection, LeavesTheEndsOfPathsAlone) {
    Selected t({"A m", "B f", "C m"}, {"A B C"});
    t.Find("A", "C");
    Row end = t.main.lvwKinship.Item(t.main.lvwKinship.Count());
    ASSERT_TRUE(end.Text().ends_with("999999"));
    end.SetCell(Kinship::IDIndi, "@B@");
    t.UnmarkAll();
    end.SetSelected(true);
    t.Run(t.main.lvwKinship, 0, "V=");
    EXPECT_EQ(t.Marked(), "A C");
    t.UnmarkAll();
    end.SetSelected(true);
    t.Run(t.main.lvwKinship, 0, "I");
    EXPECT_EQ(t.Marked(), "B");
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

TEST(Selection, DoesNothingWithoutATableOrAWay) {
    Selected t({"A m"}, {});
    t.main.modSelectionIn.context.bRestoreClickedRow = true;
    t.main.modSelectionIn.Add_Remove_Selection(true, "I");
    EXPECT_FALSE(t.main.modSelectionIn.context.bRestoreClickedRow);
    t.Mark(t.main.lvwIn, {"@A@"});
    t.Run(t.main.lvwIn, 0, "?1");
    t.main.modSelectionIn.SelectIn("", false);
    EXPECT_EQ(t.Marked(), "A");
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Selection, CellsAreReadRawOrAsTheyAreCompared) {
    Selected t("0 @A@ INDI\r\n1 NAME Renée-A. /x/\r\n0 TRLR\r\n"_t);
    const Row row = t.main.lvwIn.Item(1);
    const auto& engine = t.main.modSelectionIn;
    EXPECT_EQ(engine.GetCell(row, 0, true), "@A@");
    EXPECT_EQ(engine.GetCell(row, 2, true), "Renée-A."_t);
    EXPECT_EQ(engine.GetCell(row, 2, false), "RENEE A");
    t.main.chkIgnoreCase.SetChecked(false);
    EXPECT_EQ(engine.GetCell(row, 2, false), "Renee A");
    t.main.chkDelAccents.SetChecked(false);
    EXPECT_EQ(engine.GetCell(row, 2, false), "Renée-A."_t);
}

}  // namespace
}  // namespace swiftroll::test
