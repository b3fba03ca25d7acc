// Histories, file dialogs, and the rule that no file has two roles.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;

struct FileCombos : testing::Test, TestMain {};

TEST_F(FileCombos, AHistoryHoldsTenNamesTheNewestOnTop) {
    ComboBox& combo = main.cboGedOut;
    for (int i = 1; i <= 12; ++i) combo.SetFromText("f" + Decimal(i));
    EXPECT_EQ(combo.Items(), (Texts{"f12", "f11", "f10", "f9", "f8", "f7", "f6", "f5", "f4", "f3"}));
    combo.SetFromText("  F10 ");
    EXPECT_EQ(combo.Items(), (Texts{"F10", "f12", "f11", "f9", "f8", "f7", "f6", "f5", "f4", "f3"}));
    EXPECT_EQ(combo.Get(), "F10");
    combo.SetListIndex(9);
    combo.LoseFocus();
    EXPECT_EQ(combo.Items(), (Texts{"f3", "F10", "f12", "f11", "f9", "f8", "f7", "f6", "f5", "f4"}));
    EXPECT_EQ(combo.ListIndex(), 0);
    combo.SetFromText("   ");
    EXPECT_EQ(combo.Items().size(), 10u);
    combo.SetItems({});
    combo.SetFromText("Été"_t);
    combo.SetFromText("éTÉ"_t);
    EXPECT_EQ(combo.Items(), Texts{Text("éTÉ"_t)});
}

TEST_F(FileCombos, LeavingTheInputDerivesAnEmptyOutput) {
    main.cboSwiftOut.SetText("");
    main.cboGedIn.SetFromText("/gens/a.ged");
    EXPECT_EQ(main.cboSwiftOut.Get(), "/gens/a.txt");
    main.cboGedIn.SetFromText("/gens/b.ged");
    EXPECT_EQ(main.cboSwiftOut.Get(), "/gens/a.txt");
}

TEST_F(FileCombos, AFileHasOneRole) {
    const std::pair<ComboBox*, TextView> roles[] = {{&main.cboGedIn, "Gedcom en entrée"_t},
                                                    {&main.cboGedOut, "Gedcom en sortie"_t},
                                                    {&main.cboSwiftOut, "Relevé-vif"_t},
                                                    {&main.cboFileModel, "Modèle HTML"_t},
                                                    {&main.cboKinship, "HTML des liens de parentés"_t}};
    for (const auto& [owner, role] : roles) {
        for (const auto& [combo, own] : roles) {
            if (combo == owner) continue;
            owner->SetText("same");
            combo->SetText("before");
            dialogs.boxes.clear();
            combo->SetFromText("Same");
            EXPECT_TRUE(dialogs.boxes.empty());
            combo->SetText("before");
            combo->SetFromText("same");
            ASSERT_EQ(dialogs.boxes.size(), 1u);
            EXPECT_EQ(dialogs.boxes[0].title, main.MainCaption() + " - CheckFileCbo");
            EXPECT_EQ(dialogs.boxes[0].text, Text("Vous allez écraser le fichier "_t) + Text(role) + "\r\n" +
                                                 Text("(Même nom de fichier)"_t));
            EXPECT_EQ(dialogs.boxes[0].icon, BoxIcon::Exclamation);
            EXPECT_EQ(combo->Get(), "before");
            combo->SetText(own);
        }
        owner->SetText(role);
    }
    main.cboGedIn.SetText("same");
    main.cboKinship.SetText("same");
    main.cboGedOut.SetFromText("same");
    EXPECT_NE(dialogs.boxes.back().text.find("HTML des liens"), Text::npos);
}

TEST_F(FileCombos, TheFocusGoesBackToTheComboAndItsEarlierText) {
    main.cboGedIn.SetText("in.ged");
    main.cboSwiftOut.SetText("out.html");
    main.SetFocus(main.cboSwiftOut);
    for (int time = 1; time <= 3; ++time) {
        main.cboSwiftOut.SetText("in.ged");
        main.SetFocus(main.cboGedIn);
        EXPECT_EQ(dialogs.boxes.size(), static_cast<std::size_t>(time));
        EXPECT_EQ(main.cboSwiftOut.Get(), "out.html");
        EXPECT_EQ(main.ActiveControl(), &main.cboSwiftOut);
    }
    EXPECT_EQ(main.cboGedIn.Get(), "in.ged");
}

TEST_F(FileCombos, ATextThatStoodThereBeforeIsEmptied) {
    main.cboGedIn.SetText("in.ged");
    main.cboGedOut.SetText("in.ged");
    main.SetFocus(main.cboGedOut);
    main.SetFocus(main.txtINDEX);
    EXPECT_EQ(main.cboGedOut.Get(), "");
    EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST_F(FileCombos, ADerivedOutputNeverBecomesAnotherFile) {
    main.cboFileModel.SetText("/gens/a.txt");
    main.cboGedIn.SetText("/gens/a.ged");
    main.SetFocus(main.cboGedIn);
    main.SetFocus(main.txtINDEX);
    main.cmdCopyGedIn2SwiftOut.Click();
    EXPECT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(main.cboSwiftOut.Get(), "");
}

TEST_F(FileCombos, DialogsAskForTheFileOfTheirCombo) {
    main.cboGedIn.SetText("C:\\");
    main.cmdSelectDirGedIn.Click();
    EXPECT_TRUE(main.bDialogCancelled);
    EXPECT_EQ(main.cboGedIn.Get(), "C:\\");
    files.contents["g.ged"];
    dialogs.files = {"g.ged"};
    main.cmdSelectDirGedIn.Click();
    EXPECT_FALSE(main.bDialogCancelled);
    EXPECT_EQ(main.cboGedIn.Get(), "g.ged");
    EXPECT_EQ(main.ActiveControl(), &main.cboGedIn);
    main.cmdSelectDirModel.Click();
    main.optOutExtension.SetIndex(2);
    main.cmdSelectDirSwiftOut.Click();
    EXPECT_TRUE(dialogs.boxes.empty());
    const struct {
        bool save;
        TextView title, name, filter;
    } expected[] = {{false, "Choisissez le fichier GEDCOM à charger"_t, "C:\\*.ged",
                     "Gedcom (*.ged)|*.ged|Tous (*.*)|*.*"},
                    {false, "Choisissez le fichier GEDCOM à charger"_t, "C:\\*.ged",
                     "Gedcom (*.ged)|*.ged|Tous (*.*)|*.*"},
                    {false, "Choisissez le fichier modèle sur lequel se baser"_t,
                     "/models/SwiftRoll.Modele.html", "Fichiers Texte  (*.txt)|*.txt|Tous (*.*)|*.*"},
                    {true, "Choisissez le fichier SwiftRoll à écrire"_t, "/docs/.xml",
                     "XML (*.xml)|*.xml|Tous (*.*)|*.*"}};
    ASSERT_EQ(dialogs.fileRequests.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(dialogs.fileRequests[i].save, expected[i].save) << i;
        EXPECT_EQ(dialogs.fileRequests[i].title, expected[i].title) << i;
        EXPECT_EQ(dialogs.fileRequests[i].fileName, expected[i].name) << i;
        EXPECT_EQ(dialogs.fileRequests[i].filter, expected[i].filter) << i;
    }
    EXPECT_EQ(dialogs.fileRequests.back().extension, "xml");
}

TEST_F(FileCombos, AnExistingFileIsAskedFor) {
    files.contents["old"] = files.contents["older"] = "x";
    dialogs.files = {"old"};
    main.cmdSelectDirSwiftOut.Click();
    EXPECT_FALSE(main.bDialogCancelled);
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, main.MainCaption() + " - Fichier existant");
    EXPECT_EQ(dialogs.boxes[0].text, "Le fichier existe déjà\r\nold\r\nVoulez-vous l'écraser ?"_t);
    EXPECT_EQ(dialogs.boxes[0].buttons, BoxButtons::YesNoCancel);

    dialogs.answers = {BoxAnswer::No, BoxAnswer::Cancel};
    dialogs.files = {"old", "older"};
    main.cmdSelectDirSwiftOut.Click();
    EXPECT_TRUE(main.bDialogCancelled);
    EXPECT_EQ(main.cboSwiftOut.Get(), "older");

    dialogs.boxes.clear();
    dialogs.answers = {BoxAnswer::No};
    dialogs.files = {"old", "new"};
    main.cmdSelectDirSwiftOut.Click();
    EXPECT_FALSE(main.bDialogCancelled);
    EXPECT_EQ(main.cboSwiftOut.Get(), "new");
    EXPECT_EQ(dialogs.boxes.size(), 1u);

    dialogs.answers = {BoxAnswer::No};
    dialogs.files = {"old"};
    main.cmdSelectDirSwiftOut.Click();
    EXPECT_TRUE(main.bDialogCancelled);
    EXPECT_EQ(main.cboSwiftOut.Get(), "new");
}

TEST(OptionRules, LimitsAreNumbersOfAtLeastOne) {
    const struct {
        TextView typed, whenChecked, whenNot;
    } cases[] = {{"7", "7", "7"},  {" 12 ", "12", "12"}, {"0", "1", "1"}, {"-3", "1", "1"},
                 {"x", "50", "x"}, {" y ", "50", "y"},   {"", "50", ""}};
    for (const auto& c : cases) {
        TestMain t;
        for (const auto& [check, limit] : {std::pair{&t.main.chkMaxLinks, &t.main.txtMaxLinks},
                                           std::pair{&t.main.chkMaxSpouses, &t.main.txtMaxSpouses}}) {
            limit->SetFromText(c.typed);
            EXPECT_EQ(limit->Get(), c.whenNot) << c.typed;
            check->SetChecked(true);
            EXPECT_EQ(limit->Get(), c.whenNot.empty() ? "50" : c.whenNot) << c.typed;
            limit->SetFromText(c.typed);
            EXPECT_EQ(limit->Get(), c.whenChecked) << c.typed;
        }
    }
}

TEST(OptionRules, TheIndexLengthIsComparedAsText) {
    TestMain t;
    for (const auto& [typed, kept] : {std::pair<TextView, TextView>{"15", "15"},
                                      {"0", "0"},
                                      {"9", "9"},
                                      {"91", "1"},
                                      {"a", "1"},
                                      {"", "1"},
                                      {"-1", "1"},
                                      {"1x", "1x"}}) {
        t.main.txtINDEX.SetFromText(typed);
        EXPECT_EQ(t.main.txtINDEX.Get(), kept) << typed;
    }
}

}  // namespace
}  // namespace swiftroll::test
