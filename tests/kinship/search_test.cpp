// The search as a whole: from the tables of a file to the paths in lvwKinship.
#include <random>

#include "gedcom/links.h"
#include "kinship/kinship_fixture.h"
#include "support/plain_kinship.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;

TEST(KinshipSearch, FoldsStepsThatOnlyCrossACouple) {
    AfterRead t({"Man m", "Woman f", "Son m", "Girl f", "Gran f", "Kid"},
                {"Man Woman Son Girl", "- Gran Woman", "Son - Kid"});
    // A child and its parent's spouse.
    t.Find("Son", "Woman");
    EXPECT_EQ(t.Paths(), Rows({"000001 Son Fils Woman (000, 0002)"}));
    // A spouse and the other's child.
    t.Find("Woman", "Son");
    EXPECT_EQ(t.Paths(), Rows({"000001 Woman Mère Son (000, 0002)"_t}));
    t.Find("Kid", "Gran");
    EXPECT_EQ(t.Paths(), Rows({"000001 Kid Enfant Son Fils Woman Fille Gran (000, 0004)"}));
    t.Find("Gran", "Girl");
    EXPECT_EQ(t.Paths(), Rows({"000001 Gran Mère Woman Mère Girl (000, 0003)"_t}));
    // Links of two families are two steps.
    t.Find("Man", "Gran");
    EXPECT_EQ(t.Paths(), Rows({"000001 Man Epoux Woman Fille Gran (001, 0003)"}));
    EXPECT_EQ(t.main.pnlMessage.Get(), "1 liens de parenté trouvé(s) au total."_t);
    EXPECT_EQ(RowsOf(t.main.lvwKinship),
              Rows({"000001-000001|@Man@|de Man, Man|Epoux|@F1@|de Man, Man x de Woman, Woman|001|0003",
                    "000001-000002|@Woman@|de Woman, Woman|Fille|@F2@| x de Gran, Gran|001|0003",
                    "000001-000003|@Gran@|de Gran, Gran||||001|0003", "000001-999999||||||001|0003"}));
    EXPECT_EQ(t.main.lvwKinship.Item(2).Key(), "000001-000002");
    EXPECT_EQ(t.main.lvwKinship.Item("000001-000003").Index(), 3);
}

/// Two brothers married two sisters: every way between two cousins passes by one side or by the other.
AfterRead DoubleCousins() {
    return AfterRead({"Gf1 m", "Gm1 f", "Gf2 m", "Gm2 f", "B1 m", "B2 m", "S1 f", "S2 f", "X m", "Y f"},
                     {"Gf1 Gm1 B1 B2", "Gf2 Gm2 S1 S2", "B1 S1 X", "B2 S2 Y"});
}

TEST(KinshipSearch, OrdersByMarriagesThenByLengthThenByFinding) {
    AfterRead t = DoubleCousins();
    t.Find("X", "Y");
    EXPECT_EQ(t.Paths(), Rows({"000001 X Fils B1 Fils Gf1 Père B2 Père Y (000, 0005)"_t,
                               "000002 X Fils S1 Fille Gf2 Père S2 Mère Y (000, 0005)"_t}));
    EXPECT_TRUE(t.main.lvwKinship.Sorted());
    EXPECT_EQ(t.main.lvwKinship.SortKey(), Kinship::NrSpouses);
    EXPECT_FALSE(t.main.lvwXref.Sorted());
    EXPECT_EQ(t.main.SSTab1, Tab::Kinship);
    t.Find("B1", "S2");
    EXPECT_EQ(t.Paths(), Rows({"000001 B1 Fils Gf1 Père B2 Epoux S2 (001, 0004)"_t,
                               "000002 B1 Epoux S1 Fille Gf2 Père S2 (001, 0004)"_t}));
}

TEST(KinshipSearch, RemovedLinksStayInTheirTableWithoutTheirTarget) {
    AfterRead t = DoubleCousins();
    t.Find("X", "Y");
    // The grandmothers lead nowhere but to their husbands, and whoever has come down to B2 has passed Gf1.
    EXPECT_EQ(t.main.kinshipSearch.lRemovedPaths, 3);
    EXPECT_EQ(t.main.lvwXref1.Count(), t.main.lvwXref.Count());
    Texts removed;
    for (std::int32_t i = 1; i <= t.main.lvwXref1.Count(); ++i) {
        const Row link = t.main.lvwXref1.Item(i);
        if (link.Cell(Xref1::Indi2).empty()) removed.push_back(link.Key());
    }
    EXPECT_EQ(removed, Rows({"@B2@@S2@", "@Gf1@@Gm1@", "@Gf2@@Gm2@"}));
    EXPECT_EQ(t.main.lvwXref1.Item("@X@@B1@").Cell(Xref1::IDFamily), "@F3@");
}

TEST(KinshipSearch, LimitsHidePathsButCountThem) {
    AfterRead t = DoubleCousins();
    const auto find = [&](const CheckBox* check, TextBox* limit, TextView value) {
        for (CheckBox* box : {&t.main.chkMaxLinks, &t.main.chkMaxSpouses}) box->SetChecked(box == check);
        limit->SetText(value);
        t.Find("S1", "Y");
        return t.Paths();
    };
    const TextView crossing = "000002 S1 Epouse B1 Fils Gf1 Père B2 Père Y (001, 0005)"_t,
                   straight = "000001 S1 Fille Gf2 Père S2 Mère Y (000, 0004)"_t;
    EXPECT_EQ(find(nullptr, &t.main.txtMaxLinks, "1"), Rows({straight, crossing}));
    EXPECT_EQ(find(&t.main.chkMaxLinks, &t.main.txtMaxLinks, "4"), Rows({straight}));
    EXPECT_EQ(t.main.pnlMessage.Get(), "2 liens de parenté trouvé(s) au total => 1 non affiché(s)."_t);
    EXPECT_EQ(find(&t.main.chkMaxLinks, &t.main.txtMaxLinks, "3"), Rows({}));
    EXPECT_EQ(find(&t.main.chkMaxSpouses, &t.main.txtMaxSpouses, ""), Rows({straight}));
    EXPECT_EQ(find(&t.main.chkMaxSpouses, &t.main.txtMaxSpouses, "1"), Rows({straight, crossing}));
    EXPECT_EQ(t.main.lMaxLenKinship[Kinship::SeqNr], 13);
}

TEST(KinshipSearch, TellsWhatItDoesInTheOrderOfTheSteps) {
    AfterRead t = DoubleCousins();
    Texts seen;
    t.events.onYield = [&] {
        if (seen.empty() || seen.back() != t.main.pnlMessage.Get()) seen.push_back(t.main.pnlMessage.Get());
    };
    t.Find("X", "Y");
    EXPECT_EQ(seen, Rows({"Simplification de l'arbre... : 0 éliminés / 20"_t, "Chemins enlevés = 3"_t,
                          "1 lien(s) de parenté trouvé(s). Suite de la recherche..."_t}));
    EXPECT_EQ(t.main.kinshipSearch.lNrCalls, 10) << "B1 was entered once for both ways";
    EXPECT_EQ(t.main.lvwKinship.Tip,
              WithCrLf("Liens de parenté de\n    @X@ : X, DE X\nvers\n    @Y@ : Y, DE Y"_t));
    EXPECT_EQ(t.main.kinshipSearch.sKinshipTitle, "Liens de Parenté entre [X, DE X] et [Y, DE Y]"_t);
}

/// A ladder of couples: the children of each marry the children of the next, so that paths are many.
Text LadderFile(int rungs) {
    Texts people, families;
    const auto couple = [](int i) { return Concat({"M", Decimal(i), " W", Decimal(i)}); };
    for (int i = 0; i <= rungs; ++i) {
        people.push_back("M" + Decimal(i) + " m");
        people.push_back("W" + Decimal(i) + " f");
        families.push_back(i < rungs ? couple(i) + " " + couple(i + 1) : couple(i));
    }
    return FamilyFile(people, families);
}

/// Every path stands whole: all its rows and its separator.
void ExpectWholePaths(AfterRead& t, std::int64_t paths) {
    EXPECT_EQ(static_cast<std::int64_t>(t.Paths().size()), paths);
    EXPECT_EQ(t.main.kinshipSearch.lNrLinks, paths);
    for (std::int32_t i = 1; i <= t.main.lvwKinship.Count(); ++i) {
        const Row row = t.main.lvwKinship.Item(i);
        const std::int32_t length = ToLong(row.Cell(Kinship::NrLink));
        const TextView line = row.Text().substr(row.Text().find('-') + 1);
        if (line == "999999") continue;
        EXPECT_EQ(row.Cell(Kinship::Type).empty(), ToLong(line) == length) << row.Text();
        EXPECT_TRUE(t.main.lvwKinship.Find(Concat({row.Text().substr(0, 7), Decimal(length, 6)})));
    }
}

TEST(KinshipSearch, EscapeKeepsWholePathsAndSortsThem) {
    AfterRead t(LadderFile(12));
    t.events.onYield = [&] {
        if (t.main.kinshipSearch.IsRunning() && t.main.kinshipSearch.lNrLinks == 5) t.main.RequestAbort();
    };
    t.Find("M0", "W12");
    ExpectWholePaths(t, 5);
    EXPECT_TRUE(t.main.lvwKinship.Sorted());
    EXPECT_TRUE(t.main.bAbort);
    EXPECT_EQ(t.main.pnlMessage.Get(), "5 liens de parenté trouvé(s) au total."_t);
    // A pending request from before is forgotten.
    t.events.onYield = nullptr;
    t.Find("M0", "M1");
    EXPECT_FALSE(t.main.bAbort);
}

TEST(KinshipSearch, EscapeDuringTheCopyKeepsTheEarlierResult) {
    AfterRead t(LadderFile(300));
    t.Find("M0", "M1");
    const Texts before = t.Paths();
    ASSERT_FALSE(before.empty());
    t.events.onYield = [&] { t.main.RequestAbort(); };
    t.Find("M5", "W5");
    EXPECT_EQ(t.Paths(), before);
    EXPECT_LT(t.main.lvwXref1.Count(), t.main.lvwXref.Count());
    EXPECT_TRUE(t.main.lvwXref.Sorted());
    EXPECT_TRUE(t.main.cmdDrawKinship.Enabled);
    EXPECT_TRUE(t.main.cmdPrintKinship.Enabled) << "for the paths that are still there";
}

TEST(KinshipSearch, AnotherRequestIsRefusedWhileOneRuns) {
    AfterRead t(LadderFile(4));
    int refusals = 0;
    t.events.onYield = [&] {
        if (t.main.kinshipSearch.lNrLinks != 2 || refusals > 0) return;
        t.main.lvwIn.Item(1).SetSelected(true);
        t.main.cmdFindPath.Click();
        refusals += t.main.pnlMessage.Get() == "Une recherche de parenté est déjà en cours."_t ? 1 : 0;
    };
    t.Find("M0", "W4");
    EXPECT_EQ(refusals, 1);
    EXPECT_TRUE(t.dialogs.boxes.size() == 1u) << "that of the read";
    const std::int64_t found = t.main.kinshipSearch.lNrLinks;
    ExpectWholePaths(t, found);
    t.events.onYield = nullptr;
    t.Find("M0", "W4");
    EXPECT_EQ(t.main.kinshipSearch.lNrLinks, found);
}

TEST(KinshipSearch, StopsBeforeTheMemoryIsFull) {
    AfterRead t(LadderFile(12));
    t.machine.memory = 300'000;
    t.Find("M0", "W12");
    const std::int32_t limit = modKinship::RowLimit(300'000, t.machine.available);
    EXPECT_EQ(limit, 1000);
    EXPECT_GE(t.main.lvwKinship.Count(), limit);
    EXPECT_LT(t.main.lvwKinship.Count(), limit + 40) << "the last path stands whole";
    ExpectWholePaths(t, t.main.kinshipSearch.lNrLinks);
    EXPECT_TRUE(t.main.pnlMessage.Get().ends_with(
        "au total. Recherche arrêtée : la mémoire ne suffit pas pour plus de 1000 lignes."_t))
        << t.main.pnlMessage.Get();
}

TEST(KinshipSearch, PassesOverLinksToPeopleWithoutRecord) {
    AfterRead t({"Kid m", "Dad m", "Mom f"}, {"Dad Ghost Kid", "Ghost Mom Dad", "Dad Mom"});
    t.Find("Kid", "Mom");
    EXPECT_EQ(t.Paths(), Rows({"000001 Kid Fils Dad Epoux Mom (001, 0003)"}));
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

/// The links of an island as the walk tries them, by the rows of lvwIn.
PlainLinks LinksOfTables(frmMain& main) {
    main.lvwXref.SortBy(Xref::IDIndi1, 0);
    PlainLinks links(static_cast<std::size_t>(main.lvwIn.Count()) + 1);
    for (std::int32_t i = 1; i <= main.lvwXref.Count(); ++i) {
        const Row link = main.lvwXref.Item(i);
        const auto from = main.lvwIn.Find(link.Cell(Xref::IDIndi1)),
                   to = main.lvwIn.Find(link.Cell(Xref::IDIndi2));
        if (from && to) links[static_cast<std::size_t>(from->Index())].push_back(to->Index());
    }
    return links;
}

TEST(KinshipSearch, FindsWhatTheDirectSearchFindsInRandomFamilies) {
    std::mt19937 random(7);
    for (int round = 0; round < 150; ++round) {
        const int count = 6 + static_cast<int>(random() % 14u);
        AfterRead t(TangledFile(count, random));
        PlainLinks links = LinksOfTables(t.main);
        const auto to = static_cast<std::int32_t>(2 + random() % static_cast<unsigned>(count - 1));
        if (t.main.lvwIn.Item(1).Cell(In::IslandNr) != t.main.lvwIn.Item(to).Cell(In::IslandNr)) continue;
        const std::size_t removed = PlainRemoveIslands(links, 1, to, [] { return true; }).size();
        std::int64_t paths = 0;
        PlainWalk(
            links, 1, to, [&](const auto&) { return ++paths < 300; }, [] { return true; });
        t.events.onYield = [&] {
            if (t.main.kinshipSearch.lNrLinks >= 300) t.main.RequestAbort();
        };
        t.main.kinshipRequest.FindPathBetween(Text(t.main.lvwIn.Item(1).Text()),
                                              Text(t.main.lvwIn.Item(to).Text()));
        EXPECT_EQ(t.main.kinshipSearch.lNrLinks, paths) << "round " << round;
        EXPECT_EQ(static_cast<std::size_t>(t.main.kinshipSearch.lRemovedPaths), removed) << "round " << round;
        EXPECT_EQ(t.main.trail.Reports(), 0);
    }
}

}  // namespace
}  // namespace swiftroll::test
