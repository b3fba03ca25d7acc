#include "text/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace swiftroll {
namespace {

TEST(Numbers, OnlyWholeDecimalNumbersAreRead) {
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(Decimal(7, 4) + Decimal(12345, 4) + Decimal(kLeast), "000712345-9223372036854775808");
    EXPECT_EQ(ParseDecimal("-9223372036854775808"), kLeast);
    EXPECT_EQ(ParseDecimal(" 0012 "), 12);
    EXPECT_EQ(ParseDecimal("+5"), 5);
    for (const TextView bad : {"", " ", "+", "-", "+-5", "++5", "- 5", "1 2", "1.5", "1e3", "0x10", "12a",
                               "\t1", "9223372036854775808"}) {
        EXPECT_EQ(ParseDecimal(bad), std::nullopt) << bad;
    }
}

}  // namespace
}  // namespace swiftroll
