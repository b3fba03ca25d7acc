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
    combo.SetFromText("  F10 ");
    EXPECT_EQ(combo.Items(), (Texts{"F10", "f12", "f11", "f9", "f8", "f7", "f6", "f5", "f4", "f3"}));
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
            EXPECT_TRUE(
                dialogs.boxes[0].text.starts_with(Text("Vous allez écraser le fichier "_t) + Text(role)));
            EXPECT_EQ(combo->Get(), "before");
            combo->SetText(own);
        }
        owner->SetText(role);
    }
}

TEST_F(FileCombos, TheFocusGoesBackToTheComboAndItsEarlierText) {
    main.cboGedIn.SetText("in.ged");
    main.cboSwiftOut.SetText("out.html");
    main.SetFocus(main.cboSwiftOut);
    for (std::size_t time = 1; time <= 2; ++time) {
        main.cboSwiftOut.SetText("in.ged");
        main.SetFocus(main.cboGedIn);
        EXPECT_EQ(dialogs.boxes.size(), time);
        EXPECT_EQ(main.cboSwiftOut.Get(), "out.html");
        EXPECT_EQ(main.ActiveControl(), &main.cboSwiftOut);
    }
    // Where the same text stood before, nothing is left.
    main.cboGedOut.SetText("in.ged");
    main.SetFocus(main.cboGedOut);
    main.SetFocus(main.txtINDEX);
    EXPECT_EQ(main.cboGedOut.Get(), "");
    EXPECT_EQ(main.cboGedIn.Get(), "in.ged");
}

TEST_F(FileCombos, TheOutputDerivedFromTheInputIsNeverAnotherFile) {
    main.cboSwiftOut.SetText("");
    for (const char* input : {"/gens/a.ged", "/gens/b.ged"}) {
        main.cboGedIn.SetFromText(input);
        EXPECT_EQ(main.cboSwiftOut.Get(), "/gens/a.txt");
    }
    main.cboSwiftOut.SetText("");
    main.cboFileModel.SetText("/gens/c.txt");
    main.cboGedIn.SetText("/gens/c.ged");
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
    dialogs.files = {"g.ged"};
    files.contents["g.ged"];
    main.cmdSelectDirGedIn.Click();
    EXPECT_FALSE(main.bDialogCancelled);
    EXPECT_EQ(main.cboGedIn.Get(), "g.ged");
    EXPECT_EQ(main.ActiveControl(), &main.cboGedIn);
    main.cmdSelectDirModel.Click();
    main.optOutExtension.SetIndex(2);
    main.cmdSelectDirSwiftOut.Click();
    Texts requests;
    for (const auto& request : dialogs.fileRequests) {
        requests.push_back((request.save ? "save " : "open ") + request.fileName + " " + request.filter);
    }
    EXPECT_EQ(requests,
              (Texts{"open C:\\*.ged Gedcom (*.ged)|*.ged|Tous (*.*)|*.*",
                     "open C:\\*.ged Gedcom (*.ged)|*.ged|Tous (*.*)|*.*",
                     "open /models/SwiftRoll.Modele.txt Fichiers Texte  (*.txt)|*.txt|Tous (*.*)|*.*",
                     "save /docs/g.xml XML (*.xml)|*.xml|Tous (*.*)|*.*"}));
}

TEST_F(FileCombos, AnExistingFileIsAskedFor) {
    files.contents["old"] = files.contents["older"] = "x";
    const Text before = main.cboSwiftOut.Get();
    const struct {
        std::deque<Text> chosen;
        std::deque<BoxAnswer> answers;
        std::size_t boxes;
        bool cancelled;
        Text name;
    } cases[] = {{{"old"}, {BoxAnswer::No}, 1, true, before},
                 {{"old"}, {BoxAnswer::Yes}, 1, false, "old"},
                 {{"old", "older"}, {BoxAnswer::No, BoxAnswer::Cancel}, 2, true, "older"},
                 {{"old", "new"}, {BoxAnswer::No}, 1, false, "new"}};
    for (const auto& c : cases) {
        dialogs.boxes.clear();
        dialogs.files = c.chosen;
        dialogs.answers = c.answers;
        main.cmdSelectDirSwiftOut.Click();
        ASSERT_EQ(dialogs.boxes.size(), c.boxes);
        EXPECT_EQ(dialogs.boxes[0].text, "Le fichier existe déjà\r\nold\r\nVoulez-vous l'écraser ?"_t);
        EXPECT_EQ(main.bDialogCancelled, c.cancelled);
        EXPECT_EQ(main.cboSwiftOut.Get(), c.name);
    }
}

void Type(TextBox& box, TextView text) {
    box.SetText(text);
    box.LoseFocus();
}

TEST(OptionRules, LimitsAreNumbersOfAtLeastOne) {
    const struct {
        TextView typed, whenChecked, whenNot;
    } cases[] = {{" 12 ", "12", "12"},  {"0", "1", "1"},          {"-3", "1", "1"},   {"0,5", "1", "1"},
                 {"2.5", "2.5", "2.5"}, {"1.2.3", "50", "1.2.3"}, {" y ", "50", "y"}, {"", "50", ""}};
    for (const auto& c : cases) {
        TestMain t;
        for (const auto& [check, limit] : {std::pair{&t.main.chkMaxLinks, &t.main.txtMaxLinks},
                                           std::pair{&t.main.chkMaxSpouses, &t.main.txtMaxSpouses}}) {
            Type(*limit, c.typed);
            EXPECT_EQ(limit->Get(), c.whenNot) << c.typed;
            check->SetChecked(true);
            EXPECT_EQ(limit->Get(), c.whenNot.empty() ? "50" : c.whenNot) << c.typed;
            Type(*limit, c.typed);
            EXPECT_EQ(limit->Get(), c.whenChecked) << c.typed;
        }
    }
}

TEST(OptionRules, TheIndexLengthIsComparedAsText) {
    TestMain t;
    for (const auto& [typed, kept] : std::initializer_list<std::pair<TextView, TextView>>{
             {"15", "15"}, {"0", "0"}, {"91", "1"}, {"a", "1"}, {"", "1"}, {"-1", "1"}, {"1x", "1x"}}) {
        Type(t.main.txtINDEX, typed);
        EXPECT_EQ(t.main.txtINDEX.Get(), kept) << typed;
    }
}

}  // namespace
}  // namespace swiftroll::test
