// Families, their members, the links between individuals and the groups that these connect, and the marriage
// data of the spouses.
#include "gedcom/reader_fixture.h"
#include "kinship/kinship_codes.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

constexpr TextView kPeople =
    "0 @U1@ SUBM\n1 NAME Not a person\n"
    "0 @I1@ INDI\n1 NAME Paul /A/\n1 SEX M\n0 @I2@ INDI\n1 NAME Marie /B/\n1 SEX F\n"
    "0 @I3@ INDI\n1 NAME Luc /C/\n1 SEX M\n0 @I4@ INDI\n1 NAME Eve /D/\n1 SEX F\n0 @I5@ INDI\n";

/// The people, the families, the closing line.
struct AfterFamilies : AfterReading {
    explicit AfterFamilies(TextView families) : AfterReading(Concat({kPeople, families, "0 TRLR\n"})) {}
    /// Rows of a table, the names of individuals as "Paul" for "A, Paul", and "=" for "Paul x Marie".
    static std::vector<Text> Short(Table& table) {
        std::vector<Text> rows = RowsOf(table);
        for (Text& row : rows) {
            for (const TextView surname : {"A, ", "B, ", "C, ", "D, "}) row = ReplaceAll(row, surname, "");
            row = ReplaceAll(row, "Paul x Marie", "=");
        }
        return rows;
    }
    std::vector<Text> Links() { return Short(main.lvwXref); }
    std::vector<Text> Members() { return Short(main.lvwFamilyXref); }
    std::vector<Text> Families() { return Short(main.lvwFamily); }
    std::vector<Text> Marriages() { return CellsOf(main.lvwIn, {In::MarrPlace, In::MarrMin, In::MarrMax}); }
};

TEST(Families, AChildIsLinkedToTheHusbandAlone) {
    AfterFamilies t(
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n1 CHIL @I5@\n1 CHIL @I3@\n");
    EXPECT_EQ(t.Families(), Rows({"@F1@|@I1@|@I2@|||||=|Paul|Marie|"}));
    EXPECT_EQ(t.main.lMaxLenFamily[Family::Fam], 18) << "as wide as the text";
    EXPECT_EQ(t.Members(),
              Rows({"@F1@|Epoux|@I1@|M|=|Paul", "@F1@|Epouse|@I2@|F|=|Marie", "@F1@|Fils|@I3@|M|=|Luc",
                    "@F1@|Fille|@I4@|F|=|Eve", "@F1@|Enfant|@I5@||=|"}));
    EXPECT_EQ(t.Links(), Rows({"@I1@|Epoux|@I2@|Paul|Marie|@F1@|="_t, "@I1@|Père|@I3@|Paul|Luc|@F1@|="_t,
                               "@I1@|Père|@I4@|Paul|Eve|@F1@|="_t, "@I1@|Père|@I5@|Paul|, |@F1@|="_t,
                               "@I2@|Epouse|@I1@|Marie|Paul|@F1@|="_t, "@I3@|Fils|@I1@|Luc|Paul|@F1@|="_t,
                               "@I4@|Fille|@I1@|Eve|Paul|@F1@|="_t, "@I5@|Enfant|@I1@|, |Paul|@F1@|="_t}));
}

TEST(Families, WithOneSpouseOrNone) {
    AfterFamilies t(
        "0 @F1@ FAM\n1 WIFE @I2@\n1 CHIL @I4@\n0 @F2@ FAM\n1 CHIL @I5@\n0 @F3@ FAM\n1 HUSB @I1@\n"
        "0 @F4@ FAM\n1 HUSB @I5@\n1 WIFE @I2@\n");
    EXPECT_EQ(t.Families(), Rows({"@F1@||@I2@||||| x Marie||Marie|", "@F2@||||||| x |||",
                                  "@F3@|@I1@||||||Paul x |Paul||", "@F4@|@I5@|@I2@||||| x Marie||Marie|"}));
    EXPECT_EQ(t.Links(),
              Rows({"@I2@|Mère|@I4@|Marie|Eve|@F1@| x Marie"_t, "@I2@|Epouse|@I5@|Marie||@F4@| x Marie"_t,
                    "@I4@|Fille|@I2@|Eve|Marie|@F1@| x Marie"_t, "@I5@|Enfant||, ||@F2@| x "_t,
                    "@I5@|Epoux|@I2@||Marie|@F4@| x Marie"_t}));
}

TEST(Families, ReferencesToNobodyMakeNoRowOfTheirOwn) {
    AfterFamilies t(
        "0 @F1@ FAM\n1 HUSB @X9@\n1 WIFE @I2@\n1 CHIL @X8@\n1 CHIL @I4@\n1 MARR\n2 DATE 1800\n"
        "0 @F2@ FAM\n1 HUSB I1\n1 WIFE @I2\n1 CHIL\n1 CHIL @I3@\n");
    EXPECT_EQ(t.Families(), Rows({"@F1@|@X9@|@I2@|||1800|1800| x Marie||Marie|", "@F2@||||||| x |||"}));
    EXPECT_EQ(t.Members(), Rows({"@F1@|Epoux|@X9@|M| x Marie|", "@F1@|Epouse|@I2@|F| x Marie|Marie",
                                 "@F1@|Enfant|@X8@|| x Marie|", "@F1@|Fille|@I4@|F| x Marie|Eve",
                                 "@F2@|Enfant||| x |", "@F2@|Fils|@I3@|M| x |Luc"}));
    EXPECT_EQ(t.Links(),
              Rows({"@I2@|Epouse|@X9@|Marie||@F1@| x Marie"_t, "@I3@|Fils||Luc||@F2@| x "_t,
                    "@I4@|Fille|@X9@|Eve||@F1@| x Marie"_t, "@X9@|Père|@I4@||Eve|@F1@| x Marie"_t}));
    EXPECT_EQ(t.Marriages(), Rows({"||", "|1800|1800", "||", "||", "||"}));
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::IslandNr}), Rows({"0001", "0002", "0003", "0004", "0005"}));
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Families, TheRecordThatComesLaterSaysWhatAMemberIs) {
    const TextView people = "0 @I1@ INDI\n1 SEX M\n1 FAMS @F1@\n0 @I2@ INDI\n1 FAMC @F1@\n1 SEX F\n";
    const TextView family = "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n";
    AfterReading first(Concat({people, family, "0 TRLR\n"})), last(Concat({family, people, "0 TRLR\n"}));
    EXPECT_EQ(RowsOf(first.main.lvwFamilyXref), Rows({"@F1@|Epoux|@I1@|M| x |", "@F1@|Fille|@I2@|F| x |"}));
    EXPECT_EQ(RowsOf(last.main.lvwFamilyXref), Rows({"@F1@|FAMS|@I1@|M| x |", "@F1@|FAMC|@I2@|| x |"}));
    EXPECT_EQ(first.main.lvwXref.Count(), 2);
    EXPECT_EQ(last.main.lvwXref.Count(), 0);
    EXPECT_EQ(RowsOf(last.main.lvwFamily), Rows({"@F1@||||||| x |||"}));
}

TEST(Families, OnlyMentionedOrWithoutMembersOrWithoutName) {
    AfterFamilies t(
        "0 @I6@ INDI\n1 SEX M\n1 FAMS @F2@\n1 FAMS\n1 FAMC @F3@\n1 FAMS @F9@\n"
        "0 @F0@ FAM\n1 MARR\n2 DATE 1700\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 PLAC Lyon\n"
        "0 @F2@ FAM\n1 MARR\n2 DATE 1600\n0 @F3@ FAM\n0 @F4@ FAM\n1 HUSB @I3@\n1 WIFE @I4@\n0 @F5@ FAM\n");
    EXPECT_EQ(t.Families(),
              Rows({"||||||| x |||", "@F0@|||||1700|1700| x |||", "@F1@|@I1@|@I2@||Lyon|||=|Paul|Marie|",
                    "@F2@|||||1600|1600| x |||", "@F3@||||||| x |||", "@F4@|@I3@|@I4@|||||Luc x Eve|Luc|Eve|",
                    "@F5@||||||| x |||", "@F9@||||||| x |||"}));
    EXPECT_EQ(t.main.lvwFamily.Item("@F9@").Tag(), "");
    EXPECT_EQ(t.Members(),
              Rows({"|FAMS|@I6@|M| x |", "@F1@|Epoux|@I1@|M|=|Paul", "@F1@|Epouse|@I2@|F|=|Marie",
                    "@F2@|FAMS|@I6@|M| x |", "@F3@|FAMC|@I6@|M| x |", "@F4@|Epoux|@I3@|M|Luc x Eve|Luc",
                    "@F4@|Epouse|@I4@|F|Luc x Eve|Eve", "@F9@|FAMS|@I6@|M| x |"}));
    EXPECT_EQ(t.main.lvwXref.Count(), 4);
    EXPECT_EQ(t.Marriages(), Rows({"Lyon||", "Lyon||", "||", "||", "||", "||"}));
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Families, WithoutIdentifierAreOneFamily) {
    AfterReading t(
        "0 @I1@ INDI\n1 NAME /A/\n1 SEX M\n0 @I2@ INDI\n1 NAME /B/\n1 SEX F\n0 @I3@ INDI\n1 SEX M\n1 ALIA "
        "@I9@\n"
        "0 INDI\n0 INDI\n1 FAMS\n0 FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 MARR\n2 DATE 1800\n"
        "0 @F1@ FAM\n1 WIFE @I2@\n1 HUSB\n0 TRLR\n");
    EXPECT_EQ(CellsOf(t.main.lvwFamily, {Family::IDFam, Family::IDHusb, Family::IDWife, Family::MarrMin}),
              Rows({"|@I1@|@I2@|1800", "@F1@||@I2@|"}));
    EXPECT_EQ(CellsOf(t.main.lvwXref, {Xref::IDIndi1, Xref::Type, Xref::IDIndi2, Xref::IDFamily}),
              Rows({"@I1@|Epoux|@I2@|", "@I1@|Père|@I3@|"_t, "@I2@|Epouse|@I1@|", "@I3@|ALIA|@I9@|",
                    "@I3@|Fils|@I1@|", "@I9@|ALIA|@I3@|"}));
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::IslandNr}),
              Rows({"@I1@|0001", "@I2@|0001", "@I3@|0001", "|0002", "|0003"}));
    EXPECT_EQ(modKinship::GetSpouseID(t.main, t.main.trail, "@I1@", ""), "@I2@");
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Families, ReferencesInAnotherCaseAreOtherReferences) {
    AfterReading t(
        "0 @I1@ INDI\n1 SEX M\n1 ALIA @i1@\n0 @I2@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR\n");
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::IslandNr}), Rows({"0001", "0001"}));
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(Families, TheLastInTheOrderOfTextsHolds) {
    // @F10@ comes before @F2@, whatever their order in the file.
    AfterFamilies again(
        "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 DATE 1802\n"
        "0 @F10@ FAM\n1 HUSB @I1@\n1 WIFE @I4@\n1 MARR\n2 DATE 1810\n2 PLAC Lyon\n");
    EXPECT_EQ(again.Marriages(), Rows({"|1802|1802", "|1802|1802", "||", "Lyon|1810|1810", "||"}));
    AfterFamilies same(
        "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 @F10@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 DATE 1810\n");
    EXPECT_EQ(CellsOf(same.main.lvwXref, {Xref::IDIndi1, Xref::Type, Xref::IDIndi2, Xref::IDFamily}),
              Rows({"@I1@|Epoux|@I2@|@F2@", "@I2@|Epouse|@I1@|@F2@"}));
    EXPECT_EQ(same.Marriages(), Rows({"||", "||", "||", "||", "||"})) << "empty cells are written too";
}

TEST(Families, AllEventsWidenOneRangeOfYears) {
    for (const TextView c :
         {"1 MARR Y\n2 DATE BET 1800 AND 1802\n2 PLAC Lyon,\n1 DIV\n2 DATE 1810 -> Lyon|1800|1810",
          "1 DIV\n2 DATE 1810\n2 PLAC B\n1 MARC\n2 DATE 1799\n2 PLAC A -> A|1799|1810",
          "1 MARL\n2 DATE 1800\n1 MARS\n2 DATE 1801\n1 ANNU\n2 DATE 1802\n1 DIVF\n2 DATE 1803 -> |1800|1803",
          "1 MARB\n2 DATE 1790\n1 ENGA\n2 DATE 1791\n2 PLAC X\n1 marr\n2 DATE 1792 -> ||",
          "1 MARR\n2 SOUR\n3 DATE 1700\n3 PLAC X\n2 DATE 1800\n1 NOTE\n2 DATE 1900 -> |1800|1800",
          "1 MARR\n2 DATE ?\n2 PLAC A\n1 DIV\n2 PLAC -> ||",
          "2 DATE 1790\n1 MARR\n2 DATE 1800 -> |1800|1800"}) {
        const auto [events, cells] = Sides(c);
        AfterFamilies t(Concat({"0 @F1@ FAM\n1 HUSB @I1@\n", events, "\n1 WIFE @I2@\n"}));
        EXPECT_EQ(CellsOf(t.main.lvwFamily, {Family::MarrPlace, Family::MarrMin, Family::MarrMax}),
                  Rows({cells}))
            << events;
        EXPECT_EQ(t.Marriages(), Rows({cells, cells, "||", "||", "||"})) << events;
    }
}

TEST(Families, AliasesAreLinksUntilAFamilyLinksTheSamePair) {
    AfterReading t(
        "0 @I1@ INDI\n1 SEX M\n1 ALIA @I2@\n0 @I2@ INDI\n1 ALIA @I3@\n1 ALIA\n0 @I3@ INDI\n1 ALIA @X9@\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR\n");
    EXPECT_EQ(RowsOf(t.main.lvwXref),
              Rows({"@I1@|Epoux|@I2@|||@F1@| x ", "@I2@|Epouse|@I1@|||@F1@| x ", "@I2@|ALIA|@I3@||||",
                    "@I2@|ALIA|||||", "@I3@|ALIA|@I2@||||", "@I3@|ALIA|@X9@||||", "@X9@|ALIA|@I3@||||"}));
}

TEST(Islands, AreNumberedInTheOrderOfTheirFirstIndividuals) {
    AfterReading t(
        "0 @Z@ INDI\n0 @C2@ INDI\n0 @B@ INDI\n0 @H@ INDI\n0 @A@ INDI\n1 ALIA @B@\n0 @W@ INDI\n0 @C1@ INDI\n"
        "0 @S@ INDI\n1 ALIA @S@\n0 @F1@ FAM\n1 HUSB @H@\n1 WIFE @W@\n1 CHIL @C1@\n1 CHIL @C2@\n0 TRLR\n");
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::IslandNr}),
              Rows({"@Z@|0001", "@C2@|0002", "@B@|0003", "@H@|0002", "@A@|0003", "@W@|0002", "@C1@|0002",
                    "@S@|0004"}));
}

TEST(Islands, AChainOfAnyLengthIsOneIslandAndSinglePersonsAreOneEach) {
    constexpr int kChain = 50'000, kSingle = 10'001;
    Text file;
    for (int i = 1; i <= kChain + kSingle; ++i) {
        file += "0 @I" + Decimal(i) + "@ INDI\r\n";
        if (i < kChain) file += "1 ALIA @I" + Decimal(i + 1) + "@\r\n";
    }
    TestMain t;
    t.Read(file + "0 TRLR\r\n");
    EXPECT_EQ(t.main.lvwXref.Count(), 2 * (kChain - 1));
    ASSERT_EQ(t.main.lvwIn.Count(), kChain + kSingle);
    for (int i = 1; i <= kChain + kSingle; ++i)
        ASSERT_EQ(t.main.lvwIn.Item(i).Cell(In::IslandNr), Decimal(std::max(1, i + 1 - kChain), 4)) << i;
}

}  // namespace
}  // namespace swiftroll::test
