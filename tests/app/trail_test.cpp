#include "app/trail.h"

#include <gtest/gtest.h>

#include <new>

#include "support/test_ports.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

Text NoReport() { return {}; }

class TrailTest : public testing::Test {
  protected:
    /// Runs a procedure that fails, under the name `sProc` and with the report `report`.
    void Fail(const char* sProc, TextView report = "") {
        const auto body = [&]() -> void { throw failure; };
        trail.Guard(sProc, body, [&] { return Text(report); });
    }
    const Text& BoxText() { return testPorts.dialogs.boxes.back().text; }
    /// Expects that these procedures, innermost first, were active at the last failure.
    void ExpectCalls(TextView calls) {
        EXPECT_NE(BoxText().find(Concat({"Appellé par : "_t, calls, "\r\n\r\nParam"})), Text::npos);
    }

    const Failure failure{FailureKind::Overflow};
    test::TestPorts testPorts;
    Ports ports = testPorts.All();
    TableSet tables;
    Trail trail{
        ports, tables, {[] { return "SwiftRoll (v3.4.0)"; }, [] { return "log"; }, [] { return "start"; }}};
    Text& log = testPorts.files.contents["log"];
};

TEST_F(TrailTest, AFailureIsShownAndLogged) {
    tables.lvwFamilyXref.Add({}, "@F1@@I1@", "@F1@");
    tables.lvwXref1.Add({}, "a", "a");
    tables.lvwXref1.Add({}, "b", "b");
    const Text title = "SwiftRoll (v3.4.0) - Erreur \"ProcessGedcom";
    const Text message = Concat({"6: Dépassement de capacité (L:"_t, Decimal(failure.Line()), ")\r\n\r\n",
                                 "Appellé par : \r\n    ProcessGedcom\r\n    cmdLoad_Click\r\n\r\n"_t,
                                 "Paramètres : \r\n    |a/b|"_t});
    const Text entry =
        Concat({"\r\n--------------- (start) 14:05:09 : ", title, " : ", message, "\r\n",
                "lvwIn         = 0\r\nlvwOut        = 0\r\nlvwXref       = 0\r\nlvwXref1      = 2\r\n"
                "lvwFamily     = 0\r\nlvwFamilyXref = 1\r\nlvwKinship    = 0\r\n"});
    for (const Text& expected : {entry, entry + entry}) {
        const auto body = [&] { Fail("ProcessGedcom", "a/b"); };
        trail.Guard("cmdLoad_Click", body, NoReport);
        EXPECT_EQ(testPorts.dialogs.boxes.back().title, title);
        EXPECT_EQ(BoxText(), message);
        EXPECT_EQ(log, expected);
    }
    EXPECT_EQ(trail.Reports(), 2);
}

TEST_F(TrailTest, ReportsAreCutIntoPiecesOfFifty) {
    const std::pair<std::size_t, std::vector<std::size_t>> cases[] = {
        {0, {0}}, {50, {50}}, {51, {50, 1}}, {100, {50, 50}}};
    for (const auto& [length, pieces] : cases) {
        Fail("Proc", Text(length, 'x'));
        Text expected;
        for (const std::size_t piece : pieces) expected += "\r\n    |" + Text(piece, 'x') + "|";
        EXPECT_TRUE(BoxText().ends_with(Concat({"Paramètres : "_t, expected}))) << length;
    }
}

TEST_F(TrailTest, ALogThatCannotBeWrittenCostsNothingMore) {
    testPorts.files.readOnly.insert("log");
    Fail("Proc");
    testPorts.files.readOnly.clear();
    testPorts.files.room = 100;
    Fail("Proc");
    testPorts.files.room = 10000;
    Fail("Proc");
    EXPECT_TRUE(log.ends_with("lvwKinship    = 0\r\n"));
    EXPECT_EQ(testPorts.dialogs.boxes.size(), 3u);
}

TEST_F(TrailTest, TheStackGrowsBeyondAThousandNames) {
    Text calls;
    std::function<void(int)> descend = [&](int depth) {
        if (depth == 2100) throw failure;
        const char* const name = depth % 2 == 0 ? "Even" : "Odd";
        calls.insert(0, Concat({"\r\n    ", name}));
        const auto body = [&] { descend(depth + 1); };
        trail.Guard(name, body, NoReport);
    };
    descend(1);
    ExpectCalls(calls);
    Fail("Again");
    ExpectCalls("\r\n    Again");
}

TEST_F(TrailTest, AFailingHandlerIsReportedByTheCaller) {
    int handled = 0;
    const auto fail = [&]() -> void { throw failure; };
    const auto outer = [&] {
        trail.GuardElse("Quiet", fail, [&] { ++handled; });
        trail.GuardElse("Failing", fail,
                        [&] { throw Failure(FailureKind::FileAccess, trail.LastFailure().What()); });
        ++handled;
    };
    trail.Guard("Outer", outer, NoReport);
    EXPECT_EQ(handled, 1);
    ASSERT_EQ(testPorts.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(BoxText().starts_with("57: Erreur d'accès au fichier (Dépassement de capacité) (L:"_t));
    ExpectCalls("\r\n    Outer");
}

TEST_F(TrailTest, TheEndOfTheProgramIsNoFailure) {
    const auto inner = [] { throw ProgramEnd(); };
    const auto outer = [&] { trail.Guard("Inner", inner, NoReport); };
    EXPECT_THROW(trail.Guard("Outer", outer, NoReport), ProgramEnd);
    EXPECT_TRUE(testPorts.dialogs.boxes.empty());
    Fail("After");
    ExpectCalls("\r\n    After");
}

}  // namespace
}  // namespace swiftroll
