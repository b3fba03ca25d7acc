// Rows as lines of text for the clipboard.
#include "list/format_row.h"

#include <gtest/gtest.h>

#include "list/list_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

constexpr bool kTabs = true, kBlanks = false;

struct FormatRow : testing::Test, TestMain {
    FormatRow() {
        Read(
            WithCrLf("0 @I1@ INDI\n1 NAME Marie /Curie/\n1 BIRT\n2 DATE 1867\n"
                     "0 @I2@ INDI\n1 NAME Eve /Curie-Labouisse/\n1 SEX F\n0 TRLR\n"));
        SwitchOnOnly({"ID", "LastName", "FirstName", "BirthMin", "Sex"});
        dialogs.boxes.clear();
    }
    modCalcOut::RowFormatter Formatter() {
        return {main, main, *main.lvwActiveListView, main.chkIncludeHeaders.Checked()};
    }
    void SwitchOnOnly(const std::vector<TextView>& keys) {
        for (Column& column : main.lvwIn.Columns()) {
            column.Icon = std::find(keys.begin(), keys.end(), column.Key) == keys.end() ? "OfNo" : "OnNo";
        }
    }
};

TEST_F(FormatRow, CellsInTheOrderOfTheColumns) {
    main.lvwIn.MoveColumn(In::ID, 4);
    const modCalcOut::RowFormatter formatter = Formatter();
    const Row curie = main.lvwIn.Item("@I1@");
    EXPECT_EQ(formatter.FormatHeaders(kTabs), "Nom\tPrénom\tID\tNaiss.Min\tSexe"_t);
    // Only the last tab goes, so that empty cells at the end keep their columns.
    EXPECT_EQ(formatter.FormatListItem(curie, kTabs), "Curie\tMarie\t@I1@\t1867\t");
    EXPECT_EQ(formatter.FormatHeaders(kBlanks), "Nom             Prénom ID   Naiss.Min Sexe "_t);
    EXPECT_EQ(formatter.FormatListItem(curie, kBlanks), "Curie           Marie  @I1@ 1867           ");
    SwitchOnOnly({});
    EXPECT_EQ(Formatter().FormatListItem(curie, kTabs), "");
}

TEST_F(FormatRow, TheListEndsWithItsNumberAlignedToTheRight) {
    Arrange(main.lvwOut, {"LastName", "FirstName", "DateMin"});
    main.cmdCalcOutput.Click();
    main.lvwOut.FindColumn("FirstName")->Icon = "OfNo";
    const modCalcOut::RowFormatter formatter = Formatter();
    EXPECT_EQ(formatter.FormatHeaders(kTabs), "Nom\tDate Min\t  Nbre");
    EXPECT_EQ(formatter.FormatListItem(main.lvwOut.Item(2), kBlanks), "Curie           1867          1 ");
    main.lvwOut.FindColumn("Number")->Icon = "OfNo";
    EXPECT_EQ(formatter.FormatListItem(main.lvwOut.Item(2), kTabs), "Curie\t1867");
}

TEST_F(FormatRow, WithoutHeadersColumnsAreAsWideAsTheirCells) {
    main.chkIncludeHeaders.SetChecked(false);
    const modCalcOut::RowFormatter formatter = Formatter();
    EXPECT_EQ(formatter.FormatListItem(main.lvwIn.Item("@I2@"), kBlanks),
              "@I2@ Curie-Labouisse Eve        F ");
    Row row = main.lvwIn.Item("@I1@");
    row.SetCell(In::FirstName, TextView("Marie1"));
    EXPECT_EQ(formatter.FormatListItem(row, kBlanks), "@I1@ Curie           Marie11867   ");
    EXPECT_TRUE(dialogs.boxes.empty());
    row.SetCell(In::FirstName, TextView("Marie12"));
    EXPECT_EQ(formatter.FormatListItem(row, kBlanks), "");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_NE(dialogs.boxes[0].text.find("|3/lvwActiveListView=lvwIn/"), Text::npos) << dialogs.boxes[0].text;
}

}  // namespace
}  // namespace swiftroll::test
