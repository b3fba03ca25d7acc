// Dates by GEDCOM's grammar, and the events that stand in for a birth or a death.
#include "gedcom/date_reading.h"
#include "gedcom/reader_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

using modReadGedcom::ReadDate;

Text YearsOf(TextView value, bool calendars) {
    const auto years = ReadDate(value, calendars).years;
    return years.AreNone() ? "-" : Concat({Decimal(years.lYearMin), "-", Decimal(years.lYearMax)});
}

TEST(Dates, CalendarsGiveTheGregorianYears) {
    const TextView cases[] = {
        // Years begin on the 22nd, 23rd or 24th of September.
        "@#DFRENCH R@ 11 NIVO 2 -> 1793-1793",
        "@#DFRENCH R@ 12 NIVO 2 -> 1794-1794",
        "@#DFRENCH R@ 9 nivo 12 -> 1803-1803",
        "@#DFRENCH R@ 10 NIVO 12 -> 1804-1804",
        "@#DFRENCH R@ 11 NIVO 14 -> 1806-1806",
        "@#DFRENCH R@ NIVO 8 -> 1799-1800",
        "@#DFRENCH R@ 8 -> 1799-1800",
        "@#DFRENCH R@ 6 COMP 7 -> 1799-1799",
        "FRENCH_R 1 VEND 12 -> 1803-1803",
        "an XII -> 1803-1804",
        "ABT l'an 3 -> 1794-1795",
        "1er vendémiaire an XII -> 1803-1803"_t,
        "(3 nivôse an VIII) -> 1799-1799"_t,
        "@#DFRENCH R@ FRIM VIII -> 1799-1799",
        "BET @#DFRENCH R@ 1 VEND 1 AND 1 BRUM 3 -> 1792-1794",
        "@#DFRENCH R@ 1 VEND 15 -> -",
        "@#DFRENCH R@ 1804 -> 1804-1804",
        "@#DFRENCH R@ 3 MAR 1804 -> 1804-1804",
        "@#DHEBREW@ 1 TSH 5765 -> 2004-2004",
        "@#DHEBREW@ 19 TVT 5765 -> 2004-2004",
        "@#DHEBREW@ 20 TVT 5765 -> 2005-2005",
        "HEBREW 22 TVT 5760 -> 1999-1999",
        "23 TVT 5760 -> 2000-2000",
        "@#DHEBREW@ TVT 5765 -> 2004-2005",
        "@#DHEBREW@ ELL 5765 -> 2005-2005",
        "@#DHEBREW@ 5765 -> 2004-2005",
        "@#DHEBREW@ 3700 -> -",
        "@#DHEBREW@ 0 -> -",
        "@#DJULIAN@ 25 DEC 1642 -> 1643-1643",
        "@#DJULIAN@ 20 DEC 1700 -> 1700-1700",
        "JULIAN 21 DEC 1700 -> 1701-1701",
        "@#DJULIAN@ DEC 1700 -> 1700-1700",
        "@#DJULIAN@ 31 DEC 9999 -> 9999-9999",
        "@#DJULIAN@ 1 JAN 1 -> -",
        "@#DGREGORIAN@ 31 DEC 1700 -> 1700-1700",
        "@#DROMAN@ 3 JAN 1700 -> 1700-1700",
        // Years of any length, dual years, and those before Christ.
        "987 -> 987-987",
        "ABT MAR 87 -> 87-87",
        "BET 850 AND 1010 -> 850-1010",
        "FROM 3 JAN 7 TO 12 -> 7-12",
        "TO 850 -> 850-850",
        "AFT 850 -> 850-850",
        "2 FEB 1699/00 -> 1699-1700",
        "1699/02 -> 1699-1699",
        "12/13 -> -",
        "45 B.C. -> -",
        "1200 BCE -> -",
        "BET 50 BC AND 20 -> 20-20",
        "INT 850 (about 900) -> 850-850",
        "INT 1804 (before 1810) -> 1804-1804",
        "(850) -> 850-850",
        // What the grammar does not cover is a run of digits.
        "12 mars 1804 -> 1804-1804",
        "1804-1805 -> 1804-1805",
        "12 mars 804 -> -",
        "32 JAN 804 -> -",
        "BET 804 -> -",
        "(vers 1804) -> 1804-1804",
        "804 (1805) -> 1805-1805",
        "12 JAN -> -",
        " -> -",
        "( -> -",
        "@#DFRENCH R -> -",
        "@#D@ -> -",
        "an 1804 -> 1804-1804",
        "0 -> -",
        "0000 -> 0-0",
    };
    for (const TextView c : cases) EXPECT_EQ(YearsOf(Sides(c).first, true), Sides(c).second) << c;
}

TEST(Dates, AReadingTellsWhyItHasNoYearAndWhetherItWouldHaveOne) {
    const std::tuple<TextView, TextView, TextView, bool> cases[] = {
        {"ABT 12 JAN 1804", "1804-1804", "", false},
        {"BET 1700 AND 1710", "1700-1710", "", false},
        {"@#DFRENCH R@ 3 NIVO 9", "-", "date du calendrier républicain"_t, true},
        {"@#DHEBREW@ 1 TSH 5765", "5765-5765", "date du calendrier hébraïque"_t, true},
        {"@#DJULIAN@ 1 MAR 1700", "1700-1700", "", false},
        {"@#DJULIAN@ 25 DEC 1642", "1642-1642", "date du calendrier julien"_t, true},
        {"987", "-", "date à année de moins de quatre chiffres"_t, true},
        {"45 B.C.", "-", "date avant notre ère"_t, false},
        {" ", "-", "date vide", false},
        {"(inconnue)", "-", "texte libre sans année"_t, false},
        {"vers Noël", "-", "aucune année n'y est reconnue"_t, false}};
    for (const auto& [value, years, reason, isMisread] : cases) {
        EXPECT_EQ(YearsOf(value, false), years) << value;
        const auto reading = ReadDate(value, false);
        EXPECT_EQ(NoYearReason(value, reading), reason) << value;
        EXPECT_EQ(reading.isMisread, isMisread) << value;
    }
    const auto fallen = ReadDate("45 B.C.", true);
    EXPECT_EQ(NoYearReason("45 B.C.", fallen), "date avant notre ère"_t);
}

/// A person with every kind of trouble: years as texts are out of order, and both ends of the life stand
/// where others stand in for them.
constexpr TextView kTroubled =
    "0 @I1@ INDI\r\n1 CREM\r\n2 PLAC C\r\n1 BAPM\r\n2 DATE 1010\r\n2 PLAC B\r\n1 CHR\r\n2 DATE 987\r\n1 "
    "BIRT\r\n"
    "2 DATE ?\r\n1 BURI\r\n2 DATE @#DFRENCH R@ 3 NIVO 9\r\n1 DEAT\r\n2 DATE 1050\r\n0 TRLR\r\n";

TEST(ReadingOptions, GiveTheirYearsAndPlaces) {
    const auto read = [](bool calendars, bool standIns) {
        TestMain t;
        t.main.chkCalendars.SetChecked(calendars);
        t.main.chkFallbackEvents.SetChecked(standIns);
        t.Read(kTroubled);
        t.main.chkCalendars.SetChecked(!calendars);  // in force from the next read
        t.main.cmdRecalcIn.Click();
        return CellsOf(t.main.lvwIn, {In::BirthPlace, In::BirthMin, In::BirthMax, In::DeathPlace,
                                      In::DeathMin, In::DateMin, In::DateMax})
            .at(0);
    };
    EXPECT_EQ(read(false, false), "||||1050|1050|1050");
    EXPECT_EQ(read(true, false), "||||1050|1050|1050");
    EXPECT_EQ(read(false, true), "B|1010|1010|C|1050|1010|1050");
    EXPECT_EQ(read(true, true), "B|987|987|C|1050|987|1050");
}

}  // namespace
}  // namespace swiftroll::test
