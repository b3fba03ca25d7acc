// What disturbs the records of a file: duplicates, bad lines, levels that the reader does not know.
#include <algorithm>

#include "gedcom/reader_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

using modReadGedcom::RecordRange;

TEST(RecordRanges, AreThoseOfTheLastFileOnlyAndEndWithALevelOfSeveralDigits) {
    AfterReading t("0 HEAD\n0 @S1@ SUBN\n0 @N1@ NOTE\n0 TRLR\n");
    t.Read("0 @I1@ INDI\r\n1 NAME Jean /DUPONT/\r\n10 SOUR\r\n0 @I2@ INDI\r\n0 TRLR\r\n");
    const auto& lines = t.main.reader.lines;
    EXPECT_EQ(lines.head, (RecordRange{1, 1}));
    EXPECT_EQ(lines.subn, (RecordRange{0, 0}));
    EXPECT_EQ(lines.colRecords().Count(), 1u);
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::LastName, In::IslandNr}), Rows({"@I1@|DUPONT|0001"}));
    EXPECT_EQ(Slice(t.files.contents["in.ged"], t.main.lvwIn.Item(1)),
              "0 @I1@ INDI\r\n1 NAME Jean /DUPONT/\r\n");
    EXPECT_EQ(t.dialogs.boxes.back().topic, BoxTopic::Recalculation);
}

TEST(RecordRanges, AFamilyWrittenTwiceHasOneRow) {
    AfterReading t(
        "0 @I1@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 MARR\n2 DATE 1800\n2 PLAC Lyon\n"
        "0 @F1@ FAM\n1 DIV\n2 DATE 1810\n0 TRLR\n");
    EXPECT_EQ(RowsOf(t.main.lvwFamily), Rows({"@F1@|@I1@|||Lyon|1810|1810| x |||"}));
    EXPECT_EQ(t.dialogs.boxes.size(), 2u);
}

TEST(RecordRanges, ASecondIndividualOfOneReferenceIsPassedOverWhole) {
    for (const TextView behind : {TextView("0 @I2@ INDI\n0 TRLR\n"), TextView("0 @I2@ INDI\n"), TextView()}) {
        AfterReading t(Concat({"0 @I1@ INDI\n1 NAME Jean /A/\n1 SEX M\n0 @i1@ INDI\n",
                               "0 @I1@ INDI\n1 NAME Luc /B/\n1 SEX F\n1 FAMS @F1@\n1 ALIA @i1@\n", behind}));
        EXPECT_EQ(t.main.trail.Reports(), 0);
        EXPECT_EQ(t.main.lvwFamilyXref.Count() + t.main.lvwXref.Count(), 0);
        EXPECT_EQ(t.main.reader.lines.lNrNames, 1);
        const bool isMore = !behind.empty();
        EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::LastName, In::Sex}),
                  isMore ? Rows({"@I1@|A|M", "@i1@||", "@I2@||"}) : Rows({"@I1@|A|M", "@i1@||"}));
        // One box for the reference that differs in case alone, and one for the equal one.
        ASSERT_EQ(t.dialogs.boxes.size(), 3u);
        for (const std::size_t box : {0u, 1u}) EXPECT_TRUE(t.dialogs.boxes[box].text.starts_with("457: "));
        EXPECT_EQ(t.main.pnlMessage.Get(), "Lecture terminée"_t);
    }
}

TEST(LineErrors, AreToldWithNumberLineAndRest) {
    for (const TextView c : {"une suite de note -> 5", "le 12 mars 1804 -> 13 12 mars 1804",
                             "1SEX   -> 13 1SEX", "99999999999999999999 X -> 6 99999999999999999999 X"}) {
        const auto [line, told] = Sides(c);
        const TextView number = told.substr(0, told.find(' '));
        const TextView rest = told.substr(std::min(told.size(), number.size() + 1));
        AfterReading t(Concat({"0 @I1@ INDI\n1 SEX M\n", line, "\n1 NAME Jean /DUPONT/\n0 TRLR\n"}));
        ASSERT_EQ(t.dialogs.boxes.size(), 2u) << line;
        const MessageBox& box = t.dialogs.boxes[0];
        EXPECT_EQ(box.title, t.main.MainCaption() + " - Erreur Ligne");
        const TextView description = Description(static_cast<FailureKind>(ToLong(number)));
        EXPECT_EQ(box.text, Concat({number, ": ", description, "\r\nLigne 3\r\n", rest}));
        EXPECT_TRUE(box.buttons == BoxButtons::OkCancel && box.icon == BoxIcon::Question);
        // With OK only the faulty line is dropped.
        EXPECT_EQ(CellsOf(t.main.lvwIn, {In::LastName, In::Sex}), Rows({"DUPONT|M"})) << line;
        EXPECT_EQ(t.main.pnlLines.Get(), "Ligne(s) GEDCOM : 6");
    }
}

TEST(LineErrors, CancelKeepsWhatWasReadAndAborts) {
    TestMain t;
    t.dialogs.answers = {BoxAnswer::Cancel};
    t.main.chkUpperNames.SetChecked(true);
    t.Read(WithCrLf("0 @I1@ INDI\n1 NAME Jean /Dupont/\n  suite\n1 SEX M\n0 @I2@ INDI\n0 TRLR\n"));
    EXPECT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(t.main.bAbort);
    EXPECT_EQ(t.main.pnlMessage.Get(), "Erreur !");
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::LastName, In::Sex, In::IslandNr}), Rows({"@I1@|DUPONT||"}));
    EXPECT_EQ(Slice(t.files.contents["in.ged"], t.main.lvwIn.Item(1)),
              "0 @I1@ INDI\r\n1 NAME Jean /Dupont/\r\n");
    EXPECT_FALSE(t.main.chkUpperNames.Checked() || t.main.cmdFindPath.Enabled || !t.main.cmdLoad.Enabled);
}

TEST(Charset, WithoutConversionOtherSetsAreToldAndReadAllTheSame) {
    for (const TextView value : {"ANSEL", "UTF-8", "ansi", "ANSI ", "", "ANSI", "ASCII"}) {
        // Lines too deep outside records are skipped, and the line that is reached is read.
        TestMain t;
        t.main.chkDecodeCharset.SetChecked(false);
        t.Read(WithCrLf(Concat({"3 X\n2 Y\n0 HEAD\n2 VERS 5\n2 DATE\n1 CHAR ", value,
                                "\n2 CHAR deeper\n0 @I1@ INDI\n3 NAME x\n1 CHAR inside\n0 TRLR\n"})));
        EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::LastName}), Rows({"@I1@|"}));
        const bool known = value == "ANSI" || value == "ASCII";
        ASSERT_EQ(t.dialogs.boxes.size(), known ? 1u : 2u) << value;
        if (known) continue;
        const MessageBox& box = t.dialogs.boxes[0];
        EXPECT_EQ(box.title, t.main.MainCaption() + " - Charset");
        EXPECT_EQ(box.text, Concat({value, " : Jeu de caractères non supporté"_t}));
        EXPECT_TRUE(box.buttons == BoxButtons::OkCancel && box.icon == BoxIcon::Exclamation);
    }
    TestMain cancelled;
    cancelled.dialogs.answers = {BoxAnswer::Cancel};
    cancelled.main.chkDecodeCharset.SetChecked(false);
    cancelled.Read(WithCrLf("0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n0 TRLR\n"));
    EXPECT_EQ(cancelled.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(cancelled.main.bAbort && cancelled.main.lvwIn.Count() == 0);
}

}  // namespace
}  // namespace swiftroll::test
