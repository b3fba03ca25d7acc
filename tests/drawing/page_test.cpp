// The drawing commands: the texts of the cells, the page, and what goes wrong.
#include "drawing/cell_texts.h"
#include "kinship/kinship_fixture.h"

namespace swiftroll::test {
namespace {

using modKinshipOutput::CellTexts;
using modKinshipOutput::TakeDateFromTo;

/// A couple and a child, with places and dates.
constexpr TextView kCouple =
    "0 @I1@ INDI\n1 NAME Jean /Le Gall/\n1 SEX M\n1 BIRT\n2 DATE 1820\n2 PLAC Brest, Finistère\n1 DEAT\n2 "
    "PLAC Brest\n"
    "0 @I2@ INDI\n1 NAME /Péron/\n1 SEX F\n1 BIRT\n2 DATE BET 1822 AND 1824\n"
    "0 @I3@ INDI\n1 NAME Yves /Le Gall/\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 MARR\n2 DATE 1845\n2 PLAC Quimper\n"
    "0 @F2@ FAM\n1 HUSB @I1@\n0 TRLR\n"_t;

struct Couple : AfterRead {
    Couple() : AfterRead(WithCrLf(kCouple)) {}
    CellTexts Texts() { return {{main, main, main, nobody}, font}; }
    Text Person(TextView id) { return Texts().IndividualInfos(id); }
    Text Marriage(TextView id) { return Texts().FamilyInfos(id); }
    void SetAll(bool on) {
        for (CheckBox* box :
             {&main.chkIndiID, &main.chkIndiBirthDate, &main.chkIndiBirthPlace, &main.chkIndiDeathDate,
              &main.chkIndiDeathPlace, &main.chkMarrID, &main.chkMarrDate, &main.chkMarrPlace}) {
            box->SetChecked(on);
        }
    }
    /// Draws by the command of a place in the list, into "kin.html"; the page.
    Text Draw(int mode) {
        dialogs.files = {"kin.html"};
        main.cboDrawKinship.SetListIndex(mode);
        main.cmdDrawKinship.Click();
        return files.contents["kin.html"];
    }
    CellFont font;
    const modPrivacy::Living nobody{main, main, clock};
};

TEST(CellTexts, TellWhatTheOptionsAskFor) {
    Couple t;
    const Text id = "<p class=Right style=\"text-align: right\">@I1@</p>";
    EXPECT_EQ(t.Person("@I1@"), Concat({"Jean, LE GALL<br>°1820  Brest, Finistère<br>+?  Brest"_t, id}));
    EXPECT_EQ(t.Person("@I2@"),
              ", PÉRON<br>°1822-1824  <p class=Right style=\"text-align: right\">@I2@</p>"_t);
    EXPECT_EQ(t.Marriage("@F1@"), "x 1845  Quimper<p class=Right style=\"text-align: right\">@F1@</p>");
    t.main.chkIndiID.SetChecked(false);
    t.main.chkMarrID.SetChecked(false);
    t.main.chkIndiDeathDate.SetChecked(false);
    t.main.optFullName.SetIndex(1);
    t.main.txtPlaceFormat.SetText("%1");
    EXPECT_EQ(t.Person("@I1@"), "LE GALL<br>°1820  Brest<br>+ Brest"_t);
    t.font = {.name = "Arial", .size = "9", .bold = true, .italic = true, .underline = true};
    t.main.chkIndiBirthPlace.SetChecked(false);
    EXPECT_EQ(t.Person("@I2@"), "<b><u><i>PÉRON</i></u></b><br>°1822-1824 "_t);
    EXPECT_EQ(t.Marriage("@F2@"), "");
    t.main.lvwFamily.Item("@F1@").SetCell(Family::MarrMin, TextView());
    EXPECT_EQ(t.Marriage("@F1@"), "x  Quimper") << "a first year that is missing hides the second";
    t.SetAll(false);
    EXPECT_EQ(t.Person("@I2@"), "<b><u><i>PÉRON</i></u></b>"_t);
    EXPECT_EQ(t.Marriage("@F1@"), "");
    EXPECT_EQ(t.main.trail.Reports(), 0);
    EXPECT_EQ(t.Person("@I9@"), "");
    EXPECT_EQ(t.Marriage("@F9@"), "");
    EXPECT_EQ(t.main.trail.Reports(), 2);
    EXPECT_EQ(TakeDateFromTo("", "1825"), "?-1825");
    EXPECT_EQ(TakeDateFromTo("", ""), "?");
    EXPECT_EQ(modKinshipOutput::Long2Color(0x0080C0FF), "#FFC080");
    EXPECT_EQ(modKinshipOutput::Long2Color(255), "#FF0000");
}

TEST(KinshipPage, IsWrittenByteForByte) {
    Couple t;
    t.main.kinshipRequest.FindPathBetween("@I3@", "@I2@");
    t.SetAll(false);
    t.main.txtKinH.SetText("150");
    const TextView head =
        "<HTML>\n<HEAD>\n<style type=\"text/css\">\n<!--\n"
        "p       { margin-top: 0; margin-bottom: 0 }\np.Right { text-align: right }\n"
        "table   { position: absolute; border-spacing: 0; cellpadding: 0; cellspacing: 0; font:8pt "
        "\"Arial\"; "
        "color:#000000}\n"
        "table.IndivMBox  { border: 1pt solid black; text-align: Center; margin-top: 0pt; margin-bottom: "
        "1pt; "
        "background-color:#FFC080}\n"
        "table.IndivFBox  { border: 1pt solid black; text-align: Center; margin-top: 0pt; margin-bottom: "
        "1pt; "
        "background-color:#80FFFF}\n"
        "table.IndivUBox  { border: 1pt solid black; text-align: Center; margin-top: 0pt; margin-bottom: "
        "1pt; "
        "background-color:#FFFFFF}\n"
        "table.SpouseLine { border: 2pt double black; text-align: Center; margin-top: 0pt; margin-bottom: "
        "1pt; "
        "border-top: 0pt; border-left: 0pt; border-right: 0pt }\n"
        "table.ChildVLine { border: 1pt solid black; border-top: 0pt; border-bottom: 0pt; border-left: 0pt "
        "}\n"
        "table.ChildHLine { border: 1pt solid black;  border-bottom: 0pt }\n"
        "table.hr { border: 1pt solid red;  border-bottom: 0pt;  border-left: 0pt;  border-right: 0pt }\n"
        "-->\n</style>\n<title>Liens de Parenté entre [Yves, LE GALL] et [, PÉRON]</title>\n</HEAD><BODY>\n"_t;
    const TextView drawing =
        "<table class=IndivMBox style=\"top:10;left:10;height:80;width:150\"><tr><td>Jean, LE "
        "GALL</td></tr></table>\n"
        "<table class=SpouseLine "
        "style=\"top:10;left:160;height:64;width:150\"><tr><td>&nbsp;</td></tr></table>\n"
        "<table class=IndivFBox style=\"top:10;left:310;height:80;width:150\"><tr><td>, "
        "PÉRON</td></tr></table>\n"
        "<table class=ChildVLine "
        "style=\"top:75;left:160;height:45;width:75\"><tr><td>&nbsp;</td></tr></table>\n"
        "<table class=IndivUBox style=\"top:120;left:160;height:80;width:150\"><tr><td>Yves, LE "
        "GALL</td></tr></table>\n"
        "<table class=hr style=\"top:220; left:0; height:1; width:460\"><tr><td>&nbsp;</td></tr></TABLE>\n"_t;
    const TextView foot =
        "<table style=\"left:0; top:230\"><tr><td><p><font size=\"1\" color=\"#000000\">Généré par "
        "<a href=\"https://swiftroll.example\">SwiftRoll</a> (v3.4.0) le "
        "22/11/2026</font></p></td></tr></table>"
        "</BODY></HTML>\n"_t;
    EXPECT_EQ(t.Draw(3), WithCrLf(Concat({head, drawing, foot})));
    EXPECT_EQ(t.main.pnlMessage.Get(), "Liens de Parenté entre [Yves, LE GALL] et [, PÉRON] : Terminé"_t);
    EXPECT_EQ(t.main.cboKinship.Get(), "kin.html");
    EXPECT_FALSE(t.main.bWaitCursor);
    EXPECT_EQ(t.main.lvwKinship.SortKey(), Kinship::NrSpouses);

    // A single path from the rows that are marked, each a drawing of its own.
    for (std::int32_t i = 1; i <= t.main.lvwKinship.Count(); ++i) t.main.lvwKinship.Item(i).SetChecked(true);
    t.main.txtFont.SetText("Times|10,5|1|1|0|0|255");
    EXPECT_EQ(t.main.lblFont.Caption, "Times, 10,5 pt, Gras, Italique");
    t.main.txtKinshipLandscape.SetChecked(false);
    const Text page = t.Draw(0);
    EXPECT_NE(page.find("font:italic 10.5pt \"Times\"; color:#FF0000}"), Text::npos);
    EXPECT_NE(page.find("table.ChildHLine { border: 1pt solid black;  border-right: 0pt }"), Text::npos);
    EXPECT_EQ(Split(page, "class=hr style").size(), 3u) << "two people, and no drawing of the separator";
    EXPECT_NE(page.find("<b><i>, PÉRON</i></b>"_t), Text::npos);
}

TEST(KinshipPrint, TextsAreThoseOfThePageWithoutItsTags) {
    AfterRead t({"A m", "B m"}, {"A - B"});
    t.Find("A", "B");
    t.main.txtKinH.SetText("150");
    t.main.chkIndiID.SetChecked(false);
    t.main.txtFont.SetText("Arial|9|1|0|1|0|255");
    t.main.cboDrawKinship.SetListIndex(3);
    t.main.cmdPrintKinship.Enabled = true;
    t.main.cmdPrintKinship.Click();
    std::vector<Text> texts;
    for (const PrintedText& text : t.preview.texts) {
        texts.push_back(text.text);
        EXPECT_FALSE(text.font.strikethrough);
    }
    EXPECT_EQ(texts, Rows({"A, DE A", "@F1@", "?", "B, DE B"})) << "the marriage between the spouses";
    EXPECT_EQ(t.preview.texts.at(1).side, TextSide::Right);
    EXPECT_TRUE(t.preview.texts.at(0).font.bold);
}

TEST(KinshipPage, WithoutPathsNoFileIsCreated) {
    Couple t;
    t.main.kinshipRequest.FindPathBetween("@I3@", "@I2@");
    t.dialogs.boxes.clear();
    EXPECT_EQ(t.Draw(0), "") << "no row is marked";
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_EQ(t.dialogs.boxes[0].title, "Graphicage des parentés"_t);
    EXPECT_EQ(t.dialogs.boxes[0].text, "Aucune parenté à écrire.\r\nFichier non créé."_t);
    // Without a name nothing happens.
    t.main.cmdDrawKinship.Click();
    EXPECT_EQ(t.dialogs.boxes.size(), 1u);
}

TEST(KinshipPage, WhatCannotBeWrittenIsTold) {
    Couple t;
    t.main.kinshipRequest.FindPathBetween("@I3@", "@I2@");
    t.dialogs.boxes.clear();
    t.files.room = 100;
    const Text page = t.Draw(2);
    EXPECT_EQ(page.size(), 100u) << "as far as it was written";
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_EQ(t.dialogs.boxes[0].title, "SwiftRoll (v3.4.0) - Kinship");
    EXPECT_TRUE(t.dialogs.boxes[0].text.starts_with("Erreur d'écriture dans le fichier kin.html.\r\n"_t));
    EXPECT_FALSE(t.main.bWaitCursor);
    t.main.txtKinWidth.SetText("wide");
    t.Draw(2);
    EXPECT_EQ(t.main.trail.Reports(), 1) << "a size that is no number";
}

TEST(KinshipPage, CouplesNeedGapsAsWideAsBoxes) {
    Couple t;
    t.main.kinshipRequest.FindPathBetween("@I3@", "@I2@");
    const struct {
        bool across;
        BoxAnswer answer;
        TextView width, height, horizontal, vertical;
    } cases[] = {{true, BoxAnswer::Yes, "50", "80", "50", "30"},
                 {true, BoxAnswer::No, "150", "80", "150", "30"},
                 {true, BoxAnswer::Cancel, "150", "80", "50", "30"},
                 {false, BoxAnswer::Yes, "150", "30", "50", "30"},
                 {false, BoxAnswer::No, "150", "80", "50", "80"}};
    for (const auto& c : cases) {
        t.main.txtKinWidth.SetText("150");
        t.main.txtKinHeight.SetText("80");
        t.main.txtKinH.SetText("50");
        t.main.txtKinV.SetText("30");
        t.main.txtKinshipLandscape.SetChecked(c.across);
        t.files.contents.erase("kin.html");
        t.dialogs.boxes.clear();
        t.dialogs.answers = {c.answer};
        t.Draw(3);
        EXPECT_EQ(t.files.contents["kin.html"].empty(), c.answer == BoxAnswer::Cancel);
        const auto& box = t.dialogs.boxes.at(0);
        EXPECT_EQ(box.title, c.across ? "SwiftRoll (v3.4.0) - Inégalité hargeurs && écarts"_t
                                      : "SwiftRoll (v3.4.0) - Inégalité hauteurs && écarts"_t);
        EXPECT_EQ(box.text,
                  c.across
                      ? "Pour afficher les conjoints en mode horizontal, il est nécessaire que la largeur "
                        "des boîtes (=150)\r\nsoit égale à l'écart horizontal entre elles (=50)\r\n\r\n"
                        "Oui = Changer la largeur des boîtes\r\n"
                        "Non = Changer l'écart horizontal entre les boîtes\r\n"
                        "Cancel = Arrêter la génération"_t
                      : "Pour afficher les conjoints en mode vertical, il est nécessaire que la hauteur "
                        "des boîtes (=80)\r\nsoit égale à l'écart vertical entre elles (=30)\r\n\r\n"
                        "Oui = Changer la hauteur des boîtes\r\n"
                        "Non = Changer l'écart vertical entre les boîtes\r\n"
                        "Cancel = Arrêter la génération"_t);
        EXPECT_EQ(t.main.txtKinWidth.Get(), c.width);
        EXPECT_EQ(t.main.txtKinHeight.Get(), c.height);
        EXPECT_EQ(t.main.txtKinH.Get(), c.horizontal);
        EXPECT_EQ(t.main.txtKinV.Get(), c.vertical);
    }
}

TEST(DrawingOptions, AreSetByTheirDialogs) {
    Couple t;
    t.main.kinshipRequest.FindPathBetween("@I3@", "@I2@");
    t.main.cboKinship.SetText("dir/x.html");
    t.main.kinshipSearch.sKinshipPair = "[A/B, \"C\"] et [D: *E?, F]";
    t.main.cmdCopyTitle2kinship.Click();
    EXPECT_EQ(t.main.cboKinship.Get(), "dir/Parenté [A B,  C ] et [D   E , F].html"_t);
    t.main.cboKinship.SetText("x.html");
    t.main.cboSwiftOut.SetText("lists\\y.html");
    t.main.cmdCopyTitle2kinship.Click();
    EXPECT_TRUE(t.main.cboKinship.Get().starts_with("lists\\Parenté ["_t));

    t.main.cmdColorMale.OnClick();
    EXPECT_EQ(t.main.cmdColorMale.Colour(), 0x0080C0FFu) << "cancelled";
    t.dialogs.colour = 0x010203;
    t.main.cmdColorMale.OnClick();
    EXPECT_EQ(t.main.cmdColorMale.Colour(), 0x010203u);
    t.dialogs.font =
        CellFont{.name = "Courier", .size = "12", .strikethrough = true, .underline = true, .colour = 16};
    t.main.lblFont.OnDblClick();
    EXPECT_EQ(t.main.txtFont.Get(), "Courier|12|0|0|1|1|16");
    EXPECT_EQ(t.main.lblFont.Caption, "Courier, 12 pt, Barré, Souligné"_t);
    for (const TextView text :
         {"", "Text1", "Arial|0|0|0|0|0|0", "Arial|8|0|0|0|0", "Arial|8|0|0|0|0|red", "|8|0|0|0|0|0"}) {
        EXPECT_FALSE(ParseCellFont(text)) << text;
    }
    t.main.picTreeV.Click();
    EXPECT_FALSE(t.main.txtKinshipLandscape.Checked());
    t.main.picTreeH.Click();
    EXPECT_TRUE(t.main.txtKinshipLandscape.Checked());
    t.main.cboDrawKinship.SetListIndex(1);
    EXPECT_EQ(t.main.cmdDrawKinship.Caption, "Ecrire Une +");
}

}  // namespace
}  // namespace swiftroll::test
