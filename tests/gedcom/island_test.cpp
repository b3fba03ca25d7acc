// The connected groups of individuals.
#include "gedcom/reader_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

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
