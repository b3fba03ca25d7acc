#include "text/code_page.h"

#include <gtest/gtest.h>

#include <random>

#include "text/literal.h"

namespace swiftroll {
namespace {

static_assert("Décès €Œ"_t == "D\xE9\x63\xE8s \x80\x8C");
static_assert(""_t.empty() && "a\0b"_t.size() == 3);
static_assert(!CodePageByte(U'日') && !CodePageByte(0x80) && CodePageByte(0x81) == 0x81);

TEST(CodePage, EveryByteComesBackFromUtf8) {
    for (int code = 0; code < 256; ++code) {
        const Text text(1, static_cast<char>(code));
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << code;
    }
    EXPECT_EQ(ToUtf8("\x80\x9F\xE9\xFF\x7F"), "€Ÿéÿ\x7F");
}

TEST(CodePage, WhatIsNoTextOfTheCodePageIsRefused) {
    const std::string_view lacking[] = {"日", "Ā", "😀", "e\u0301", "\xC2\x80"};
    const std::string_view malformed[] = {
        "\xE9",         "\xC3",     "\x80",     "\xC0\x80",         "\xE0\x80\xAF", "\xED\xA0\x80",
        "\xF0\x80\x80", "\xE2\x82", "\xC3\x28", "\xF4\x90\x80\x80", "\xF8\x88"};
    for (const auto utf8 : lacking) EXPECT_EQ(FromUtf8("a" + std::string(utf8)), std::nullopt) << utf8;
    for (const auto utf8 : malformed)
        EXPECT_EQ(FromUtf8("a" + std::string(utf8)), std::nullopt) << ToUtf8(utf8);
}

TEST(CodePage, FileNamesOfAnyBytesComeBack) {
    EXPECT_EQ(FileNameToText("été.ged"), "été.ged"_t);
    EXPECT_EQ(FileNameFromText("œuvre €.ged"_t), "œuvre €.ged");
    // Pieces that could be confused with each other: escapes, halves of characters, hexadecimal digits.
    const std::string_view pieces[] = {"é",    "日",   "\xC2\x81", "\x81", "\xE2\x82",
                                       "\xFF", "\xC2", "81",       "A",    "\xC2\x90"};
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i) {
        std::string name;
        for (auto length = random() % 6; length > 0; --length) name += pieces[random() % std::size(pieces)];
        ASSERT_EQ(FileNameFromText(FileNameToText(name)), name) << FileNameToText(name);
    }
}

}  // namespace
}  // namespace swiftroll
