// What the message bar tells after a read.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

TEST(ReadNotice, TellsWhatTheOptionsKeptTheReadFromAndReadsIt) {
    TestMain t;
    const auto seen = [&] {
        return t.main.messageBar.Seen() == nullptr ? Text() : t.main.messageBar.Seen()->text;
    };
    t.main.chkUpperNames.SetChecked(true);
    t.Read(
        "0 @I1@ INDI\r\n1 NAME A /b/\r\n1 BIRT\r\n2 DATE @#DFRENCH R@ 3 NIVO 9\r\n1 DEAT\r\n2 DATE 987\r\n"
        "1 BURI\r\n2 PLAC X\r\n0 @I2@ INDI\r\n1 BIRT\r\n2 DATE 988\r\n0 @F1@ FAM\r\n1 MARR\r\n"
        "2 DATE @#DHEBREW@ 1 TSH 5765\r\n0 TRLR\r\n");
    EXPECT_EQ(seen(),
              "2 dates à année de moins de quatre chiffres, 1 du calendrier républicain et 1 du calendrier "
              "hébraïque "
              "n'ont pas été lues, ou l'ont été mal. 1 inhumation qui complète un décès n'a pas été lue."_t);
    t.main.cboGedIn.SetText("other.ged");
    t.main.messageBar.Press(0);
    EXPECT_TRUE(t.main.chkCalendars.Checked());
    EXPECT_EQ(seen(), "1 inhumation qui complète un décès n'a pas été lue."_t);
    t.main.messageBar.Press(0);
    EXPECT_EQ(seen(), "");
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::LastName, In::BirthMin, In::DeathPlace, In::DeathMin}),
              Rows({"B|1800|X|987", "|988||"}));
    t.Read("0 @I1@ INDI\r\n12 NOTE\r\n0 TRLR\r\n");
    EXPECT_EQ(
        seen(),
        "La lecture s'est arrêtée à la ligne 2, dont le niveau a plus d'un chiffre : la suite du fichier n'a "
        "pas été lue."_t);
    t.Read("0 @I1@ INDI\r\n1 NAME A\r\n0 TRLR\r\n");
    EXPECT_EQ(seen(), "") << "the notice of another file";
    t.main.chkCalendars.SetChecked(false);
    t.Read("0 @I1@ INDI\r\n1 BIRT\r\n2 DATE @#DFRENCH R@ 3 NIVO 9\r\n0 TRLR\r\n");
    EXPECT_EQ(seen(), "1 date du calendrier républicain n'a pas été lue."_t);
}

}  // namespace
}  // namespace swiftroll::test
