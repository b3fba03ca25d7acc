// The search for the nearest paths, held against the first ones of a whole search.
#include <algorithm>
#include <map>
#include <set>

#include "kinship/kinship_fixture.h"

namespace swiftroll::test {
namespace {

/// Marriages and lines, as the table tells them.
using Pair = std::pair<Text, Text>;
/// A path by its rows without the running number.
struct FoundPath {
    Pair pair;
    Text rows;
};

std::vector<FoundPath> PathsOf(Table& lvwKinship) {
    std::vector<FoundPath> paths;
    Text rows;
    for (std::int32_t i = 1; i <= lvwKinship.Count(); ++i) {
        const Row row = lvwKinship.Item(i);
        for (int section = 1; section < lvwKinship.ColumnCount(); ++section)
            rows += Concat({row.Cell(ColumnId::OfSection(section)), "|"});
        if (!row.Text().ends_with("-999999")) continue;
        paths.push_back({{Text(row.Cell(Kinship::NrSpouses)), Text(row.Cell(Kinship::NrLink))}, rows});
        rows.clear();
    }
    return paths;
}

/// Couples of a generation have children, who marry each other: a file without contradictions, in which many
/// are related in several ways.
Text ProperFile(int generations, int width, std::mt19937& random) {
    std::vector<Text> people, families;
    for (int i = 0; i < generations * width; ++i)
        people.push_back(Concat({"P", Decimal(i), i % 2 ? " f" : " m"}));
    for (int i = 0; i + width < generations * width; i += 2) {
        const int generation = i / width * width;
        // Every other family has the wife of another couple, so that many marry twice.
        const int wife =
            random() % 2 == 0
                ? i + 1
                : generation + 1 + 2 * static_cast<int>(random() % static_cast<unsigned>(width / 2));
        families.push_back(Concat({"P", Decimal(i), " P", Decimal(wife)}));
    }
    for (int child = width; child < generations * width; ++child) {
        const auto couple = static_cast<std::size_t>((child / width - 1) * width / 2) +
                            random() % static_cast<unsigned>(width / 2);
        families[couple] += Concat({" P", Decimal(child)});
    }
    return FamilyFile(people, families);
}

/// Holds a search for the nearest from the first person of a file to another against a whole search; gives
/// the number of paths of that, 0 where it is too long to compare.
std::size_t Compare(AfterRead& t, std::int32_t to, int nearest) {
    constexpr std::int64_t kTooMany = 3000;
    const auto find = [&](bool isNearest) {
        t.main.chkNearest.SetChecked(isNearest);
        t.main.kinshipRequest.FindPathBetween(Text(t.main.lvwIn.Item(1).Text()),
                                              Text(t.main.lvwIn.Item(to).Text()));
        return PathsOf(t.main.lvwKinship);
    };
    t.events.onYield = [&] {
        if (t.main.kinshipSearch.lNrLinks >= kTooMany) t.main.RequestAbort();
    };
    const auto whole = find(false);
    t.events.onYield = nullptr;
    if (t.main.bAbort) return 0;
    t.main.txtNearest.SetText(Decimal(nearest));
    const auto found = find(true);
    EXPECT_EQ(t.main.kinshipSearch.lNrHidden, 0);
    EXPECT_EQ(found.size(), std::min(whole.size(), static_cast<std::size_t>(nearest)));
    std::map<Text, Pair> left;
    for (const FoundPath& path : whole) EXPECT_TRUE(left.emplace(path.rows, path.pair).second);
    for (std::size_t i = 0; i < std::min(found.size(), whole.size()); ++i) {
        EXPECT_EQ(found[i].pair, whole[i].pair) << "path " << i;
        EXPECT_EQ(left.erase(found[i].rows), 1u) << "path " << i << ": " << found[i].rows;
    }
    for (const auto& [rows, pair] : left) EXPECT_TRUE(found.empty() || pair >= found.back().pair) << rows;
    return whole.size();
}

TEST(NearestPaths, AreTheFirstOnesOfAWholeSearch) {
    std::mt19937 random(15);
    std::size_t paths = 0;
    for (int round = 0; round < 250; ++round) {
        AfterRead t(round % 2 == 0 ? TangledFile(6 + static_cast<int>(random() % 14u), random)
                                   : ProperFile(3 + round % 3, 6, random));
        t.main.chkMaxSpouses.SetChecked(random() % 3 == 0);
        t.main.txtMaxSpouses.SetText(Decimal(static_cast<int>(random() % 4u)));
        t.main.chkMaxLinks.SetChecked(random() % 3 == 0);
        t.main.txtMaxLinks.SetText(Decimal(static_cast<int>(2 + random() % 10u)));
        const auto to =
            static_cast<std::int32_t>(2 + random() % static_cast<unsigned>(t.main.lvwIn.Count() - 1));
        if (t.main.lvwIn.Item(1).Cell(In::IslandNr) != t.main.lvwIn.Item(to).Cell(In::IslandNr)) continue;
        paths += Compare(t, to, round % 4 == 0 ? 5000 : 1 + static_cast<int>(random() % 60u));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
    EXPECT_GT(paths, 3'000u);
}

}  // namespace
}  // namespace swiftroll::test
