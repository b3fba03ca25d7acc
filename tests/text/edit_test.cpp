#include "text/edit.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/code_page.h"
#include "text/fold.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

TEST(Edit, CapitalsOfTheCodePageAndBlanksOfCode32Alone) {
    EXPECT_EQ(UpperCase("azàöøþœšžÿ"_t), "AZÀÖØÞŒŠŽŸ"_t);
    EXPECT_EQ(UpperCase("÷ßµƒ`{0 ×ÀŸ"_t), "÷ßµƒ`{0 ×ÀŸ"_t);
    int letters = 0;
    for (int code = 0; code < 256; ++code)
        letters += UpperCase(static_cast<char>(code)) != static_cast<char>(code);
    EXPECT_EQ(letters, 26 + 30 + 4);
    EXPECT_EQ(LowerCaseAscii("HEAD@[É"_t), "head@[É"_t);
    EXPECT_TRUE(SameButCase("@i1é@"_t, "@I1É@"_t));
    EXPECT_FALSE(SameButCase("@I1@", "@I1") || SameButCase("ß"_t, "SS"_t));
    EXPECT_EQ(Trim(" \xA0 a \t"), "\xA0 a \t");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Edit, SplittingReplacingAndWidths) {
    using Parts = std::vector<TextView>;
    EXPECT_EQ(Split(",a,,b,", ","), (Parts{"", "a", "", "b", ""}));
    EXPECT_EQ(Split("", ","), Parts{""});
    EXPECT_EQ(Split("a--b-", "--"), (Parts{"a", "b-"}));
    EXPECT_EQ(Split("ab", ""), Parts{"ab"});
    EXPECT_EQ(ReplaceAll("aaaa-a", "aa", "a") + ReplaceAll("ab", "b", "bb"), "aa-aabb");
    EXPECT_EQ(ReplaceAll("ab", "", "x"), "ab");
    EXPECT_EQ(AlignRight("987", 5) + AlignRight("123456", 5) + AlignRight("12", 0), "  98723456");
    EXPECT_EQ(PadRight("ab", 4) + PadRight("abcdef", 4), "ab  abcdef");
    EXPECT_TRUE(FileNamePart("/a\\b/c.ged") == "c.ged" && FileNamePart("C:\\d\\").empty());
}

TEST(Fold, EveryCharacter) {
    const TextView fromCode192 =
        "AAAAAAACEEEEIIIIDNOOOOOxDUUUUYDS"
        "aaaaaaaceeeeiiiidnooooo ouuuuydy";
    for (unsigned code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        const char entry = plain ? c : code < 192 ? ' ' : fromCode192[code - 192];
        const Text around = {'<', c, '_', c, 'z'};
        const Text folded = {entry, ' ', entry, 'z'};
        EXPECT_EQ(FoldAccents(around), entry == ' ' ? "z" : folded) << code;
    }
}

TEST(Fold, ComparisonForms) {
    const std::pair<TextView, TextView> forms[] = {
        {"Jean-Pierre"_t, "JEAN PIERRE"},
        {"  Élise "_t, "ELISE"},
        {"LE - GALL"_t, "LE GALL"},
        {"Œuvre"_t, "UVRE"},
        {"2×3 ß"_t, "2X3 S"},
        {"-.,'"_t, ""},
    };
    for (const auto& [text, form] : forms) {
        EXPECT_EQ(ComparisonForm(text), form) << ToUtf8(text);
        EXPECT_EQ(ComparisonForm(form), form);
    }
    // A key is one form behind the other: the blanks at the ends of a form fall away whatever is before it.
    Text key = "\\A";
    AppendComparisonForm(key, " b ");
    AppendComparisonForm(key, " - ");
    EXPECT_EQ(key, "\\AB");
}

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
