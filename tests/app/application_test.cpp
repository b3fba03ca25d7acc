#include "app/application.h"

#include <gtest/gtest.h>

#include "app/french_date.h"
#include "support/test_ports.h"
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

class PositionsTest : public testing::Test, protected test::TestPorts {
  protected:
    std::string KeyColumns() {
        std::string all;
        for (std::int16_t position = 1; position <= kMaxColumns; ++position) {
            all += std::to_string(application.positions.iKeyColIn[position].Index()) + "," +
                   std::to_string(application.positions.iKeyColOut[position].Index()) + " ";
        }
        return all;
    }
    Application application{All(), {}};
};

TEST_F(PositionsTest, AnUnknownColumnIsToldAndTheOthersAreRead) {
    application.lvwOut.ColumnAt(Out::LastName).Key = "Added";
    application.lvwOut.ColumnAt(Out::LastName).Caption = "Ajoutée"_t;
    application.lvwOut.ColumnAt(Out::Place).Key = "";
    application.InitIndexes();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "SwiftRoll (v3.4.0) - InitIdxOut");
    EXPECT_EQ(dialogs.boxes[0].text, "Colonne ajoutée dans Out : Ajoutée\r\nMerci de me prévenir !"_t);
    EXPECT_TRUE(KeyColumns().starts_with("1,1 0,0 0,0 0,0 ")) << KeyColumns();
}

}  // namespace
}  // namespace swiftroll
