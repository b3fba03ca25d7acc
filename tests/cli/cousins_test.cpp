// The job "cousins", and the summary of paths.
#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Cousins : CliTest {};

TEST_F(Cousins, ListsBloodRelativesTheNearestFirst) {
    const std::string head = "ID\tLastName\tFirstName\tSex\tRelation\tCivilDegree\tCanonDegree\tAncestors\n";
    const Outcome run = Cli({"cousins", "f.ged", "@I1@", "-q"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, head + "@I3@\tDE LA COUR\tLuc\t\tenfant\t1\t1\t@I1@\n");
    EXPECT_EQ(Cli({"cousins", kExample, "@I70@", "--degre", "4", "-o", "liste.tsv"}).code, 0);
    EXPECT_NE(Bytes("liste.tsv").find("\tcousin"), std::string::npos) << Bytes("liste.tsv");
    EXPECT_EQ(Cli({"cousins", kExample, "@I70@", "--degre", "3", "-q"}).out.find("\tcousin"),
              std::string::npos);
}

TEST_F(Cousins, LeavesOutWhoLives) {
    environment = {"SOURCE_DATE_EPOCH=1700000000"};
    Put("living.ged",
        "0 @I1@ INDI\n1 NAME A /B/\n1 BIRT\n2 DATE 1900\n0 @I2@ INDI\n1 NAME Secret /B/\n1 BIRT\n2 DATE "
        "1950\n"
        "0 @I3@ INDI\n1 NAME C /B/\n1 BIRT\n2 DATE 1950\n1 DEAT\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 @F2@ FAM\n1 HUSB @I2@\n1 CHIL @I3@\n0 TRLR\n");
    const Strings words{"cousins", "living.ged", "@I1@", "-q"};
    EXPECT_NE(Cli(words).out.find("Secret"), std::string::npos);
    const std::string hidden = Cli(words + Strings{"--set", "chkPrivate=1"}).out;
    EXPECT_EQ(hidden.find("Secret"), std::string::npos);
    EXPECT_NE(hidden.find("@I3@"), std::string::npos)
        << "who is dead stays, whoever leads to him: " << hidden;
}

TEST_F(Cousins, RefusesWhatIsNobody) {
    Cli({"cousins", "f.ged", "@I9@"}).Ends(1, "@I9@");
    Cli({"cousins", "f.ged", "@I1@", "--sans-familles"}).Ends(1, "--sans-familles");
    Cli({"cousins", "f.ged"}).Ends(2, "identifiant");
    Cli({"tables", "f.ged", "-t", "lvwRelatives"}).Ends(2, "lvwRelatives");
    Cli({"cousins", "f.ged", "@I1@", "--degre", "0"}).Ends(2, "--degre");
}

TEST_F(Cousins, TheSummaryOfPathsHasNames) {
    const Outcome run = Cli({"parente", "f.ged", "@I3@", "@I2@", "-t", "lvwPaths", "-q"});
    EXPECT_EQ(run.out,
              "Path\tRelation\tSpouses\tLinks\tCivilDegree\tCanonDegree\tAncestors\tVisible\n"
              "000001\tmère\t000\t0002\t1\t1\t@I2@\tOui\n");
}

}  // namespace
}  // namespace swiftroll::test
