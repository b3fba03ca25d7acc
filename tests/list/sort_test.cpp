// Clicks on column headers, and the comparison forms behind them.
#include <gtest/gtest.h>

#include "list/list_fixture.h"
#include "list/sort_keys.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

struct Sorting : testing::Test, TestMain {
    /// The cells of the column after a click on its header.
    Texts Click(Table& table, TextView key) {
        modCalcOut::lvw_ColumnClick(main, main, table, *table.FindColumn(key), false);
        return ColumnOf(table, key);
    }
};

TEST_F(Sorting, TheOrderTogglesInTheTableNotInTheColumn) {
    AddIndividual(main, "@1@", {{"LastName", "b"}, {"Place", "x"}});
    AddIndividual(main, "@2@", {{"LastName", "A"}, {"Place", "z"}});
    AddIndividual(main, "@3@", {{"LastName", "Ç"_t}, {"Place", "y"}});
    const Texts ascending{"A", "b", Text("Ç"_t)}, descending{Text("Ç"_t), "b", "A"};
    const Column& lastName = *main.lvwIn.FindColumn("LastName");
    EXPECT_EQ(Click(main.lvwIn, "LastName"), ascending);
    EXPECT_EQ(lastName.Icon, "OnDw");
    EXPECT_EQ(Click(main.lvwIn, "LastName"), descending);
    EXPECT_EQ(lastName.Icon, "OnUp");
    EXPECT_EQ(Click(main.lvwIn, "LastName"), ascending);
    EXPECT_EQ(Click(main.lvwIn, "Place"), (Texts{"z", "y", "x"}));
    EXPECT_EQ(lastName.Icon, "OnNo");
    // The list sorts `lvwIn` ascending by its first column.
    main.cmdCalcOutput.Click();
    EXPECT_EQ(main.lvwIn.FindColumn("ID")->Icon, "OnDw");
    EXPECT_EQ(Click(main.lvwIn, "ID"), (Texts{"@3@", "@2@", "@1@"}));
}

TEST_F(Sorting, YearsNumbersAndIdentifiersSortByValue) {
    const Text ids[] = {"@I10@", "@I9@", "A1" + Text(29, '2'), "Z0" + Text(29, '2'), "@I100@"};
    const char* const years[] = {"1850", "900", "", "2000", "1066"};
    for (std::size_t i = 0; i < 5; ++i) {
        AddIndividual(main, ids[i], {{"BirthMin", years[i]}, {"IslandNr", years[i]}}).SetTag(ids[i]);
    }
    EXPECT_EQ(Click(main.lvwIn, "BirthMin"), (Texts{"", "900", "1066", "1850", "2000"}));
    EXPECT_EQ(Click(main.lvwIn, "IslandNr"), (Texts{"900", "2000", "1850", "1066", ""}));
    // The last 30 characters count alone; cells and tags come through whole.
    EXPECT_EQ(Click(main.lvwIn, "ID"), (Texts{"@I9@", "@I10@", "@I100@", ids[3], ids[2]}));
    for (std::int32_t i = 1; i <= 5; ++i) EXPECT_EQ(main.lvwIn.Item(i).Tag(), main.lvwIn.Item(i).Text());
    for (const char* count : {"    10", "100000", "     9"}) {
        main.lvwOut.Add(std::nullopt, count, "").SetCell(Out::Number, TextView(count));
    }
    EXPECT_EQ(Click(main.lvwOut, "Number"), (Texts{"     9", "    10", "100000"}));
}

TEST_F(Sorting, ComparisonFormsUnderTheOptions) {
    const TextView text = " Élise  d'Orÿ-œ "_t;
    const TextView forms[] = {text, "Elise d Ory", " ÉLISE  D'ORŸ-Œ "_t, "ELISE D ORY"};
    for (const std::size_t i : {0u, 1u, 2u, 3u}) {
        main.chkDelAccents.SetChecked(i % 2 == 1);
        main.chkIgnoreCase.SetChecked(i >= 2);
        EXPECT_EQ(modCalcOut::KeepAlphaNum(main, text, false), forms[i]);
        EXPECT_EQ(modCalcOut::KeepAlphaNum(main, text, true), "ELISE D ORY");
    }
}

}  // namespace
}  // namespace swiftroll::test
