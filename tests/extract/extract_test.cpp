// The extract of marked individuals as a file.
#include <gtest/gtest.h>

#include <random>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

/// A file that was read, and the command on it.
struct Extract : TestMain {
    explicit Extract(TextView file) { Read(file); }
    void Mark(std::initializer_list<TextView> ids) {
        for (const TextView id : ids) main.lvwIn.Item(id).SetChecked(true);
    }
    void MarkAll() {
        for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) main.lvwIn.Item(i).SetSelected(true);
    }
    Text Save(TextView name = "out.ged") {
        dialogs.boxes.clear();
        dialogs.files = {Text(name)};
        main.cmdSaveGed.Click();
        return files.contents[Text(name)];
    }
};

constexpr TextView kHead = "0 HEAD\r\n1 SUBM @U1@\r\n1 SUBN @X1@\r\n1 CHAR ANSI\r\n",
                   kSubmission = "0 @X1@ SUBN\r\n1 SUBM @U1@\r\n",
                   kSubmitter = "0 @U1@ SUBM\r\n1 NAME Léa\r\n"_t,
                   kMan = "0 @I1@ INDI\r\n1 NAME A /Man/\r\n1 SEX M\r\n1 FAMS @F1@\r\n1 SOUR @S1@\r\n\r\n",
                   kWoman = "0 @I2@ INDI\r\n1 SEX F\r\n1 FAMS @F1@\r\n1 SOUR @S1@\r\n",
                   kChild = "0 @I3@ INDI\r\n1 FAMC @F1@\r\n1 NOTE @@ or @home, NOTE @N9@\r\n",
                   kOther = "0 @I4@ INDI\r\n1 FAMC @F1@\r\n",
                   kFamily =
                       "0 @F1@ FAM\r\n1 HUSB @I1@\r\n1 WIFE @I2@\r\n1 CHIL @I3@\r\n1 CHIL @I4@\r\n1 MARR\r\n"
                       "2 SOUR @S2@\r\n",
                   kSource = "0 @S1@ SOUR\r\n1 NOTE @N1@\r\n", kSource2 = "0 @S2@ SOUR\r\n",
                   kNote = "0 @N1@ NOTE\r\n1 SOUR @S1@\r\n1 REPO @R1@\r\n",
                   kRepository = "0 @R1@ REPO\r\n1 NOTE @N1@\r\n", kEnd = "0 TRLR\r\n";

Text WholeFile() {
    return Concat({kHead, kSubmission, kSubmitter, kMan, kWoman, kChild, kOther, kFamily, kSource, kSource2,
                   kNote, kRepository, kEnd});
}

TEST(Extract, HoldsTheMarkedAndAllThatTheyReferTo) {
    const struct {
        std::initializer_list<TextView> marked;
        Text people;
    } cases[] = {
        {{}, {}},
        {{"@I3@"}, Concat({kChild, "0 @F1@ FAM\r\n1 CHIL @I3@\r\n"})},
        {{"@I1@", "@I3@"},
         Concat({kMan, kChild, "0 @F1@ FAM\r\n1 HUSB @I1@\r\n1 CHIL @I3@\r\n", kSubmitter, kSource, kNote,
                 kRepository})},
        {{"@I2@", "@I1@", "@I4@"},
         Concat({kMan, kWoman, kOther,
                 "0 @F1@ FAM\r\n1 HUSB @I1@\r\n1 WIFE @I2@\r\n1 CHIL @I4@\r\n1 MARR\r\n2 SOUR @S2@\r\n",
                 kSubmitter, kSource, kSource2, kNote, kRepository})}};
    for (const auto& c : cases) {
        Extract t(WholeFile());
        t.Mark(c.marked);
        const Text people =
            c.people.find(kSubmitter) == Text::npos ? Concat({c.people, kSubmitter}) : c.people;
        EXPECT_EQ(t.Save(), Concat({kHead, kSubmission, people, kEnd}));
        EXPECT_EQ(t.dialogs.boxes.size(), 0u);
        EXPECT_TRUE(t.main.pnlMessage.Get().starts_with("Extrait écrit : "_t));
    }
    Extract headless(Concat({kMan, kWoman, kFamily, kSource, kSource2, kNote, kRepository}));
    headless.Mark({"@I2@"});
    EXPECT_EQ(headless.Save(),
              Concat({kWoman, "0 @F1@ FAM\r\n1 WIFE @I2@\r\n", kSource, kNote, kRepository, kEnd}));
}

TEST(Extract, FamiliesKnownFromIndividualsAloneHaveNoRecord) {
    Extract t(
        "0 @I1@ INDI\n1 SEX M\n1 FAMS @F1@\n1 FAMS @F2@\n0 @I2@ INDI\n1 FAMC @F2@\n0 @F2@ FAM\n1 CHIL "
        "@I2@\n0 TRLR\n");
    t.MarkAll();
    EXPECT_EQ(t.Save(),
              "0 @I1@ INDI\n1 SEX M\n1 FAMS @F1@\n1 FAMS @F2@\n0 @I2@ INDI\n1 FAMC @F2@\n"
              "0 @F2@ FAM\r\n1 FAMS @I1@\r\n1 CHIL @I2@\r\n0 TRLR\r\n");
}

TEST(Extract, ALastLineWithoutLineEndGetsOne) {
    Extract t("0 @I1@ INDI\n1 SEX M");
    t.MarkAll();
    EXPECT_EQ(t.Save(), "0 @I1@ INDI\n1 SEX M\r\n0 TRLR\r\n");
}

TEST(Extract, WhatGoesWrongIsToldAndLeavesWhatWasWritten) {
    Extract t(WholeFile());
    t.Mark({"@I1@"});
    EXPECT_EQ(t.Save("in.ged"), WholeFile()) << "the input is untouched";
    ASSERT_EQ(t.dialogs.boxes.size(), 2u) << "whether to overwrite, and why not";
    EXPECT_EQ(t.dialogs.boxes[1].title, "SwiftRoll (v3.4.0) - Extrait GEDCOM");
    t.main.cboGedOut.SetText("");
    t.main.cmdSaveGed.Click();
    EXPECT_EQ(t.main.trail.Reports(), 0) << "the file dialog was cancelled";

    t.files.room = 70;
    EXPECT_EQ(t.Save("full.ged").size(), 70u);
    EXPECT_EQ(t.main.trail.Reports(), 1);
    EXPECT_NE(t.dialogs.boxes.at(0).text.find("|in.ged/full.ged/Write|"), Text::npos)
        << t.dialogs.boxes[0].text;
    t.files.room = static_cast<std::size_t>(-1);

    t.files.contents.erase("in.ged");
    t.files.contents["old.ged"] = "old";
    EXPECT_EQ(t.Save("old.ged"), "old");
    EXPECT_FALSE(t.main.bWaitCursor);
}

TEST(Extract, GoesOnBehindRecordsThatTheFileDoesNotHave) {
    Text man(kMan);
    for (const char i : TextView("123456789")) man += Concat({"1 NOTE @N", Text(1, i), "@\r\n"});
    man += "1 SOUR @VOID@\r\n1 SOUR @VOID@\r\n";
    Extract t(Concat({man, kEnd}));
    t.MarkAll();
    t.main.lvwFamily.Remove(1);
    EXPECT_EQ(t.Save(), Concat({man, kEnd}));
    EXPECT_EQ(t.main.trail.Reports(), 1);
    const Text told = t.dialogs.boxes.at(0).text;
    for (const TextView part :
         {" (12 enregistrement(s) manque(nt) ", " : FAM @F1@, NOTE @N1@, ", " NOTE @N9@, ...)"})
        EXPECT_NE(told.find(part), Text::npos) << told;
}

TEST(Extract, IsOfTheFileThatWasReadAsItWasRead) {
    Extract t(WholeFile());
    t.files.contents["other.ged"] = WholeFile();
    t.files.contents["out.ged"] = "old";
    const auto expectRefusal = [&](TextView why) {
        EXPECT_EQ(t.Save(), "old");
        EXPECT_NE(t.dialogs.boxes.back().text.find(why), Text::npos) << t.dialogs.boxes.back().text;
        t.Read(WholeFile());
    };
    t.main.cboGedIn.SetText("other.ged");
    expectRefusal("n'est pas celui qui a été lu"_t);
    ++t.files.time;
    expectRefusal("a changé depuis sa lecture"_t);
    t.files.contents["in.ged"] += kEnd;
    expectRefusal("a changé depuis sa lecture"_t);
    EXPECT_TRUE(t.Save().ends_with(kEnd));
}

TEST(Extract, NamesItsFileAfterTheInput) {
    TestMain t;
    t.main.cboGedIn.SetText("dir.x/family.ged");
    t.main.mnuCopyGedIn2GedOut.Click();
    EXPECT_EQ(t.main.cboGedOut.Get(), "dir.x/family.Extrait.ged");
    EXPECT_EQ(t.main.cboGedOut.Items().at(0), "dir.x/family.Extrait.ged");
}

/// People, families that anybody may belong to, and notes and sources that refer to each other.
Text RandomFile(std::mt19937& random, TextView end) {
    const auto below = [&](unsigned count) { return Decimal(static_cast<std::int64_t>(random() % count)); };
    const auto line = [&](std::initializer_list<TextView> pieces) { return Concat(pieces) + Text(end); };
    const auto people = static_cast<unsigned>(3 + random() % 8),
               families = static_cast<unsigned>(2 + random() % 5);
    constexpr unsigned notes = 4;
    Text file = line({"0 HEAD"}) + line({"1 CHAR ANSI"});
    for (unsigned i = 0; i < people; ++i) {
        file += line({"0 @I", Decimal(i), "@ INDI"});
        if (random() % 3 != 0) file += line({"1 SEX ", random() % 2 == 0 ? "M" : "F"});
        if (random() % 2 == 0) file += line({"1 NOTE @N", below(notes), "@"});
        if (random() % 5 == 0) file += line({"1 NOTE @@ is text, and so is SOUR @N", below(9)});
        if (random() % 4 == 0) file += line({"1 FAMS @F", below(families), "@"});
    }
    for (unsigned i = 0; i < families; ++i) {
        file += line({"0 @F", Decimal(i), "@ FAM"});
        for (const TextView tag : {"HUSB", "WIFE", "CHIL", "CHIL"}) {
            if (random() % 4 != 0) file += line({"1 ", tag, " @I", below(people), "@"});
        }
        if (random() % 2 == 0) file += line({"1 MARR"}) + line({"2 NOTE @N", below(notes), "@"});
    }
    for (unsigned i = 0; i < notes; ++i) {
        file += line({"0 @N", Decimal(i), "@ NOTE"});
        if (random() % 2 == 0) file += line({"1 NOTE @N", below(notes), "@"});
        if (random() % 3 == 0) file += Text(end);
    }
    return file + "0 TRLR\r\n";
}

TEST(Extract, OfAnExtractOfEverythingIsTheSameFile) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const TextView ends[] = {"\r\n", "\n", "\r"};
        Extract first(RandomFile(random, ends[round % 3]));
        first.MarkAll();
        const Text once = first.Save();
        ASSERT_EQ(first.main.trail.Reports(), 0) << once;
        Extract second(once);
        second.MarkAll();
        ASSERT_EQ(second.Save(), once);
    }
}

TEST(Extract, ReadsBackWithTheSamePeopleFamiliesAndLinks) {
    std::mt19937 random(12);
    for (int round = 0; round < 300; ++round) {
        Extract t(RandomFile(random, round % 2 == 0 ? "\r\n" : "\n"));
        std::vector<Text> people;
        for (std::int32_t i = 1; i <= t.main.lvwIn.Count(); ++i) {
            if (random() % 2 == 0) continue;
            t.main.lvwIn.Item(i).SetChecked(true);
            people.push_back(Text(t.main.lvwIn.Item(i).Text()));
        }
        const auto isSelected = [&](TextView id) {
            return std::find(people.begin(), people.end(), id) != people.end();
        };
        /// Members of families, by the keys of their rows and what they are.
        const auto members = [&](frmMain& main) {
            std::vector<Text> rows;
            for (std::int32_t i = 1; i <= main.lvwFamilyXref.Count(); ++i) {
                const Row row = main.lvwFamilyXref.Item(i);
                if (isSelected(row.Cell(FamilyXref::IDIndi)))
                    rows.push_back(Concat({row.Key(), row.Cell(FamilyXref::Type)}));
            }
            std::sort(rows.begin(), rows.end());
            return rows;
        };
        const Text extract = t.Save();
        Extract back(extract);
        std::vector<Text> found;
        for (std::int32_t i = 1; i <= back.main.lvwIn.Count(); ++i)
            found.push_back(Text(back.main.lvwIn.Item(i).Text()));
        ASSERT_EQ(found, people);
        ASSERT_EQ(members(back.main), members(t.main)) << extract;
        // A family without record points at nobody who was left out.
        for (std::int32_t i = 1; i <= back.main.lvwFamilyXref.Count(); ++i) {
            ASSERT_TRUE(isSelected(back.main.lvwFamilyXref.Item(i).Cell(FamilyXref::IDIndi))) << extract;
        }
    }
}

}  // namespace
}  // namespace swiftroll::test
