#include "text/numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>

#include "support/kind_of.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

using test::KindOf;

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

TEST(Numbers, WidthsAreChecked) {
    EXPECT_EQ(ToLong(" -2147483648 "), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInteger("32767"), 32767);
    EXPECT_EQ(ToInteger("00000000000000000000000000012"), 12);
    EXPECT_EQ(KindOf([&] { ToInteger("32768"); }), FailureKind::Overflow);
    for (const TextView wide : {"2147483648", "-2147483649", "-99999999999999999999", "+9223372036854775808"})
        EXPECT_EQ(KindOf([&] { ToLong(wide); }), FailureKind::Overflow) << wide;
    for (const TextView word : {"", "abc", "1.5", "-", "99999999999999999999x"})
        EXPECT_EQ(KindOf([&] { ToInteger(word); }), FailureKind::TypeMismatch) << word;
}

template <class Thrown>
Failure Translated(const Thrown& thrown) {
    try {
        throw thrown;
    } catch (...) {
        return CurrentFailure();
    }
}

TEST(Failures, TellNumberDescriptionAndLineOfTheCheck) {
    const Failure failure(FailureKind::Overflow, "@I1@");
    EXPECT_EQ(failure.Line(), __LINE__ - 1u);
    EXPECT_EQ(failure.Number(), 6);
    EXPECT_EQ(failure.What(), "Dépassement de capacité (@I1@)"_t);
    EXPECT_EQ(Translated(failure).Line(), failure.Line());
    EXPECT_EQ(Translated(std::bad_alloc()).Kind(), FailureKind::OutOfMemory);
    EXPECT_EQ(Translated(std::length_error("too long")).Kind(), FailureKind::OutOfMemory);
    EXPECT_EQ(Translated(std::runtime_error("odd")).What(), "Erreur interne (odd)");
    EXPECT_THROW(Translated(42), int);
    EXPECT_EQ(Translated(std::out_of_range("far")).Kind(), FailureKind::IndexOutOfRange);
}

}  // namespace
}  // namespace swiftroll
