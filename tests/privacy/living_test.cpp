// Who is hidden as living, and that no output tells anything of them.
#include "privacy/living.h"

#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

/// Every word with a number stands once: those that begin with "Secret" in the records of people who live in
/// 2026, of couples of them and in what these alone cite; the others elsewhere.
constexpr TextView kTree =
    "0 @I1@ INDI\n1 NAME Secret01 /Secret02/\n2 NICK Secret03\n1 FAMC @F2@\n2 NOTE Secret04\n1 SEX M\n1 "
    "BIRT\n"
    "2 DATE BET 1920 AND 1927\n2 PLAC Secret05\n1 NOTE Secret06\n2 CONC Secret07\n1 FAMS @F1@\n1 SOUR @S1@\n"
    "0 @I2@ INDI\n1 NAME Secret08 /Secret09/\n1 SEX Secret10\n1 BIRT\n2 PLAC Secret11\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Public01 /Public02/\n1 BIRT\n2 DATE 1990\n2 PLAC Public03\n1 DEAT\n1 FAMC @F1@\n"
    "0 @I4@ INDI\n1 NAME Secret12 /Secret13/\n1 FAMC @F1@\n1 FAMS @F3@\n"
    "0 @I5@ INDI\n1 NAME Public04 /Public05/\n1 BIRT\n2 DATE 1926\n1 FAMS @F2@\n"
    "0 @I6@ INDI\n1 NAME Secret14 /Secret15/\n1 BIRT\n2 DATE 1940\n1 FAMS @F2@\n"
    "0 @I7@ INDI\n1 NAME Public06 /Public07/\n1 BURI\n1 FAMS @F3@\n1 SOUR @S2@\n"
    "0 @I8@ INDI\n1 NAME Public08 /Public09/\n1 FAMC @F3@\n"
    "0 INDI\n1 NAME Secret16\n1 BIRT\n2 DATE 2000\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n1 MARR\n2 PLAC Secret17\n2 SOUR @S3@\n"
    "0 @F2@ FAM\n1 HUSB @I5@\n1 WIFE @I6@\n1 CHIL @I1@\n1 MARR\n2 PLAC Public10\n"
    "0 @F3@ FAM\n1 HUSB @I7@\n1 WIFE @I4@\n1 CHIL @I8@\n1 MARR\n2 PLAC Public11\n"
    "0 @S1@ SOUR\n1 TITL Secret18\n1 NOTE @N1@\n0 @N1@ NOTE Secret19\n0 @S2@ SOUR\n1 TITL Public12\n"
    "0 @S3@ SOUR\n1 TITL Secret20\n0 TRLR\n";

struct Hiding : TestMain {
    Text List(int format) {
        main.cboSaveSwift.SetListIndex(format);
        files.contents["model"] = "<tr><td>%ELEMENT%</td></tr><tr><td>%ELEMENT%</td></tr>";
        main.cboFileModel.SetText("model");
        dialogs.files = {"list"};
        main.cmdSaveSwift.Click();
        return files.contents["list"];
    }
    Text Extract() {
        for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) main.lvwIn.Item(i).SetSelected(true);
        dialogs.files = {"out.ged"};
        main.cmdSaveGed.Click();
        return files.contents["out.ged"];
    }
    /// The page and the printed sheet of all paths from somebody, and the name that a file of them gets.
    Text Drawings(TextView from, TextView to) {
        main.kinshipRequest.FindPathBetween(from, to);
        main.cmdCopyTitle2kinship.Click();
        Text told = main.cboKinship.Get();
        dialogs.files = {"kin.html"};
        main.cmdDrawKinship.Click();
        main.ShowTab(Tab::Kinship);
        main.cmdPrintKinship.Click();
        for (const PrintedText& text : preview.texts) told += text.text;
        return told + files.contents["kin.html"];
    }
    /// The page of all relatives of somebody.
    Text Relatives(TextView id) {
        main.relatives.Open(id);
        dialogs.files = {"relatives.html"};
        main.relatives.cmdHtml.Click();
        return files.contents["relatives.html"];
    }
};

TEST(Living, NoOutputTellsATextOfThem) {
    for (const bool isCheckedFirst : {true, false}) {
        Hiding t;
        t.main.chkGenerXSL.SetChecked(false);
        t.main.lvwOut.MoveColumn(Out::Number, Out::kEnd - 1);
        t.main.chkPrivate.SetChecked(isCheckedFirst);
        t.ReadAndList(WithCrLf(kTree));
        EXPECT_EQ(t.main.lvwOut.Count(), isCheckedFirst ? 4 : 9);
        t.main.chkPrivate.SetChecked(true);
        const Text list = Concat({t.List(0), t.List(2)}), extract = t.Extract();
        const Text relatives = Concat({t.Relatives("@I1@"), t.Relatives("@I8@")});
        EXPECT_NE(relatives.find("Public01"), Text::npos) << relatives;
        EXPECT_NE(relatives.find("Public06"), Text::npos) << relatives;
        const Text outputs =
            Concat({list, extract, relatives, t.Drawings("@I8@", "@I5@"), t.Drawings("@I2@", "@I3@")});
        EXPECT_EQ(outputs.find("Secret"), Text::npos) << outputs.substr(outputs.find("Secret"), 40);
        for (char tens = '0'; tens < '2'; ++tens) {
            for (char ones = '0'; ones <= '9'; ++ones) {
                const Text told{'P', 'u', 'b', 'l', 'i', 'c', tens, ones};
                EXPECT_EQ(extract.find(told) != Text::npos, kTree.find(told) != TextView::npos) << told;
            }
        }
        EXPECT_NE(list.find("Public08"), Text::npos) << "one pass: who is hidden for kin hides nobody else";
        EXPECT_NE(extract.find(WithCrLf("0 @I1@ INDI\n1 NAME Vivant //\n1 SEX M\n1 FAMS @F1@\n1 FAMC @F2@\n"
                                        "0 @I2@ INDI\n1 NAME Vivant //\n1 FAMS @F1@\n0 @I3@")),
                  Text::npos);
        EXPECT_NE(
            extract.find(WithCrLf("0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n0 ")),
            Text::npos);
        EXPECT_NE(outputs.find("[Vivant] et [Public01"), Text::npos);
        t.main.chkPrivate.SetChecked(false);
        EXPECT_NE(t.List(0).find("Secret01"), Text::npos);
        EXPECT_EQ(t.main.trail.Reports(), 0);
    }
}

}  // namespace
}  // namespace swiftroll::test
