// How individuals are grouped into the list.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "list/list_fixture.h"
#include "list/sort_keys.h"
#include "tables/column_numbers.h"

namespace swiftroll::test {
namespace {

TEST(Grouping, OneRowAGroupWithItsYearsAndItsCount) {
    TestMain t;
    Arrange(t.main.lvwOut, {"Place", "BirthMin", "LastName", "BirthMax", "MarrMin", "MarrMax"});
    AddIndividual(t.main, "@1@", {{"LastName", "Martin"}, {"Place", "Paris"}});
    AddIndividual(t.main, "@2@", {{"LastName", "Dupont"}, {"Place", "Paris"}, {"BirthMax", "1860"}});
    AddIndividual(t.main, "@3@", {{"LastName", "DUPONT"}, {"Place", "PARIS "}, {"BirthMin", "1850"}});
    AddIndividual(t.main, "@4@", {{"LastName", "Dupônt"_t}, {"Place", "-Paris"}, {"BirthMin", "900"}});
    AddIndividual(t.main, "@5@", {{"LastName", "Dupont"}, {"Place", "Paris"}, {"BirthMax", "950"}});
    AddIndividual(t.main, "@6@", {{"LastName", "Du-Pont"}, {"Place", "Paris"}, {"BirthMin", "1700"}});
    for (int i = 0; i < 12; ++i) {
        AddIndividual(t.main, Concat({"@L", Decimal(i), "@"}), {{"LastName", "Le  Gall"}, {"MarrMax", "0"}});
    }
    t.main.cmdCalcOutput.Click();
    EXPECT_EQ(ListOf(t.main), (Texts{"Paris|1700|Du-Pont||||     1", "Paris|900|Dupont|1860|||     4",
                                     "Paris||Martin||||     1", "||Le  Gall|||0|    12"}));
    EXPECT_EQ(t.main.SSTab1, Tab::Out);
    EXPECT_EQ(t.main.lvwActiveListView, &t.main.lvwOut);
    EXPECT_EQ(t.main.pnlMessage.Get(), "");
    EXPECT_FALSE(t.main.bWaitCursor);
    EXPECT_EQ(ColumnOf(t.main.lvwIn, "LastName").front(), "Du-Pont");
    EXPECT_EQ(ColumnOf(t.main.lvwIn, "LastName").back(), "Le  Gall");
}

TEST(Grouping, KeysOfTheListAreThoseOfItsIndividuals) {
    TestMain t;
    Arrange(t.main.lvwOut, {"Place", "DateMin", "LastName", "Sex"});
    AddIndividual(t.main, "@1@", {{"LastName", "d'Orÿ"_t}, {"Place", "Saint-Malo, (35)"}, {"Sex", "M"}});
    AddIndividual(t.main, "@2@", {{"LastName", "Øre"_t}});
    t.main.cmdCalcOutput.Click();
    EXPECT_EQ(t.main.lvwOut.Item(2).Key(), "\\\\DRE\\");
    EXPECT_EQ(t.main.lvwOut.Item(1).Key(), "\\SAINT MALO 35\\D ORY\\M");
    for (std::int32_t i = 1; i <= 2; ++i) {
        const Row row = t.main.lvwOut.Item(i);
        EXPECT_EQ(modCalcOut::MakeSortKeyOut(t.main.positions, row), row.Key());
        EXPECT_EQ(modCalcOut::MakeSortKeyIn(t.main.positions, t.main.lvwIn.Item(i)), row.Key());
        EXPECT_EQ(t.main.lvwOut.Item(TextView(row.Key())), row);
    }
}

TEST(Grouping, FollowsTheColumnsAtEachComputation) {
    TestMain t;
    AddIndividual(t.main, "@1@", {{"LastName", "Le Gall"}, {"Place", "Brest"}, {"DateMin", "1700"}});
    AddIndividual(t.main, "@2@", {{"LastName", "LE-GALL"}, {"Place", "Quimper"}, {"DateMin", "1690"}});
    AddIndividual(t.main, "@3@", {{"LastName", "Legall"}, {"Place", "Brest"}, {"DateMin", "1710"}});
    const auto list = [&](const std::vector<TextView>& keys) {
        Arrange(t.main.lvwOut, keys);
        t.main.cmdCalcOutput.Click();
        return ListOf(t.main);
    };
    EXPECT_EQ(list({"LastName", "Place"}),
              (Texts{"Le Gall|Brest|     1", "LE-GALL|Quimper|     1", "Legall|Brest|     1"}));
    EXPECT_EQ(list({"DateMin", "LastName"}), (Texts{"1690|Le Gall|     2", "1710|Legall|     1"}));
    EXPECT_EQ(ColumnOf(t.main.lvwOut, "Place"), (Texts{"", ""}));
    EXPECT_EQ(list({"ID"}), (Texts{"@1@|     1", "@2@|     1", "@3@|     1"}));
    EXPECT_EQ(list({"DateMin"}), (Texts{"1690|     3"}));
    EXPECT_EQ(list({}), (Texts{"     3"}));
    EXPECT_EQ(t.main.lvwOut.Item(1).Key(), "");
    EXPECT_EQ(t.main.lvwOut.Item(1).Text(), "");
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

TEST(Grouping, WidthsOfTheList) {
    TestMain t;
    AddIndividual(t.main, "@1@",
                  {{"LastName", "Montmorency"}, {"FirstName", "Anne"}, {"Place", "Chantilly"}});
    t.main.cmdCalcOutput.Click();
    EXPECT_EQ(t.main.lMaxLenOut[Out::LastName], 11);
    t.main.lvwIn.Clear();
    AddIndividual(t.main, "@1@", {{"LastName", "Ney"}, {"FirstName", "Michel"}, {"BirthMin", "1769"}});
    Arrange(t.main.lvwOut, {"LastName", "DateMin"});
    t.main.cmdCalcOutput.Click();
    Text widths;
    for (const Column& column : t.main.lvwOut.Columns()) {
        widths += Concat({Decimal(t.main.lMaxLenOut[column.Index]), " "});
    }
    // Columns behind `Number` count too, and years have their four digits whatever they hold.
    EXPECT_EQ(widths, "3 3 6 0 4 4 6 0 4 4 0 4 4 0 4 4 0 0 ");
}

TEST(Grouping, WithoutIndividualsTheListStays) {
    TestMain t;
    AddIndividual(t.main, "@1@", {{"LastName", "Ney"}});
    t.main.cmdCalcOutput.Click();
    t.main.lvwOut.Item(1).SetSelected(true);
    t.main.lvwIn.Clear();
    t.main.bWaitCursor = true;
    t.main.cmdCalcOutput.Click();
    ASSERT_EQ(t.main.lvwOut.Count(), 1);
    EXPECT_TRUE(t.main.lvwOut.Item(1).Selected());
    EXPECT_FALSE(t.main.bWaitCursor);
}

TEST(Grouping, AYearThatIsNoNumberIsReported) {
    TestMain t;
    Arrange(t.main.lvwOut, {"LastName"});
    AddIndividual(t.main, "@1@", {{"LastName", "A"}});
    AddIndividual(t.main, "@2@", {{"LastName", "B"}, {"DeathMax", "1800?"}});
    AddIndividual(t.main, "@3@", {{"LastName", "C"}});
    t.main.cmdCalcOutput.Click();
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(t.dialogs.boxes[0].title.ends_with(" - Erreur \"CalcOuptut"));
    EXPECT_EQ(ListOf(t.main), (Texts{"A|     1"}));
    EXPECT_EQ(t.main.pnlMessage.Get(), "Comptage...");
    EXPECT_FALSE(t.main.bWaitCursor);
}

/// What the groups should be, told in another way: a map from key to group.
class LiteralGrouping {
  public:
    explicit LiteralGrouping(std::vector<TextView> keys) : keys_(std::move(keys)) {}

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
            const auto [shown, isNew] = group.shown.try_emplace(key, value);
            if (isNew || !IsYear(key) || value.empty()) continue;
            const bool replaces =
                shown->second.empty() || (key.ends_with("Min") ? std::stoi(value) < std::stoi(shown->second)
                                                               : std::stoi(value) > std::stoi(shown->second));
            if (replaces) shown->second = value;
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
    static bool IsYear(TextView key) { return key.ends_with("Min") || key.ends_with("Max"); }
    static Text Folded(TextView text) {
        const std::map<char, char> plain = {{"é"_t[0], 'E'}, {"Ô"_t[0], 'O'}, {"ç"_t[0], 'C'},
                                            {"ß"_t[0], 'S'}, {'a', 'A'},      {'A', 'A'},
                                            {'9', '9'}};
        Text folded;
        for (const char c : text) {
            const auto found = plain.find(c);
            if (c >= '0' && c <= '9') {
                folded += c;
            } else if (found != plain.end()) {
                folded += found->second;
            } else if (!folded.empty() && folded.back() != ' ') {
                folded += ' ';
            }
        }
        if (!folded.empty() && folded.back() == ' ') folded.pop_back();
        return folded;
    }
    std::vector<TextView> keys_;
    std::map<Text, Group> groups_;
};

TEST(Grouping, IsTheGroupingOfAPlainMap) {
    std::mt19937 random(1791);
    const auto below = [&](int limit) { return std::uniform_int_distribution<>(0, limit - 1)(random); };
    const TextView letters = "aA9éÔçß -'œ&"_t;
    for (int pass = 0; pass < 40; ++pass) {
        TestMain t;
        const int people = 1 + below(120);
        for (int i = 0; i < people; ++i) {
            Row row = AddIndividual(t.main, Concat({"@", Decimal(i), "@"}), {});
            for (const Column& column : t.main.lvwIn.Columns()) {
                if (column.Index == In::ID) continue;
                Text cell;
                if (column.Key.ends_with("Min") || column.Key.ends_with("Max")) {
                    if (below(3) > 0) cell = Decimal(below(2000));
                } else {
                    for (int length = below(4); length > 0; --length) {
                        cell += letters[static_cast<std::size_t>(below(static_cast<int>(letters.size())))];
                    }
                }
                row.SetCell(column.Index, cell);
            }
        }
        Texts before = RowsOf(t.main.lvwIn);
        std::vector<TextView> keys;
        for (const Column& column : t.main.lvwIn.Columns()) {
            if (column.Index != In::ID || pass % 10 == 0) keys.push_back(column.Key);
        }
        std::shuffle(keys.begin(), keys.end(), random);
        keys.resize(static_cast<std::size_t>(below(7)));
        Arrange(t.main.lvwOut, keys);
        t.main.cmdCalcOutput.Click();

        // Which spelling comes first is up to the sort, so the map is filled in the order that it made.
        LiteralGrouping expected(keys);
        for (std::int32_t i = 1; i <= t.main.lvwIn.Count(); ++i)
            expected.Add(t.main.lvwIn, t.main.lvwIn.Item(i));
        EXPECT_EQ(ListOf(t.main), expected.Rows()) << "pass " << pass;
        Texts after = RowsOf(t.main.lvwIn);
        std::sort(before.begin(), before.end());
        std::sort(after.begin(), after.end());
        EXPECT_EQ(before, after) << "pass " << pass;
        ASSERT_TRUE(t.dialogs.boxes.empty());
    }
}

}  // namespace
}  // namespace swiftroll::test
