// The codes that a drawing is made from, and the other spouse of a family.
#include "kinship/kinship_codes.h"

#include "kinship/kinship_fixture.h"

namespace swiftroll::test {
namespace {

/// A path whose rows have these types and families, as in "Fils/F1".
struct PathOf : TestMain {
    explicit PathOf(const std::vector<TextView>& rows) {
        for (std::size_t i = 0; i <= rows.size(); ++i) {
            const Text seqNr = "000001-" + Decimal(static_cast<std::int64_t>(i + 1), 6);
            Row row = main.lvwKinship.Add(std::nullopt, seqNr, seqNr);
            if (i == rows.size()) break;
            const auto parts = Split(rows[i], "/");
            row.SetCell(Kinship::Type, parts[0]);
            if (parts.size() > 1) row.SetCell(Kinship::IDFamily, parts[1]);
        }
        main.lvwKinship.Add(std::nullopt, TextView(), "000001-999999");
    }
    Text Codes(std::int32_t lRow = 1, bool bSpouses = false) {
        const modKinship::KinshipCodes codes = modKinship::MakeKinshipCodes(main.lvwKinship, lRow, bSpouses);
        Text text;
        for (std::int32_t row = codes.lFirst; row <= codes.lLast; ++row) {
            text += Concat({row > codes.lFirst ? " " : "", codes.Of(row)});
        }
        EXPECT_TRUE(codes.Of(codes.lLast).empty());
        return text;
    }
};

TEST(KinshipCodes, TellWaysUpAndDownTurnsAndCouples) {
    EXPECT_EQ(PathOf({"Fils/F1", "Fille/F2", "Enfant/F3", "Père/F3"_t}).Codes(), "E E e p ");
    EXPECT_EQ(PathOf({"Fils/F1", "Mère/F2"_t, "Parent/F3", "Epoux/F4", "Fils/F5"}).Codes(), "E P P C1 E ");
    EXPECT_EQ(PathOf({"Conjoint/F4"}).Codes(), "C1 ");
    EXPECT_EQ(PathOf({}).Codes(), "");
}

TEST(KinshipCodes, CouplesAreAsWideAsWhatStandsAroundThem) {
    PathOf turnThenUp({"Fils/F1", "Père/F1"_t, "Epoux/F2", "Fille/F3", "Fils/F4"});
    EXPECT_EQ(turnThenUp.Codes(1, true), "e p C2 E E ");
    EXPECT_EQ(turnThenUp.Codes(1, false), "e p C1 E E ");
    EXPECT_EQ(PathOf({"Père/F1"_t, "Epoux/F2", "Fille/F3"}).Codes(1, true), "P C3 E ");
    EXPECT_EQ(PathOf({"Père/F1"_t, "Epoux/F2", "Fille/F3", "Père/F3"_t}).Codes(1, true), "P C2 e p ");
    EXPECT_EQ(PathOf({"Fils/F0", "Père/F0"_t, "Epoux/F2", "Fille/F3", "Père/F3"_t}).Codes(1, true),
              "e p C1 e p ");
    // What stands before the first row does not count.
    EXPECT_EQ(PathOf({"Père/F1"_t, "Epoux/F2", "Fille/F3"}).Codes(2, true), "C1 E ");
}

TEST(KinshipCodes, EndWhereThereIsNoWayForward) {
    PathOf t({"Fils/F1", "Fils/F2", "ALIA", "Fils/F3"});
    const modKinship::KinshipCodes codes = modKinship::MakeKinshipCodes(t.main.lvwKinship, 2, false);
    EXPECT_EQ(codes.lLast, 3);
    EXPECT_EQ(codes.Of(2), "E");
    EXPECT_EQ(codes.Of(1), "");
    EXPECT_EQ(codes.Of(4), "");
}

TEST(GetSpouseID, GivesTheOtherOneOfTheFamily) {
    AfterRead t({"Man m", "Woman f", "Some"}, {"Man Woman Some", "Some Ghost", "Man -", "Man Ghost"});
    const auto spouse = [&](TextView id, TextView family) {
        return modKinship::GetSpouseID(t.main, t.main.trail, id, family);
    };
    EXPECT_EQ(spouse("@Man@", "@F1@"), "@Woman@");
    EXPECT_EQ(spouse("@Woman@", "@F1@"), "@Man@");
    EXPECT_EQ(spouse("@Some@", "@F2@"), "UnknownID");
    EXPECT_EQ(spouse("@Man@", "@F3@"), "UnknownID");
    EXPECT_EQ(spouse("@Man@", "@F4@"), "UnknownID") << "there is no record of her";
    EXPECT_EQ(t.main.trail.Reports(), 0);
    EXPECT_EQ(spouse("@Man@", "@F9@"), "");
    EXPECT_EQ(t.main.trail.Reports(), 1);
    EXPECT_NE(t.dialogs.boxes.back().text.find("|@Man@/@F9@|"), Text::npos);
}

}  // namespace
}  // namespace swiftroll::test
