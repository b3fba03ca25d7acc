// Clicks on column headers, and the comparison forms behind them.
#include <gtest/gtest.h>

#include "list/list_fixture.h"
#include "list/sort_keys.h"
#include "tables/column_numbers.h"

namespace swiftroll::test {
namespace {

struct Sorting : testing::Test, TestMain {
    void Click(Table& table, TextView key, bool shiftIsDown = false) {
        modCalcOut::lvw_ColumnClick(main, table, *table.FindColumn(key), shiftIsDown);
    }
    Texts Icons(Table& table) {
        Texts icons;
        for (const Column& column : table.Columns()) icons.push_back(column.Icon);
        return icons;
    }
};

TEST_F(Sorting, TheOrderTogglesInTheTableNotInTheColumn) {
    AddIndividual(main, "@1@", {{"LastName", "b"}, {"Place", "x"}});
    AddIndividual(main, "@2@", {{"LastName", "A"}, {"Place", "z"}});
    AddIndividual(main, "@3@", {{"LastName", "Ç"_t}, {"Place", "y"}});
    const Texts ascending{"A", "b", Text("Ç"_t)}, descending{Text("Ç"_t), "b", "A"};
    const Column& lastName = *main.lvwIn.FindColumn("LastName");
    Click(main.lvwIn, "LastName");
    EXPECT_EQ(ColumnOf(main.lvwIn, "LastName"), ascending);
    EXPECT_EQ(lastName.Icon, "OnDw");
    Click(main.lvwIn, "LastName");
    EXPECT_EQ(ColumnOf(main.lvwIn, "LastName"), descending);
    EXPECT_EQ(lastName.Icon, "OnUp");
    Click(main.lvwIn, "LastName");
    EXPECT_EQ(ColumnOf(main.lvwIn, "LastName"), ascending);
    Click(main.lvwIn, "Place");
    EXPECT_EQ(ColumnOf(main.lvwIn, "Place"), (Texts{"z", "y", "x"}));
    EXPECT_EQ(lastName.Icon, "OnNo");
    EXPECT_EQ(main.lvwIn.FindColumn("Place")->Icon, "OnUp");
    // The list sorts `lvwIn` ascending by its first column.
    main.cmdCalcOutput.Click();
    EXPECT_TRUE(main.lvwIn.Sorted());
    EXPECT_EQ(main.lvwIn.FindColumn("ID")->Icon, "OnDw");
    Click(main.lvwIn, "ID");
    EXPECT_EQ(ColumnOf(main.lvwIn, "ID"), (Texts{"@3@", "@2@", "@1@"}));
}

TEST_F(Sorting, YearsNumbersAndIdentifiersSortByValue) {
    const Text ids[] = {"@I10@", "@I9@", "A1" + Text(29, '2'), "Z0" + Text(29, '2'), "@I100@"};
    const char* const years[] = {"1850", "900", "", "2000", "1066"};
    for (std::size_t i = 0; i < 5; ++i) {
        Row row = AddIndividual(main, ids[i], {{"BirthMin", years[i]}, {"IslandNr", years[i]}});
        row.SetTag(Concat({"1 ", ids[i]}));
    }
    Click(main.lvwIn, "BirthMin");
    EXPECT_EQ(ColumnOf(main.lvwIn, "BirthMin"), (Texts{"", "900", "1066", "1850", "2000"}));
    Click(main.lvwIn, "IslandNr");
    EXPECT_EQ(ColumnOf(main.lvwIn, "IslandNr"), (Texts{"900", "2000", "1850", "1066", ""}));
    Click(main.lvwIn, "ID");
    // The last 30 characters count alone; cells and tags come through whole.
    EXPECT_EQ(ColumnOf(main.lvwIn, "ID"), (Texts{"@I9@", "@I10@", "@I100@", ids[3], ids[2]}));
    for (std::int32_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(main.lvwIn.Item(i).Tag(), Concat({"1 ", main.lvwIn.Item(i).Text()}));
    }
    for (const char* count : {"    10", "100000", "     9"})
        main.lvwOut.Add(std::nullopt, count, "").SetSubItems(2, TextView(count));
    Click(main.lvwOut, "Number");
    EXPECT_EQ(ColumnOf(main.lvwOut, "Number"), (Texts{"     9", "    10", "100000"}));
}

TEST_F(Sorting, AnEmptyTableTakesTheOrderAndTheIcons) {
    Click(main.lvwFamily, "Husb");
    EXPECT_TRUE(main.lvwFamily.Sorted());
    EXPECT_EQ(main.lvwFamily.SortKey(), main.lvwFamily.FindColumn("Husb")->Index - 1);
    EXPECT_EQ(main.lvwFamily.SortOrder(), 0);
    EXPECT_EQ(main.lvwFamily.FindColumn("Husb")->Icon, "OnDw");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(Sorting, ShiftSwitchesAColumnForExport) {
    main.lvwXref.Add(std::nullopt, "b", "b");
    main.lvwXref.Add(std::nullopt, "a", "a");
    Click(main.lvwXref, "Type");
    Click(main.lvwXref, "Type", true);
    EXPECT_EQ(Icons(main.lvwXref), (Texts{"OnNo", "OfDw", "OnNo", "OnNo", "OnNo", "OnNo", "OnNo"}));
    Click(main.lvwXref, "IDIndi1");
    EXPECT_EQ(main.lvwXref.FindColumn("Type")->Icon, "OfNo");
    Click(main.lvwXref, "Type", true);
    EXPECT_EQ(main.lvwXref.FindColumn("Type")->Icon, "OnNo");
    for (const Column& column : main.lvwXref.Columns()) {
        EXPECT_TRUE(dialogs.boxes.empty());
        Click(main.lvwXref, column.Key, true);
    }
    EXPECT_EQ(ColumnOf(main.lvwXref, "IDIndi1"), (Texts{"b", "a"}));
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, main.MainCaption() + Text(" - Sélection Colonnes"_t));
    EXPECT_EQ(dialogs.boxes[0].text,
              "Aucune valeur ne sera écrite en sortie\r\npuisqu'aucune colonne n'est sélectionnée"_t);
    EXPECT_EQ(dialogs.boxes[0].icon, BoxIcon::Exclamation);
}

TEST_F(Sorting, ShiftOnTheListDoesNothing) {
    Click(main.lvwOut, "Place");
    const Texts icons = Icons(main.lvwOut);
    Click(main.lvwOut, "LastName", true);
    EXPECT_EQ(Icons(main.lvwOut), icons);
    EXPECT_EQ(main.lvwOut.SortKey(), Out::Place - 1);
}

TEST_F(Sorting, ComparisonFormsUnderTheOptions) {
    const TextView text = " Élise  d'Orÿ-œ "_t;
    const auto form = [&](bool delAccents, bool ignoreCase) {
        main.chkDelAccents.SetChecked(delAccents);
        main.chkIgnoreCase.SetChecked(ignoreCase);
        EXPECT_EQ(modCalcOut::KeepAlphaNum(main, text, true), "ELISE D ORY");
        return modCalcOut::KeepAlphaNum(main, text, false);
    };
    EXPECT_EQ(form(false, false), text);
    EXPECT_EQ(form(true, false), "Elise d Ory");
    EXPECT_EQ(form(false, true), " ÉLISE  D'ORŸ-Œ "_t);
    EXPECT_EQ(form(true, true), "ELISE D ORY");
    EXPECT_EQ(modCalcOut::KeepAlphaNum(main, "...-\t!", true), "");
}

}  // namespace
}  // namespace swiftroll::test
