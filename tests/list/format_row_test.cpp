// Rows as lines of text for the clipboard.
#include "list/format_row.h"

#include <gtest/gtest.h>

#include "list/list_fixture.h"
#include "tables/column_numbers.h"

namespace swiftroll::test {
namespace {

constexpr bool kTabs = true, kBlanks = false;

struct FormatRow : testing::Test, TestMain {
    FormatRow() {
        Read(
            WithCrLf("0 @I1@ INDI\n1 NAME Marie /Curie/\n1 BIRT\n2 DATE 1867\n"
                     "0 @I2@ INDI\n1 NAME Eve /Curie-Labouisse/\n1 SEX F\n0 TRLR\n"));
        SwitchOnOnly(main.lvwIn, {"ID", "LastName", "FirstName", "BirthMin", "Sex"});
    }
    static void SwitchOnOnly(Table& table, const std::vector<TextView>& keys) {
        for (Column& column : table.Columns()) {
            column.Icon = std::find(keys.begin(), keys.end(), column.Key) == keys.end() ? "OfNo" : "OnNo";
        }
    }
};

TEST_F(FormatRow, CellsInTheOrderOfTheColumns) {
    main.lvwIn.MoveColumn(In::ID, 4);
    const modCalcOut::RowFormatter formatter(main);
    const Row curie = main.lvwIn.Item("@I1@");
    EXPECT_EQ(formatter.FormatHeaders(kTabs), "Nom\tPrénom\tID\tNaiss.Min\tSexe"_t);
    // Only the last tab goes, so that empty cells at the end keep their columns.
    EXPECT_EQ(formatter.FormatListItem(curie, kTabs), "Curie\tMarie\t@I1@\t1867\t");
    EXPECT_EQ(formatter.FormatHeaders(kBlanks), "Nom             Prénom ID   Naiss.Min Sexe "_t);
    EXPECT_EQ(formatter.FormatListItem(curie, kBlanks), "Curie           Marie  @I1@ 1867           ");
}

TEST_F(FormatRow, WithoutHeadersColumnsAreAsWideAsTheirCells) {
    main.chkIncludeHeaders.SetChecked(false);
    const modCalcOut::RowFormatter formatter(main);
    EXPECT_EQ(formatter.FormatListItem(main.lvwIn.Item("@I1@"), kBlanks),
              "@I1@ Curie           Marie 1867   ");
    EXPECT_EQ(formatter.FormatListItem(main.lvwIn.Item("@I2@"), kBlanks),
              "@I2@ Curie-Labouisse Eve        F ");
}

TEST_F(FormatRow, TheListEndsWithItsNumberAlignedToTheRight) {
    Arrange(main.lvwOut, {"LastName", "FirstName", "DateMin"});
    main.cmdCalcOutput.Click();
    main.lvwOut.FindColumn("FirstName")->Icon = "OfNo";
    const modCalcOut::RowFormatter formatter(main);
    EXPECT_EQ(formatter.FormatHeaders(kTabs), "Nom\tDate Min\t  Nbre");
    EXPECT_EQ(formatter.FormatListItem(main.lvwOut.Item(2), kTabs), "Curie\t1867\t     1");
    EXPECT_EQ(formatter.FormatListItem(main.lvwOut.Item(2), kBlanks), "Curie           1867          1 ");
    main.lvwOut.FindColumn("Number")->Icon = "OfNo";
    EXPECT_EQ(formatter.FormatListItem(main.lvwOut.Item(2), kTabs), "Curie\t1867");
}

TEST_F(FormatRow, ACellWiderThanItsColumnIsReported) {
    main.chkIncludeHeaders.SetChecked(false);
    Row row = main.lvwIn.Item("@I1@");
    const modCalcOut::RowFormatter formatter(main);
    row.SetCell(In::FirstName, TextView("Marie1"));
    EXPECT_EQ(formatter.FormatListItem(row, kBlanks), "@I1@ Curie           Marie11867   ");
    row.SetCell(In::FirstName, TextView("Marie12"));
    dialogs.boxes.clear();
    EXPECT_EQ(formatter.FormatListItem(row, kBlanks), "");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_TRUE(dialogs.boxes[0].title.ends_with(" - Erreur \"FormatListItem"));
    EXPECT_NE(dialogs.boxes[0].text.find("|3/lvwActiveListView=lvwIn/"), Text::npos) << dialogs.boxes[0].text;
    EXPECT_EQ(formatter.FormatListItem(row, kTabs), "@I1@\tCurie\tMarie12\t1867\t");
}

TEST_F(FormatRow, NothingSwitchedOnIsAnEmptyLine) {
    SwitchOnOnly(main.lvwIn, {});
    dialogs.boxes.clear();
    const modCalcOut::RowFormatter formatter(main);
    EXPECT_EQ(formatter.FormatListItem(main.lvwIn.Item(1), kTabs), "");
    EXPECT_EQ(formatter.FormatHeaders(kBlanks), "");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FormatRow, ATableWithoutPositionsIsTold) {
    main.lvwActiveListView = &main.lvwXref1;
    dialogs.boxes.clear();
    const modCalcOut::RowFormatter formatter(main);
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, main.MainCaption() + " - InitListItem");
    EXPECT_EQ(dialogs.boxes[0].text,
              "'Y a comme un problème (lvwXref1)\r\nMerci de me prévenir immédiatement "_t);
}

}  // namespace
}  // namespace swiftroll::test
