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

}  // namespace
}  // namespace swiftroll::test
