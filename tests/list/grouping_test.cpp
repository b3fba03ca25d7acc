// How individuals are grouped into the list, and how clicks on column headers sort.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "list/list_fixture.h"
#include "list/sort_keys.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

struct Grouping : testing::Test, TestMain {
    Texts List(const std::vector<TextView>& keys) {
        Arrange(main.lvwOut, keys);
        main.cmdCalcOutput.Click();
        return ListOf(main);
    }
};

TEST_F(Grouping, KeysOfTheListAreThoseOfItsIndividuals) {
    AddIndividual(main, "@1@", {{"LastName", "d'Orÿ"_t}, {"Place", "Saint-Malo, (35)"}, {"Sex", "M"}});
    AddIndividual(main, "@2@", {{"LastName", "Øre"_t}});
    List({"Place", "DateMin", "LastName", "Sex"});
    EXPECT_EQ(main.lvwOut.Item(2).Key(), "\\\\DRE\\");
    EXPECT_EQ(main.lvwOut.Item(1).Key(), "\\SAINT MALO 35\\D ORY\\M");
    for (std::int32_t i = 1; i <= 2; ++i) {
        const Row row = main.lvwOut.Item(i);
        EXPECT_EQ(modCalcOut::MakeSortKeyOut(main.positions, row), row.Key());
        EXPECT_EQ(modCalcOut::MakeSortKeyIn(main.positions, main.lvwIn.Item(i)), row.Key());
    }
}

TEST_F(Grouping, WidthsOfTheList) {
    AddIndividual(main, "@1@", {{"LastName", "Montmorency"}, {"FirstName", "Anne"}, {"Place", "Chantilly"}});
    List({});
    main.lvwIn.Clear();
    AddIndividual(main, "@1@", {{"LastName", "Ney"}, {"FirstName", "Michel"}, {"BirthMin", "1769"}});
    List({"LastName", "DateMin"});
    Text widths;
    for (const Column& column : main.lvwOut.Columns()) widths += Decimal(main.lMaxLenOut[column.Index]);
    // Columns behind `Number` count too, and years have their four digits whatever they hold.
    EXPECT_EQ(widths, "336044604404404400");
}

TEST_F(Grouping, AYearThatIsNoNumberIsReported) {
    AddIndividual(main, "@1@", {{"LastName", "A"}});
    AddIndividual(main, "@2@", {{"LastName", "B"}, {"DeathMax", "1800?"}});
    AddIndividual(main, "@3@", {{"LastName", "C"}});
    EXPECT_EQ(List({"LastName"}), Texts{"A|     1"});
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_TRUE(dialogs.boxes[0].title.ends_with(" - Erreur \"CalcOuptut"));
    EXPECT_FALSE(main.bWaitCursor);
}

bool IsYear(TextView key) { return key.ends_with("Min") || key.ends_with("Max"); }

/// What the groups should be, told in another way: a map from key to group.
class PlainGrouping {
  public:
    explicit PlainGrouping(std::vector<TextView> keys) : keys_(std::move(keys)) {}

    void Add(Table& lvwIn, const Row& row) {
        const auto cell = [&](TextView key) { return Text(row.Cell(lvwIn.FindColumn(key)->Index)); };
        Text groupKey;
        for (const TextView key : keys_) {
            if (!IsYear(key)) groupKey += "\\" + Folded(cell(key));
        }
        Group& group = groups_[groupKey];
        ++group.count;
        for (const TextView key : keys_) {
            const Text value = cell(key);
            Text& shown = group.shown.try_emplace(key, value).first->second;
            if (!IsYear(key) || value.empty()) continue;
            const auto year = [](const Text& text) { return std::stoi(text); };
            if (shown.empty() ||
                (key.ends_with("Min") ? year(value) < year(shown) : year(value) > year(shown))) {
                shown = value;
            }
        }
    }
    Texts Rows() const {
        Texts rows;
        for (const auto& [key, group] : groups_) {
            Text row;
            for (const TextView column : keys_) row += group.shown.at(column) + "|";
            const Text count = std::to_string(group.count);
            rows.push_back(row + Text(6 - count.size(), ' ') + count);
        }
        return rows;
    }

  private:
    struct Group {
        int count = 0;
        std::map<TextView, Text> shown;
    };
    static Text Folded(TextView text) {
        static const TextView letters = "éÔçßaA0123456789"_t, plain = "EOCSAA0123456789";
        Text folded;
        for (const char c : text) {
            if (const auto at = letters.find(c); at != TextView::npos) {
                folded += plain[at];
            } else if (!folded.empty() && folded.back() != ' ') {
                folded += ' ';
            }
        }
        if (folded.ends_with(' ')) folded.pop_back();
        return folded;
    }
    std::vector<TextView> keys_;
    std::map<Text, Group> groups_;
};

TEST(GroupingOfAnything, IsTheGroupingOfAPlainMap) {
    std::mt19937 random(1791);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const TextView letters = "aA9éÔçß -'œ&"_t;
    for (int pass = 0; pass < 40; ++pass) {
        TestMain t;
        Table& lvwIn = t.main.lvwIn;
        for (auto people = 1 + below(120); people > 0; --people) {
            Row row = AddIndividual(t.main, Concat({"@", std::to_string(people), "@"}), {});
            for (const Column& column : lvwIn.Columns()) {
                if (column.Index == In::ID) continue;
                Text cell;
                if (!IsYear(column.Key)) {
                    for (auto length = below(4); length > 0; --length) cell += letters[below(letters.size())];
                } else if (below(3) > 0) {
                    cell = std::to_string(below(2000));
                }
                row.SetCell(column.Index, cell);
            }
        }
        Texts before = RowsOf(lvwIn);
        std::vector<TextView> keys;
        for (const Column& column : lvwIn.Columns()) {
            if (column.Index != In::ID || pass % 10 == 0) keys.push_back(column.Key);
        }
        std::shuffle(keys.begin(), keys.end(), random);
        keys.resize(below(7));
        Arrange(t.main.lvwOut, keys);
        t.main.cmdCalcOutput.Click();

        // Which spelling comes first is up to the sort, so the map is filled in the order that it made.
        PlainGrouping expected(keys);
        for (std::int32_t i = 1; i <= lvwIn.Count(); ++i) expected.Add(lvwIn, lvwIn.Item(i));
        EXPECT_EQ(ListOf(t.main), expected.Rows()) << "pass " << pass;
        Texts after = RowsOf(lvwIn);
        std::sort(before.begin(), before.end());
        std::sort(after.begin(), after.end());
        EXPECT_EQ(before, after) << "pass " << pass;
        ASSERT_TRUE(t.dialogs.boxes.empty());
    }
}

struct Sorting : testing::Test, TestMain {
    /// The cells of the column after a click on its header.
    Texts Click(Table& table, TextView key) {
        modCalcOut::lvw_ColumnClick(main, main, table, *table.FindColumn(key), false);
        return CellsOf(table, {table.FindColumn(key)->Index});
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

}  // namespace
}  // namespace swiftroll::test
