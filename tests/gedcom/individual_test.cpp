// What an INDI record writes into its row: names, events, dates and places.
#include "gedcom/reader_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

TEST(Individuals, NamesAreCutAtTheSlashes) {
    ExpectCells("1 NAME", {In::LastName, In::FirstName},
                {" -> |", " DUPONT  -> DUPONT|", " Jean / DUPONT  -> DUPONT|Jean",
                 "   Jean Paul  / DU  PONT /  Jr  -> DU  PONT|Jean Paul/Jr", " /DUPONT/ Jr -> DUPONT|/Jr",
                 " / -> |", " // -> |", " Jean /A/B/ -> /A/B/|Jean", " Jean/A/B/C /D -> A/B/C /D|Jean",
                 "   J /A/B/ -> J /A/B/|J", " /// -> //|"});
}

TEST(Individuals, InvertAndUpperHoldForOneRead) {
    TestMain t;
    const auto read = [&](bool invert, bool upper) {
        t.main.chkInvertNames.SetChecked(invert);
        t.main.chkUpperNames.SetChecked(upper);
        t.Read("0 @I1@ INDI\r\n1 NAME Élise /d'Orÿ ßœ/ fils\r\n0 TRLR\r\n"_t);
        EXPECT_FALSE(t.main.chkInvertNames.Checked() || t.main.chkUpperNames.Checked());
        return CellsOf(t.main.lvwIn, {In::LastName, In::FirstName}).at(0);
    };
    EXPECT_EQ(read(true, true), "ÉLISE/FILS|d'Orÿ ßœ"_t);
    EXPECT_EQ(read(false, false), "d'Orÿ ßœ|Élise/fils"_t);
}

TEST(Individuals, NameLinesAreCountedAndTheLastOneHolds) {
    std::vector<Text> bodies(99, "1 NAME A /B/\n1 NOTE\n");
    bodies.push_back("1 SEX M\n");
    bodies.push_back("1 NAME A /B/ C\n1 NAME D\n2 NAME E\n");
    TestMain t;
    Text shown;
    t.events.onYield = [&] { shown = t.main.pnlIndividuals.Get(); };
    t.Read(WithCrLf(Individuals(bodies)));
    EXPECT_EQ(shown + ", " + t.main.pnlIndividuals.Get(), "100 Individu(s), 101 Individu(s)");
    const auto names = CellsOf(t.main.lvwIn, {In::LastName, In::FirstName});
    ASSERT_EQ(names.size(), 101u);
    EXPECT_EQ(names[99], "|") << "names do not pass to the next record";
    EXPECT_EQ(names[100], "D|");
}

TEST(Individuals, SubLinesBelongToTheEventAboveThem) {
    ExpectCells(
        "", {In::BirthPlace, In::BirthMin, In::BirthMax, In::DeathPlace, In::DeathMin, In::DeathMax, In::Sex},
        {"1 BIRT Y\n2 DATE 1800\n2 PLAC A\n1 DEAT\n2 PLAC B\n2 DATE 1870\n1 SEX  M  -> "
         "A|1800|1800|B|1870|1870|M",
         "1 BIRT\n2 DATE 1800\n1 BURI\n2 DATE 1870\n2 PLAC B -> |1800|1800||||",
         "1 BIRT\n2 DATE 1800\n1 SEX F\n2 DATE 1870 -> |1800|1800||||F",
         "2 DATE 1800\n1 BIRT\n3 DATE 1801\n2 SOUR\n3 PLAC C\n2 PLAC A -> A||||||",
         "1 BIRT\n2 DATE 1800\n2 PLAC A\n1 BIRT\n2 DATE 1801 -> A|1801|1801||||",
         "1 DEAT\n2 DATE 1870\n2 DATE ?\n2 PLAC B\n2 PLAC -> ||||||",
         "1 birt\n2 DATE 1800\n1 SEX U\n1 SEX -> ||||||",
         "1 BIRTHDAYS\n2 DATE 1800\n1 DEATHBED1\n2 DATE 1870 -> ||||||"});
    // The extremes of all events are compared as texts; a place loses its empty end.
    ExpectCells("1 DEAT\n2 DATE 1020\n1 BIRT\n2 ", {In::DateMin, In::DateMax, In::BirthPlace},
                {"DATE 1750\n2 PLAC Lyon, Rhone,, ;  -> 1020|1750|Lyon, Rhone",
                 "DATE 0987\n2 PLAC  ,Lyon -> 1020|987| ,Lyon", "PLAC ,;,   -> 1020|1020|"});
}

TEST(Dates, EveryRunOfFourDigitsIsAYear) {
    ExpectCells(
        "1 DEAT\n2 DATE ", {In::DeathMin, In::DeathMax},
        {"12 JAN 1804 -> 1804|1804", "BET 1700 AND 1710 -> 1700|1710", "FROM 1710 TO 1700 -> 1700|1710",
         "1700/01 -> 1700|1700", "1804-1805 -> 1804|1805", "18041805 -> 1804|1804", "18041 1805 -> 1804|1805",
         "1804x1805 -> 1804|1805", "180418051806 -> 1804|8051", "ABT 999 -> |", "987 1 12 -> |",
         "0987 BC -> 987|987", "0000 -> 0|0", "17.50 -> |", "@#DFRENCH R@ 12 VEND 0003 -> 3|3",
         "(9999) -> 9999|9999", " -> |"});
}

TEST(Places, AreFormattedByMarkers) {
    const std::tuple<TextView, Text, Text, bool, TextView> cases[] = {
        {"Lyon", "%2, %1", ",", true, ", Lyon"},
        {"Lyon", "%1, %2 ,%3", ",", true, "Lyon"},
        {"Lyon", "%1, %2 ", ",", false, "Lyon,  "},
        {" A , B", "[%0][%1]", ",", true, "[ A , B][A]"},
        {"A,B", "%10 %%20 %% %", ",", true, "A0 %B0 % %"},
        {"%1,B", "%1%0", ",", true, "%1%1,B"},
        {"A,B", "%1,  ", "", true, "A,B,"},
        {"A - B", "%2 - %1 - ", " - ", false, "B - A - "},
        {"A||B", "%2/%1||", "||", true, "B/A"},
        {"A", Text(25, ','), ",", true, ",,,,,"},
        {"", "France %1", ",", true, "France"}};
    for (const auto& [place, format, separator, trim, result] : cases) {
        TestMain t;
        t.main.txtPlaceFormat.SetText(format);
        t.main.txtPlaceSepar.SetText(separator);
        t.main.chkTrimSepar.SetChecked(trim);
        t.Read(WithCrLf(Individuals({Concat({"1 BIRT\n2 PLAC ", place, "\n"})})));
        EXPECT_EQ(t.main.lvwIn.Item(1).Cell(In::Place), result) << place << " / " << format;
    }
}

TEST(Places, ComeInTheOrderThatTheUserSets) {
    AfterReading t(
        "0 @I1@ INDI\n1 BIRT\n2 PLAC B\n1 DEAT\n2 PLAC D\n0 @I2@ INDI\n1 BIRT\n2 PLAC B\n0 @I3@ INDI\n"
        "1 DEAT\n2 PLAC D\n0 @I4@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 MARR\n2 PLAC M\n0 TRLR\n");
    const auto places = [&] { return CellsOf(t.main.lvwIn, {In::Place}); };
    t.main.lbOuputPlacesOrder.Move(1, 0);
    EXPECT_EQ(places(), Rows({"B", "B", "D", ""})) << "until it is computed again";
    t.main.cmdRecalcIn.Click();
    EXPECT_EQ(places(), Rows({"D", "B", "D", ""}));
    t.main.lbOuputPlacesOrder.Move(2, 0);
    t.main.cmdRecalcIn.Click();
    EXPECT_EQ(places(), Rows({"M", "B", "D", ""}));
}

}  // namespace
}  // namespace swiftroll::test
