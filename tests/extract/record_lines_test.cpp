// References in records, and family records without some of their members.
#include "extract/record_lines.h"

#include <gtest/gtest.h>

#include "support/test_ports.h"

namespace swiftroll::test {
namespace {

std::vector<Text> FindOutTags(TextView record) {
    std::vector<Text> keys;
    for (const auto& reference : modSaveGed::FindOutTags(record))
        keys.push_back(Concat({reference.sTag, " ", reference.sXref}));
    return keys;
}

Text RemoveIndis(TextView record, const std::function<bool(TextView)>& isKept) {
    Text kept;
    return Text(modSaveGed::RemoveIndis(record, isKept, kept));
}

TEST(FindOutTags, TakesWholeReferencesOnly) {
    EXPECT_EQ(
        FindOutTags("0 @I1@ INDI\r\n1 SOUR @S1@\r\n2 NOTE @N1@  \r\n1 OBJE @O1@\n1 NOTE @N2@\r 1 SUBM @U1@"),
        Rows({"OBJE @O1@", "NOTE @N1@", "NOTE @N2@", "SOUR @S1@", "SUBM @U1@"}))
        << "by tag, then by line, whatever the line end";
    for (const TextView text :
         {"1 NOTE @@", "1 NOTE @@N1@@", "1 NOTE @N1", "1 NOTE @N1\n@", "1 NOTE @N1@ and more",
          "1 NOTE see @N1@", "1 CONT NOTE @N1@", "2 CONC a NOTE @N1@", "1 XNOTE @N1@", "1 NOTES @N1@",
          "NOTE @N1@", " NOTE @N1@", "1NOTE @N1@", "1 note @N1@", "1 ASSO @I2@", "@", "", "1 SOUR me@home"}) {
        EXPECT_EQ(FindOutTags(text), Rows({})) << text;
    }
    EXPECT_EQ(FindOutTags("1 NOTE @@N1@@\n1 NOTE @N1@\n  2  SOUR @ @\n"), Rows({"NOTE @N1@", "SOUR @ @"}));
}

TEST(FindOutTags, SplitsLinesAsTheReaderDoes) {
    for (const TextView line : {"-1 NOTE @N@",
                                "\xEF\xBB\xBF"
                                "1 NOTE @N@",
                                "1 NOTE   @N@", "1 @D@ NOTE @N@", "1 @D@NOTE @N@", "0 @@ NOTE @N@",
                                "1   NOTE @N@", "  9 NOTE @N@  "}) {
        EXPECT_EQ(FindOutTags(line), Rows({"NOTE @N@"})) << line;
        EXPECT_EQ(FindOutTags(Concat({"2 CONC @\r", line, "\n1 CONT NOTE @M@"})), Rows({"NOTE @N@"})) << line;
    }
    EXPECT_EQ(FindOutTags("1 @D NOTE @N@ et NOTE @M@"), Rows({}))
        << "a cross-reference up to the second \"@\"";
}

TEST(RemoveIndis, TakesLinesWithTheirOwnLineEnds) {
    const auto isKept = [](TextView id) { return id == "@I1@"; };
    for (const TextView end : {"\r\n", "\n", "\r"}) {
        Text record, expected;
        for (const TextView line :
             {"0 @F1@ FAM", "1 HUSB @I1@", "-1 WIFE @I11@", "--1 CHIL @I2@", "-1 @D@ CHIL   @I2@",
              "1 @D@ CHIL  @I1@", "- 1  CHIL @I2@ ", "", "1 CHIL @@I2@@", "2 HUSB @I2@", "1 HUSB somebody",
              "1 NOTE 1 CHIL @I2@", "-1 CHIL @I@", "1 CHIL @I2@ x", "10 CHIL @I2@", "1 CHIL @I1@",
              "-1 WIFE @I2@"}) {
            const bool goes = line.starts_with('-');
            const Text text = Text(line.substr(goes ? 1 : 0)) + Text(end);
            record += text;
            if (!goes) expected += text;
        }
        EXPECT_EQ(RemoveIndis(record, isKept), expected) << end.size();
        EXPECT_EQ(RemoveIndis(record.substr(0, record.size() - end.size()), isKept), expected);
    }
    EXPECT_EQ(RemoveIndis("", isKept), "");
}

}  // namespace
}  // namespace swiftroll::test
