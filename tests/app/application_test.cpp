#include "app/application.h"

#include <gtest/gtest.h>

#include "app/french_count.h"
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

TEST(FrenchCount, DigitsStandInGroups) {
    EXPECT_EQ(FrenchCount(0) + FrenchCount(999) + FrenchCount(-1204), "0999-1 204");
    EXPECT_EQ(FrenchCount(1000000) + Text(ForCount(1, "lien", "liens")), "1 000 000lien");
}

TEST(Positions, AnUnknownColumnIsToldAndTheOthersAreRead) {
    test::TestPorts ports;
    Application application(ports.All(), {});
    application.lvwOut.ColumnAt(Out::LastName).Key = "Added";
    application.lvwOut.ColumnAt(Out::LastName).Caption = "Ajoutée"_t;
    application.lvwOut.ColumnAt(Out::Place).Key = "";
    application.InitIndexes();
    ASSERT_EQ(ports.dialogs.boxes.size(), 1u);
    EXPECT_EQ(ports.dialogs.boxes[0].title, "SwiftRoll (v3.4.0) - InitIdxOut");
    EXPECT_EQ(ports.dialogs.boxes[0].text, "Colonne ajoutée dans Out : Ajoutée\r\nMerci de me prévenir !"_t);
    const auto &in = application.positions.iKeyColIn, &out = application.positions.iKeyColOut;
    EXPECT_TRUE(in[1] == In::ID && out[1] == Out::ID);
    for (std::int16_t position = 2; position <= 4; ++position)
        EXPECT_TRUE(!in[position] && !out[position]) << position;
}

}  // namespace
}  // namespace swiftroll
