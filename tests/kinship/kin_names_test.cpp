// What the kin is called: from families to the rows of lvwPaths and lvwRelatives.
#include <algorithm>

#include "kinship/blood_relatives.h"
#include "kinship/kinship_fixture.h"
#include "kinship/relatives_table.h"

namespace swiftroll::test {
namespace {

/// The kin of "I". No two ways lead from one to another.
const std::vector<Text> kPeople = {
    "G6 m",   "G5 m",  "G4 m",  "G3 m",  "G3w f", "Gg m",   "Ggw f", "Gf m",  "Gm f",   "Mgf m",  "Mgm f",
    "Fa m",   "Mo f",  "St f",  "Stx m", "Stc f", "Sp m",   "I m",   "Br m",  "Si f",   "Sb",     "Hb m",
    "Hs f",   "Hk",    "Hm f",  "Fu m",  "Onc m", "Tan f",  "Ok",    "Mon m", "GOnc m", "GTan f", "AGTan f",
    "OW f",   "Cg m",  "Cgf f", "Cgk",   "CW f",  "CWf m",  "CWm f", "CWb m", "C5 m",   "P5 f",   "Cig m",
    "Cigf f", "Cigk",  "C7 m",  "C8 f",  "Q1 m",  "Q2 m",   "Q3 m",  "BW f",  "Ne m",   "Ni f",   "Nk",
    "Pn m",   "Pnf f", "Apn f", "SiH m", "Ns f",  "S m",    "D f",   "K",     "SW f",   "Dh m",   "KH",
    "KS m",   "Gs m",  "Gd f",  "Gk",    "A1 m",  "A2 f",   "A3 m",  "A4 m",  "A5 f",   "W f",    "Wf m",
    "Wm f",   "Wb m",  "Ws f",  "Wk",    "WbW f", "Wnep m", "Wgf m", "Wx m",  "Wsn m",  "Wdn f",  "Wdk",
    "HbW f",  "SWf m", "SWs f"};
const std::vector<Text> kFamilies = {"G6 - G5",
                                     "G5 - G4",
                                     "G4 - G3",
                                     "G3 G3w Gg AGTan",
                                     "Gg Ggw Gf GOnc GTan",
                                     "Gf Gm Fa Onc Tan Ok",
                                     "Mgf Mgm Mo Mon",
                                     "Fa Mo I Br Si Sb",
                                     "Fa St Hb Hs Hk",
                                     "Stx St Stc",
                                     "Sp Mo Hm",
                                     "Fa - Fu",
                                     "Onc OW Cg Cgf Cgk",
                                     "Cg CW C5",
                                     "CWf CWm CW CWb",
                                     "GOnc - P5",
                                     "- P5 Cig Cigf Cigk",
                                     "Cig - C7",
                                     "C7 - C8",
                                     "- AGTan Q1",
                                     "Q1 - Q2",
                                     "Q2 - Q3",
                                     "Br BW Ne Ni Nk",
                                     "Ne - Pn Pnf",
                                     "Pn - Apn",
                                     "SiH Si Ns",
                                     "I W S D K",
                                     "S SW Gs Gd Gk",
                                     "Dh D",
                                     "KS K KH",
                                     "Gs - A1",
                                     "A1 - A2",
                                     "- A2 A3",
                                     "A3 - A4",
                                     "A4 - A5",
                                     "Wf Wm W Wb Ws Wk",
                                     "Wb WbW Wnep",
                                     "Wgf - Wf",
                                     "Wx W Wsn Wdn Wdk",
                                     "Hb HbW",
                                     "SWf - SW SWs"};

struct Relation {
    const char* to;
    TextView name;
    int civil = 0, canonical = 0;  // 0 for relatives by marriage
    const char* from = "I";
};
const Relation kRelations[] = {
    {"Fa", "père"_t, 1, 1},
    {"Mo", "mère"_t, 1, 1},
    {"Gf", "grand-père"_t, 2, 2},
    {"Mgm", "grand-mère"_t, 2, 2},
    {"Gg", "arrière-grand-père"_t, 3, 3},
    {"Ggw", "arrière-grand-mère"_t, 3, 3},
    {"G3w", "arrière-arrière-grand-mère"_t, 4, 4},
    {"G5", "arrière-arrière-arrière-arrière-grand-père"_t, 6, 6},
    {"G6", "ancêtre au 7e degré"_t, 7, 7},
    {"S", "fils", 1, 1},
    {"D", "fille", 1, 1},
    {"K", "enfant", 1, 1},
    {"Gs", "petit-fils", 2, 2},
    {"Gd", "petite-fille", 2, 2},
    {"Gk", "petit-enfant", 2, 2},
    {"KH", "petit-enfant", 2, 2},
    {"A1", "arrière-petit-fils"_t, 3, 3},
    {"A2", "arrière-arrière-petite-fille"_t, 4, 4},
    {"A4", "arrière-arrière-arrière-arrière-petit-fils"_t, 6, 6},
    {"A5", "descendante au 7e degré"_t, 7, 7},
    {"Br", "frère"_t, 2, 1},
    {"Si", "sœur"_t, 2, 1},
    {"Sb", "frère ou sœur"_t, 2, 1},
    {"Hb", "demi-frère"_t, 2, 1},
    {"Hs", "demi-sœur"_t, 2, 1},
    {"Hk", "demi-frère ou demi-sœur"_t, 2, 1},
    {"Hm", "demi-sœur"_t, 2, 1},
    {"Fu", "frère"_t, 2, 1},  // his mother is not known
    {"Onc", "oncle", 3, 2},
    {"Tan", "tante", 3, 2},
    {"Ok", "oncle ou tante", 3, 2},
    {"Mon", "oncle", 3, 2},
    {"GOnc", "grand-oncle", 4, 3},
    {"GTan", "grand-tante", 4, 3},
    {"AGTan", "arrière-grand-tante"_t, 5, 4},
    {"Ne", "neveu", 3, 2},
    {"Ni", "nièce"_t, 3, 2},
    {"Nk", "neveu ou nièce"_t, 3, 2},
    {"Ns", "nièce"_t, 3, 2},
    {"Pn", "petit-neveu", 4, 3},
    {"Pnf", "petite-nièce"_t, 4, 3},
    {"Apn", "arrière-petite-nièce"_t, 5, 4},
    {"Cg", "cousin germain", 4, 2},
    {"Cgf", "cousine germaine", 4, 2},
    {"Cgk", "cousin germain ou cousine germaine", 4, 2},
    {"C5", "cousin au 5e degré"_t, 5, 3},
    {"P5", "cousine au 5e degré"_t, 5, 3},
    {"Cig", "cousin issu de germain", 6, 3},
    {"Cigf", "cousine issue de germain", 6, 3},
    {"C7", "cousin au 7e degré"_t, 7, 4},
    {"C8", "cousine au 8e degré"_t, 8, 5},
    {"Q1", "cousin au 6e degré"_t, 6, 4},
    {"Q3", "cousin au 8e degré"_t, 8, 4},
    {"Cigk", "cousin ou cousine au 9e degré"_t, 9, 6, "A1"},
    {"I", "ancêtre au 7e degré"_t, 7, 7, "A5"},
    {"S", "arrière-arrière-petit-neveu"_t, 6, 5, "AGTan"},
    // By marriage.
    {"W", "épouse"_t},
    {"I", "époux"_t, 0, 0, "W"},
    {"St", "belle-mère"_t},
    {"Sp", "beau-père"_t},
    {"Wf", "beau-père"_t},
    {"Wm", "belle-mère"_t},
    {"Wb", "beau-frère"_t},
    {"Ws", "belle-sœur"_t},
    {"Wk", "beau-frère ou belle-sœur"_t},
    {"BW", "belle-sœur"_t},
    {"SiH", "beau-frère"_t},
    {"SW", "bru"},
    {"Dh", "gendre"},
    {"Wsn", "beau-fils"},
    {"Wdn", "belle-fille"},
    {"Wdk", "beau-fils ou belle-fille"},
    {"CW", "épouse du cousin germain"_t},
    {"OW", "épouse de l'oncle"_t},
    {"HbW", "épouse du demi-frère"_t},
    {"Wgf", "grand-père de l'épouse"_t},
    {"Wnep", "neveu de l'épouse"_t},
    {"SWf", "père de la bru"_t},
    {"SWs", "sœur de la bru"_t},
    {"WbW", "épouse du beau-frère"_t},
    {"CWb", "frère de l'épouse du cousin germain"_t},
    {"CWm", "mère de l'épouse du cousin germain"_t},
    {"Stx", "époux de la belle-mère"_t},
    {"Stc", "fille de la belle-mère"_t},
    {"Wx", "époux de l'épouse"_t},
    {"Hm", "fille de la belle-mère"_t, 0, 0, "Hb"},
    {"SiH", "époux de la tante"_t, 0, 0, "Ne"},
    {"SW", "épouse du neveu"_t, 0, 0, "Br"},
    {"CW", "épouse du neveu"_t, 0, 0, "Tan"},
    {"KS", "époux du neveu ou de la nièce"_t, 0, 0, "Br"},
    {"HbW", "épouse du demi-frère de l'époux"_t, 0, 0, "W"},
};

struct NamedPath {
    Text name, back, civil, canonical, ancestors;
};

NamedPath FirstPath(AfterRead& t, TextView from, TextView to) {
    t.Find(from, to);
    t.main.lvwPaths.NeedAll();
    const Row row = t.main.lvwPaths.Item(1);
    return {Text(row.Cell(Paths::Relation)), t.main.kinshipSearch.pathNames.NameBackwards(row),
            Text(row.Cell(Paths::CivilDegree)), Text(row.Cell(Paths::CanonDegree)),
            Text(row.Cell(Paths::Ancestors))};
}

Text DegreeText(int degree) { return degree == 0 ? Text() : Decimal(degree); }

TEST(KinNames, AreThoseOfBothWays) {
    AfterRead t(kPeople, kFamilies);
    for (const Relation& expected : kRelations) {
        const Text pair = Concat({expected.from, " -> ", expected.to});
        const NamedPath path = FirstPath(t, expected.from, expected.to);
        EXPECT_EQ(path.name, expected.name) << pair;
        EXPECT_EQ(path.civil, DegreeText(expected.civil)) << pair;
        EXPECT_EQ(path.canonical, DegreeText(expected.canonical)) << pair;
        const NamedPath back = FirstPath(t, expected.to, expected.from);
        EXPECT_EQ(path.back, back.name) << pair;
        EXPECT_EQ(path.ancestors, back.ancestors) << pair;
    }
    EXPECT_GE(std::size(kRelations), 80U);
}

TEST(KinNames, OfRelativesAreThoseOfTheirPaths) {
    AfterRead t(kPeople, kFamilies);
    constexpr int kDegree = 7;
    modKinship::ListRelatives(t.main, t.main.lvwIn.Item("@I@").Index(), kDegree, modPrivacy::Living(t.main));
    int relatives = 0;
    for (const Text& person : kPeople) {
        const Text name(Split(person, " ").front()), id = Concat({"@", name, "@"});
        if (name == "I") continue;
        const NamedPath path = FirstPath(t, "I", name);
        const auto row = t.main.lvwRelatives.Find(id);
        const bool isRelative = !path.civil.empty() && ToLong(path.civil) <= kDegree;
        ASSERT_EQ(row.has_value(), isRelative) << name;
        if (!row) continue;
        ++relatives;
        EXPECT_EQ(row->Cell(Relatives::Relation), path.name) << name;
        EXPECT_EQ(row->Cell(Relatives::CivilDegree), path.civil) << name;
        EXPECT_EQ(row->Cell(Relatives::CanonDegree), path.canonical) << name;
        EXPECT_EQ(row->Cell(Relatives::Ancestors), path.ancestors) << name;
    }
    EXPECT_EQ(t.main.lvwRelatives.Count(), relatives);
    for (std::int32_t i = 2; i <= t.main.lvwRelatives.Count(); ++i) {
        EXPECT_LE(t.main.lvwRelatives.Item(i - 1).Cell(Relatives::CivilDegree),
                  t.main.lvwRelatives.Item(i).Cell(Relatives::CivilDegree));
    }
}

/// Somebody's great-grandfather is his uncle too, and is told as that, but his mother is an ancestor still.
TEST(KinNames, OfRelativesAreTheNearest) {
    enum : std::int32_t { Self, Father, Mother, Grandfather, Grandmother, Uncle, UnclesMother };
    const auto none = modKinship::kNobody;
    const modKinship::Parentage parentage(
        7,
        {{Father, Mother},
         {Grandfather, none},
         {none, Grandmother},
         {Uncle, none},
         {Grandfather, UnclesMother}},
        {{0, Self}, {1, Father}, {2, Mother}, {3, Grandmother}, {4, Uncle}});
    std::vector<Text> relatives;
    for (const auto& relative : modKinship::FindBloodRelatives(parentage, Self, 10)) {
        Text text = Concat({Decimal(relative.individual), " ", Decimal(relative.line.up), "+",
                            Decimal(relative.line.down), ":"});
        for (const std::int32_t ancestor : relative.ancestors) text += " " + Decimal(ancestor);
        relatives.push_back(text);
    }
    EXPECT_EQ(relatives, Rows({"1 1+0: 1", "2 1+0: 2", "3 2+0: 3", "4 2+0: 4", "5 2+1: 3", "6 4+0: 6"}));
}

TEST(KinNames, TakeACoupleWithTwoFamiliesForOne) {
    // The link of the marriage is that of the second family.
    AfterRead t({"Man m", "Woman f", "Gran f", "Son m", "Girl f"},
                {"Man Woman Son", "Man Woman Girl", "- Gran Woman"});
    EXPECT_EQ(FirstPath(t, "Son", "Woman").name, "mère"_t);
    EXPECT_EQ(FirstPath(t, "Woman", "Son").name, "fils");
    EXPECT_EQ(FirstPath(t, "Gran", "Son").name, "petit-fils");
    const NamedPath siblings = FirstPath(t, "Son", "Girl");
    EXPECT_EQ(siblings.name, "sœur"_t);
    EXPECT_EQ(siblings.ancestors, "@Man@ @Woman@");
}

TEST(KinNames, OfHiddenPathsAreEmpty) {
    // Two brothers married two sisters.
    AfterRead t({"Gf m", "Hf m", "B1 m", "B2 m", "S1 f", "S2 f", "X m", "Y f"},
                {"Gf - B1 B2", "Hf - S1 S2", "B1 S1 X", "B2 S2 Y"});
    t.main.chkMaxSpouses.SetChecked(true);
    t.main.txtMaxSpouses.SetText("0");
    t.Find("B1", "Y");
    t.main.lvwPaths.NeedAll();
    EXPECT_EQ(RowsOf(t.main.lvwPaths),
              Rows({"000001|nièce|000|0004|3|2|@Gf@|Oui"_t, "000002||001|0005||||Non"}));
    t.Read("0 HEAD\r\n0 TRLR\r\n");
    EXPECT_EQ(t.main.lvwPaths.Count(), 0);
}

}  // namespace
}  // namespace swiftroll::test
