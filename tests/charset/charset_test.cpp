// Files of every character set give the tables of the one in Windows-1252, and so do their extracts.
#include <gtest/gtest.h>

#include "charset/decoder.h"
#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

using charset::Charset;
using charset::ToldBy;

/// Ways to write a letter; ANSEL and decomposed UTF-8 take two characters for most of them.
enum Writing { kUtf8, kAnsi, kCodePage850, kMacintosh, kAnsel, kDecomposed, kUtf16Le, kUtf16Be };
constexpr TextView kLetters[][6] = {{"é", "\xE9", "\x82", "\x8E", "\xE2\x65", "e\u0301"},
                                    {"è", "\xE8", "\x8A", "\x8F", "\xE1\x65", "e\u0300"},
                                    {"ç", "\xE7", "\x87", "\x8D", "\xF0\x63", "c\u0327"},
                                    {"ü", "\xFC", "\x81", "\x9F", "\xE8u", "u\u0308"},
                                    {"É", "\xC9", "\x90", "\x83", "\xE2\x45", "E\u0301"},
                                    {"ø", "\xF8", "\x9B", "\xBF", "\xB2", "ø"},
                                    {"ß", "\xDF", "\xE1", "\xA7", "\xCF", "ß"}};

constexpr TextView kTree =
    "0 HEAD\n1 SUBM @Ué@\n1 CHAR NAME\n2 VERS 1\n0 @Ué@ SUBM\n1 NAME Zoé\n0 @I1@ INDI\n"
    "1 NAME François/LEFÈVRE/\n1 SEX M\n1 BIRT\n2 DATE 12 févr. 1804\n2 PLAC Évreux, Grèce;\n1 FAMS @Fé@\n"
    "0 @I2@ INDI\n1 NAME Jürgen/Gauß/\n1 SEX F\n1 FAMS @Fé@\n0 @I3@ INDI\n1 NAME Léa Søren/Lefèvre/ç\n"
    "1 FAMC @Fé@\n0 @I4@ INDI\n1 NAME Hélène/é/\n1 FAMC @Fé@\n0 @Fé@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n"
    "1 CHIL @I3@\n1 CHIL @I4@\n1 MARR\n2 PLAC Forêt é\n2 NOTE très «é»\n0 TRLR\n";

/// The tree without what only some of the writings have.
Text Tree(TextView name) {
    Text tree = ReplaceAll(ReplaceAll(Text(kTree), "È", "è"), "ê", "é");
    return ReplaceAll(ReplaceAll(ReplaceAll(tree, "«", ""), "»", ""), "NAME\n2 VERS",
                      Concat({name, "\n2 VERS"}));
}

Text Written(Text utf8, Writing writing) {
    if (writing == kUtf16Le || writing == kUtf16Be) {
        Text units;
        for (TextView rest = utf8; !rest.empty();) {
            const Utf8Char c = FirstUtf8Char(rest);
            const char low = static_cast<char>(c.codePoint), high = static_cast<char>(c.codePoint >> 8);
            units += writing == kUtf16Le ? Text{low, high} : Text{high, low};
            rest.remove_prefix(c.length);
        }
        return units;
    }
    for (const auto& letter : kLetters) utf8 = ReplaceAll(utf8, letter[kUtf8], letter[writing]);
    return utf8;
}

/// What the tables hold, without positions. Cross-references stand in the bytes of the file.
std::vector<Text> Tables(frmMain& main, Writing writing) {
    std::vector<Text> rows;
    for (Table* table : {&main.lvwIn, &main.lvwFamily, &main.lvwFamilyXref, &main.lvwXref}) {
        for (const Text& row : RowsOf(*table))
            rows.push_back(ReplaceAll(row, Written("@Fé@", writing), "@Fé@"));
    }
    return rows;
}

struct Case {
    const char* what;
    TextView name;
    Writing writing;
    TextView mark;
    Charset charset;
    ToldBy toldBy;
};
constexpr Case kCases[] = {
    {"ANSI", "ANSI", kAnsi, "", Charset::Windows1252, ToldBy::Name},
    {"Latin-1", "ISO-8859-1", kAnsi, "", Charset::Windows1252, ToldBy::Name},
    {"Latin-9", "iso 8859-15", kAnsi, "", Charset::Latin9, ToldBy::Name},
    {"code page 850", "IBMPC", kCodePage850, "", Charset::CodePage850, ToldBy::Name},
    {"Macintosh", "MACINTOSH", kMacintosh, "", Charset::Macintosh, ToldBy::Name},
    {"ANSEL", "ANSEL", kAnsel, "", Charset::Ansel, ToldBy::Name},
    {"UTF-8", "UTF-8", kUtf8, "", Charset::Utf8, ToldBy::Bytes},
    {"UTF-8 with a mark", "UTF-8", kUtf8, "\xEF\xBB\xBF", Charset::Utf8, ToldBy::Mark},
    {"decomposed UTF-8", "UTF-8", kDecomposed, "", Charset::Utf8, ToldBy::Bytes},
    {"UTF-16", "UNICODE", kUtf16Le, "\xFF\xFE", Charset::Utf16LittleEndian, ToldBy::Mark},
    {"UTF-16, big", "UNICODE", kUtf16Be, "\xFE\xFF", Charset::Utf16BigEndian, ToldBy::Mark},
    {"UTF-16 without a mark", "UNICODE", kUtf16Le, "", Charset::Utf16LittleEndian, ToldBy::Bytes},
    {"UTF-16, big, without a mark", "x", kUtf16Be, "", Charset::Utf16BigEndian, ToldBy::Bytes},
    {"UTF-8 as ANSI", "ANSI", kUtf8, "", Charset::Utf8, ToldBy::Bytes},
    {"ANSI as UTF-8", "UTF-8", kAnsi, "", Charset::Windows1252, ToldBy::Guess},
    {"ANSI as ANSEL", "ANSEL", kAnsi, "", Charset::Windows1252, ToldBy::Guess},
    {"code page 850 as ANSEL", "ANSEL", kCodePage850, "", Charset::CodePage850, ToldBy::Guess},
    {"Macintosh as ANSEL", "ANSEL", kMacintosh, "", Charset::Macintosh, ToldBy::Guess}};

void ExpectFound(const TestMain& t, const Case& c) {
    const charset::FoundCharset* const found = t.main.reader.lines.FoundCharset();
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(NameOf(found->charset), NameOf(c.charset));
    EXPECT_TRUE(found->toldBy == c.toldBy);
    EXPECT_EQ(found->declared, c.name);
    EXPECT_EQ(found->transliterated, 0);
}

TEST(Charsets, GiveTheSameTablesAndExtractsOfTheirOwn) {
    std::vector<Text> expected;
    for (const Case& c : kCases) {
        for (const TextView lineEnd : {"\r\n", "\n", "\r"}) {
            SCOPED_TRACE(Concat({c.what, lineEnd == "\r\n" ? " CR LF" : lineEnd == "\n" ? " LF" : " CR"}));
            const auto write = [&](TextView text) {
                return Written(ReplaceAll(Text(text), "\n", lineEnd), c.writing);
            };
            const Text file = Concat({c.mark, write(Tree(c.name))});
            TestMain t;
            t.files.readSize = lineEnd == "\r" ? 3 : static_cast<std::size_t>(-1);
            t.Read(file);
            ASSERT_EQ(t.dialogs.boxes.size(), 1u) << t.dialogs.boxes[0].text;
            ExpectFound(t, c);
            if (expected.empty()) expected = Tables(t.main, c.writing);
            const bool isUtf16 = c.writing >= kUtf16Le;
            const Writing written = isUtf16 ? kUtf8 : c.writing;
            ASSERT_EQ(Tables(t.main, written), expected);

            for (const TextView id : {"@I1@", "@I2@", "@I3@"}) t.main.lvwIn.Item(id).SetChecked(true);
            t.dialogs.files = {"out.ged"};
            t.main.cmdSaveGed.Click();
            const Text out = t.files.contents["out.ged"];
            if (isUtf16) {
                EXPECT_TRUE(
                    out.starts_with("\xEF\xBB\xBF"
                                    "0 HEAD"))
                    << out;
                EXPECT_NE(out.find(Concat({lineEnd, "1 CHAR UTF-8", lineEnd, "2 VERS 1"})), Text::npos)
                    << out;
            } else {
                const TextView head = TextView(file).substr(0, file.find("0 @U"));
                EXPECT_TRUE(out.starts_with(head)) << out;
            }
            const auto family =
                ReplaceAll("1 CHIL @I3@\n1 MARR\n2 PLAC Forét é\n2 NOTE trés é\n", "trés", "très");
            EXPECT_NE(out.find(Written(ReplaceAll(family, "\n", lineEnd), written)), Text::npos) << out;

            TestMain again;
            again.Read(out);
            ASSERT_EQ(again.main.lvwIn.Count(), 3);
            for (std::int32_t i = 1; i <= 3; ++i)
                EXPECT_EQ(RowText(again.main.lvwIn.Item(i)), RowText(t.main.lvwIn.Item(i)));
        }
    }
}

TEST(Charsets, ACharacterMayBeCutByACONCLineAndByNoOther) {
    for (const TextView lineEnd : {"\r\n", "\n  "}) {
        for (const TextView tag : {"CONC", "CONT"}) {
            const Text cut = Concat({lineEnd, "2 ", tag, " "});
            TestMain t;
            // The cuts meet all places of the blocks in which a file is looked at.
            Text file = WithCrLf("0 HEAD\n1 CHAR ANSI\n0 @I1@ INDI\n1 NAME \303\211va/\342\202\254/\n");
            for (std::size_t length = 1; file.size() < (std::size_t{1} << 19); length = length % 200 + 1)
                file += Concat(
                    {"1 NOTE ", Text(length, 'x'), "\303", cut, "\251\342", cut, "\202", cut, "\254\r\n"});
            t.Read(file + "0 TRLR\r\n");
            EXPECT_EQ(CellsOf(t.main.lvwIn, {In::LastName, In::FirstName}),
                      Rows({tag == "CONC" ? "€|Éva"_t : "\342\202\254|\303\211va"}));
        }
    }
}

/// A value of a file, decoded, and how many characters of it were transliterated.
std::pair<Text, std::int64_t> Decoded(TextView file, TextView name, TextView value) {
    MemoryFiles files;
    files.contents["f"] = Concat({file, value});
    charset::Decoder decoder(files.Open("f", Files::Mode::Read));
    decoder.Declare(name);
    const Text decoded(decoder.Decode(value));
    return {decoded, decoder.Found().transliterated};
}

TEST(Charsets, Utf16WithoutAMarkMayHoldLettersWithANulOnTheOtherSide) {
    MemoryFiles files;
    Text& file = files.contents["f"];
    for (const char c : TextView("0 HEAD\n0 @I1@ INDI\n1 NAME ")) file += {c, '\0'};
    file += TextView("\x00\x01\x00\x4E", 4);
    const charset::Decoder decoder(files.Open("f", Files::Mode::Read));
    EXPECT_EQ(NameOf(decoder.Found().charset), NameOf(Charset::Utf16LittleEndian));
}

TEST(Charsets, AnselPutsMarksBehindTheirLetters) {
    Text real;
    for (int i = 0; i < 50; ++i) real += "\xE2\x65\xE1\x65";
    const struct {
        TextView value, decoded;
        std::int64_t transliterated;
    } cases[] = {{"\xE2\x65t\xE2\x65", "été"_t, 0},
                 {"\xA1\xF1\x61", "La", 2},
                 {"\xEBt\xECs", "ts", 2},
                 {"\xFAn\xFBg", "ng", 2},
                 {"\xE9s\xE9z\xE9\x63", "šžc"_t, 1},
                 {"\xE4\xE2o", "o", 1},
                 {"\xCF\xC7\xA2\xB6\xC0", "ßßØœ°"_t, 0},
                 {"\xCD\xCE\xB9", "eo£"_t, 0},
                 {"e\xE2", "e", 0},
                 {"\xE2 e", " e", 1},
                 {"x\x85", "x?", 1},
                 {"\xE2\xC9z", "?z", 2}};
    for (const auto& c : cases) {
        EXPECT_EQ(Decoded(real, "ANSEL", c.value), std::pair(Text(c.decoded), c.transliterated))
            << ToUtf8(c.value);
    }
}

TEST(Charsets, WhatWindows1252HasNotIsTransliterated) {
    const struct {
        TextView value, decoded;
        std::int64_t transliterated;
    } cases[] = {{"Œuvre à Škofja, Žižka, Ÿ €", "Œuvre à Škofja, Žižka, Ÿ €"_t, 0},
                 {"Łukasz Dvořák", "Lukasz Dvorák"_t, 2},
                 {"Сергей Щукин, ЮЩ", "Sergey Shchukin, YUSHCH", 13},
                 {"Елена Київ", "Yelena Kiyiv", 9},
                 {"Χρήστος", "Khrístos"_t, 7},
                 {"e\u0301\u200Bx\u030C y\u0308", "éx ÿ"_t, 2},
                 {"й и\u0306", "y y", 2},
                 {"\xF0\x9F\x8C\xB3|ﬁn", "?|fin", 2},
                 {"é\xFF\xE9 \xC3", "éÿé "_t, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(Decoded("\xEF\xBB\xBF", "UTF-8", c.value), std::pair(Text(c.decoded), c.transliterated))
            << c.value;
    }
    // More marks than any letter has take no time.
    Text marks = "e";
    for (int i = 0; i < 100000; ++i) marks += "\u0301\u0323";
    EXPECT_EQ(Decoded("\xEF\xBB\xBF", "UTF-8", marks).first, "e");
    EXPECT_EQ(Decoded("", "ISO-8859-15", "\xA4\xBD\x92\xE9").first, "€œ’é"_t);
}

TEST(Charsets, TheBoxAsksOnlyWhereTheTextCannotBeTold) {
    const auto boxes = [](TextView name, TextView person, bool decodes) {
        TestMain t;
        t.main.chkDecodeCharset.SetChecked(decodes);
        t.Read(WithCrLf(Concat({"0 HEAD\n1 CHAR ", name, "\n0 @I1@ INDI\n1 NAME ", person, "\n0 TRLR\n"})));
        return t.dialogs.boxes.size() - 1;
    };
    for (const TextView name : {"UTF-8", "utf8", "ANSEL", "Macintosh", "MSDOS", "ISO-8859-15"}) {
        EXPECT_EQ(boxes(name, "\xE9", true), 0u) << name;
        EXPECT_EQ(boxes(name, "e", false), 1u) << name;
    }
    EXPECT_EQ(boxes("KOI8-R", "e", true), 0u);
    EXPECT_EQ(boxes("KOI8-R", "\303\251", true), 0u);
    EXPECT_EQ(boxes("KOI8-R", "\xE9", true), 1u);
    // Other boxes that show the text show it decoded.
    TestMain t;
    t.Read("0 HEAD\r\n1\303\211va\r\n0 TRLR\r\n");
    EXPECT_TRUE(t.dialogs.boxes[0].text.ends_with("1Éva"_t)) << t.dialogs.boxes[0].text;
}

}  // namespace
}  // namespace swiftroll::test
