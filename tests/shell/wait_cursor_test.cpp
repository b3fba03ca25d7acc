// The wait cursor while commands run within commands.
#include "gtest/gtest.h"
#include "support/test_ports.h"

namespace swiftroll::test {
namespace {

constexpr TextView kCouple =
    "0 HEAD\n0 @I1@ INDI\n1 NAME Paul /A/\n0 @I2@ INDI\n1 NAME Marie /B/\n0 @F1@ FAM\n1 HUSB @I1@\n"
    "1 WIFE @I2@\n0 TRLR\n";

TEST(WaitCursor, OutlastsTheCommandsWithinACommand) {
    TestMain t;
    const std::pair<const char*, std::function<void()>> commands[] = {
        {"list", [&] { t.main.cmdCalcOutput.Click(); }},
        {"marks", [&] { t.main.selection.Add_Remove_Selection(true, "I"); }},
        {"kinship", [&] { t.main.kinshipRequest.FindPathBetween("@I1@", "@I2@"); }},
        {"drawing", [&] { t.main.cmdPrintKinship.Operation(); }},
    };
    for (const auto& [name, command] : commands) {
        int nested = 0;
        t.events.onYield = [&, command = &command, name = name] {
            if (++nested != 5) return;  // the first individual is there
            (*command)();
            EXPECT_TRUE(t.main.bWaitCursor) << name;
        };
        t.Read(WithCrLf(kCouple));
        EXPECT_GE(nested, 5) << name;
        EXPECT_FALSE(t.main.bWaitCursor) << name;
    }
}

}  // namespace
}  // namespace swiftroll::test
