// The job "extrait".
#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Extrait : CliTest {};

TEST_F(Extrait, WritesTheMarkedIndividuals) {
    Cli({"extrait", "f.ged", "-o", "x.ged", "--marquer", "@I3@"})
        .Ends(0, "Extrait écrit : 1 individu(s), 1 famille(s)\n");
    const std::string child =
        kFamily.substr(kFamily.find("0 @I3@"), kFamily.find("0 @F1@") - kFamily.find("0 @I3@"));
    const std::string expected =
        "0 HEAD\r\n1 CHAR ANSI\r\n" + child + "0 @F1@ FAM\r\n1 CHIL @I3@\r\n0 TRLR\r\n";
    EXPECT_EQ(Bytes("x.ged"), expected);
    const Outcome screen = Cli({"extrait", "f.ged", "-o", "-", "-q", "--marquer", "@I3@"});
    EXPECT_EQ(screen.out, expected);
    EXPECT_EQ(screen.err, "");
    EXPECT_EQ(Cli({"extrait", "f.ged", "-o", "all.ged", "--marquer", "@I1@,@I2@,@I3@"}).code, 0);
    EXPECT_EQ(Bytes("all.ged"), kFamily);
}

TEST_F(Extrait, HidesTheLivingOfTheDayThatTheEnvironmentTells) {
    environment = {"SOURCE_DATE_EPOCH=0"};
    const std::string out =
        Cli({"extrait", "f.ged", "-o", "-", "-q", "--marquer", "@I1@,@I3@", "--set", "chkPrivate=1"}).out;
    EXPECT_EQ(CountOf("Vivant", out), 1u) << "born in 1880, not in 1850: " << out;
}

TEST_F(Extrait, IsRefusedWhereDataWouldBeLost) {
    const Outcome existing = Cli({"extrait", "f.ged", "-o", "f.ged", "-f"});
    EXPECT_EQ(existing.code, 1);
    EXPECT_EQ(Bytes("f.ged"), kFamily);
    Put("g.ged", "old");
    EXPECT_EQ(Cli({"extrait", "f.ged", "-o", "g.ged"}).code, 1);
    EXPECT_EQ(Bytes("g.ged"), "old");
    EXPECT_EQ(Cli({"extrait", "f.ged", "-o", "g.ged", "-f"}).code, 0);
    Cli({"extrait", "f.ged", "-o", "y.ged", "--sans-familles"}).Ends(1, "--sans-familles");
    EXPECT_FALSE(Exists("y.ged"));
    Cli({"extrait", "f.ged", "-o", "/dev/full", "-f", "-q"}).Ends(1, "disque est plein");
}

}  // namespace
}  // namespace swiftroll::test
