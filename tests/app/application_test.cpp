#include "app/application.h"

#include <gtest/gtest.h>

#include "app/french_date.h"
#include "support/test_ports.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

TEST(FrenchDate, FormsOfADate) {
    const Moment november{2026, 11, 22, 0, 14, 5, 9};
    const Moment august{1905, 8, 1, 2, 0, 0, 0};
    EXPECT_EQ(LongDate(november) + LongDate(august), "dimanche 22 novembre 2026mardi 1 août 1905"_t);
    EXPECT_EQ(MediumDate(november) + MediumDate(august), "22-nov.-2601-août-05"_t);
    EXPECT_EQ(ShortDate(august) + LongTime(november) + ShortTime(august), "01/08/190514:05:0900:00");
}

TEST(ProgressBar, HoldsAPercentageAndTellsOnlyWhatCanBeSeen) {
    struct : StatusObserver {
        void StatusChanged() override { ++changes; }
        int changes = 0;
    } status;
    ProgressBar bar(status);
    const std::tuple<int, int, double> cases[] = {{200, 100, 100}, {-1, 100, 0}, {1, 3, 33.33}, {1, 0, 0}};
    for (const auto& [now, all, percent] : cases) {
        bar.Show(now, all);
        EXPECT_NEAR(bar.Value(), percent, 0.01);
    }
    status.changes = 0;
    for (int row = 1; row <= 100000; ++row) bar.Show(row, 100000);
    EXPECT_EQ(status.changes, 100);
    EXPECT_EQ(bar.Value(), 100);
}

class PositionsTest : public testing::Test, protected test::TestPorts {
  protected:
    std::string KeyColumns() {
        std::string all;
        for (std::int16_t position = 1; position <= kMaxColumns; ++position) {
            all += std::to_string(application.positions.iKeyColIn[position]) + "," +
                   std::to_string(application.positions.iKeyColOut[position]) + " ";
        }
        return all;
    }
    Application application{All()};
};

TEST_F(PositionsTest, FollowTheArrangementOfTheColumns) {
    application.InitIndexes();
    const Positions& positions = application.positions;
    EXPECT_EQ(KeyColumns(),
              "1,1 2,2 -999,-999 10,4 -1,-1 -1,-1 3,7 4,8 -1,-1 -1,-1 7,11 -1,-1 -1,-1 14,14 -1,-1 -1,-1 "
              "13,17 17,18 -999,-999 -999,-999 ");
    application.lvwOut.MoveColumn(3, 1);   // Number
    application.lvwOut.MoveColumn(17, 3);  // Sex
    EXPECT_EQ(positions.iPosNumber, 3) << "not before the next InitIndexes";
    application.InitIndexes();
    EXPECT_EQ(positions.iPosNumber, 1);
    EXPECT_EQ(positions.OutPosition("LastName"), 4);
    EXPECT_TRUE(KeyColumns().starts_with("-999,-999 1,1 13,17 2,2 10,4 -1,-1 ")) << KeyColumns();
    const Positions::OfTable& out = positions.Of(application.lvwOut);
    EXPECT_EQ(std::tuple(out.iColAtPos[3], out.iPosOfCol[17], out.iColAtPos[19]), std::tuple(17, 3, -999));
    EXPECT_THROW(positions.OutPosition("None"), Failure);
    EXPECT_ANY_THROW(positions.iKeyColIn[0]);
    EXPECT_ANY_THROW(positions.iKeyColIn[21]);
}

TEST_F(PositionsTest, AnUnknownColumnIsToldAndTheOthersAreRead) {
    application.lvwOut.ColumnAt(2).Key = "Added";
    application.lvwOut.ColumnAt(2).Caption = "Ajoutée"_t;
    application.lvwOut.ColumnAt(4).Key = "";
    application.InitIndexes();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "SwiftRoll (v3.4.0) - InitIdxOut");
    EXPECT_EQ(dialogs.boxes[0].text, "Colonne ajoutée dans Out : Ajoutée\r\nMerci de me prévenir !"_t);
    EXPECT_TRUE(KeyColumns().starts_with("1,1 -999,-999 -999,-999 -999,-999 ")) << KeyColumns();
}

}  // namespace
}  // namespace swiftroll
