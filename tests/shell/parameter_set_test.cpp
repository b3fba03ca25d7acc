// Options under names, and favourites.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;
using Values = std::map<Text, Text, std::less<>>;

struct ParameterSets : testing::Test, TestMain {
    Values& Section(TextView name) { return settings.sections[Text(name)]; }
    /// Types a name and presses the button, which takes the focus.
    void SaveAs(ComboBox& combo, TextView name, Command& button) {
        combo.SetFromText(name);
        button.Click();
    }
};

TEST_F(ParameterSets, ANameBringsBackTheCellsThatWereSavedUnderIt) {
    main.txtKinWidth.SetText("200");
    main.cmdColorMale.SetColour(0x010203);
    main.optFullName.SetIndex(1);
    main.chkMarrID.SetChecked(false);
    main.txtKinshipLandscape.SetChecked(false);
    main.txtFont.SetText("Times|12|1|0|0|0|0");
    SaveAs(main.cboCells, "Large\\r", main.cmdSaveCells);
    EXPECT_EQ(Section("OutCells"), (Values{{"\\Large*r", "Large\\r"}}));
    EXPECT_EQ(Section("OutCells\\Large*r"), (Values{{"Name", "Large\\r"},
                                                    {"Horiz", "50"},
                                                    {"Vertic", "30"},
                                                    {"Height", "80"},
                                                    {"Width", "200"},
                                                    {"FColor", "16777088"},
                                                    {"MColor", "66051"},
                                                    {"UColor", "16777215"},
                                                    {"Landscape", "0"},
                                                    {"optFullName0", "False"},
                                                    {"optFullName1", "True"},
                                                    {"chkIndiID", "1"},
                                                    {"chkIndiBirthDate", "1"},
                                                    {"chkIndiBirthPlace", "1"},
                                                    {"chkIndiDeathDate", "1"},
                                                    {"chkIndiDeathPlace", "1"},
                                                    {"chkMarrID", "0"},
                                                    {"chkMarrDate", "1"},
                                                    {"chkMarrPlace", "1"},
                                                    {"lblFont", "Times, 12 pt, Gras"},
                                                    {"txtFont", "Times|12|1|0|0|0|0"}}));

    // A name that was never saved takes the present options over.
    main.cboCells.SetFromText("Autre");
    EXPECT_EQ(main.txtKinWidth.Get(), "200");
    EXPECT_EQ(Section("OutCells").size(), 1u);
    main.txtKinWidth.SetText("10");
    main.cmdColorMale.SetColour(0);
    main.optFullName.SetIndex(0);
    main.chkMarrID.SetChecked(true);
    main.txtKinshipLandscape.SetChecked(true);
    main.txtFont.SetText("Arial|8|0|0|0|0|0");
    main.cmdSaveCells.Click();
    EXPECT_EQ(main.cboCells.Items(), (Texts{"Autre", "Large\\r"}));

    main.cboCells.SetListIndex(1);
    EXPECT_EQ(main.txtKinWidth.Get(), "200");
    EXPECT_EQ(main.cmdColorMale.Colour(), 0x010203u);
    EXPECT_EQ(main.optFullName.Index(), 1);
    EXPECT_FALSE(main.chkMarrID.Checked());
    EXPECT_FALSE(main.txtKinshipLandscape.Checked());
    EXPECT_EQ(main.lblFont.Caption, "Times, 12 pt, Gras");
    // A pick leaves the order of the names as it is until the combo is left.
    EXPECT_EQ(main.cboCells.Items().front(), "Autre");
    main.cboCells.LoseFocus();
    EXPECT_EQ(main.cboCells.Items().front(), "Large\\r");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ParameterSets, NothingIsSavedUnderANameThatIsNotInTheList) {
    main.cboCells.SetText("typed");
    for (Command* save : {&main.cmdSaveCells, &main.cmdSaveColumns, &main.cmdSavePlace}) save->Click();
    EXPECT_TRUE(settings.sections.empty());
}

TEST_F(ParameterSets, AColourThatIsNoNumberEndsTheLoad) {
    SaveAs(main.cboCells, "a", main.cmdSaveCells);
    Section("OutCells\\a")["Horiz"] = "7";
    Section("OutCells\\a")["FColor"] = "rose";
    Section("OutCells\\a")["chkIndiID"] = "0";
    main.cboCells.SetListIndex(0);
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_TRUE(dialogs.boxes[0].title.ends_with("cboCells_LostFocus"));
    EXPECT_EQ(main.txtKinH.Get(), "7");
    EXPECT_TRUE(main.chkIndiID.Checked());
}

TEST_F(ParameterSets, ASetOfColumnsHoldsSixTables) {
    for (Table* table : main.All()) table->MoveColumn(ColumnId::OfIndex(1), 2);
    SaveAs(main.cboColumns, "c", main.cmdSaveColumns);
    for (Table* table : main.All()) {
        table->MoveColumn(ColumnId::OfIndex(1), 1);
        table->ColumnAt(ColumnId::OfIndex(1)).Width = 1;
    }
    main.cboColumns.SetListIndex(0);
    for (const Table* table : main.All()) {
        const bool isHeld = table != &main.lvwXref1 && !main.IsSummary(table);
        EXPECT_EQ(table->ColumnAt(ColumnId::OfIndex(1)).Position, isHeld ? 2 : 1) << table->Name();
        EXPECT_EQ(table->ColumnAt(ColumnId::OfIndex(1)).Width > 1, isHeld) << table->Name();
    }
}

TEST_F(ParameterSets, ASetOfPlacesHoldsTheirOrder) {
    main.lbOuputPlacesOrder.Move(2, 0);
    main.txtPlaceFormat.SetText("%2");
    SaveAs(main.cboOutPlace, "p", main.cmdSavePlace);
    EXPECT_EQ(
        Section("OutPlace\\p\\lbOuputPlacesOrder"),
        (Values{{"003 Mariage, Divorce,...", "1"}, {"001 Naissance", "2"}, {Text("002 Décès"_t), "3"}}));
    main.cboOutPlace.SetFromText("q");
    main.lbOuputPlacesOrder.Move(0, 2);
    main.txtPlaceFormat.SetText("%0");
    // Keys of a former layout go from every set of the list, and no other key.
    Section("OutPlace\\p")[Text("002 Décès"_t)] = "1";
    Section("OutPlace\\p")["other"] = "1";
    Section("OutPlace\\unlisted")["001 Naissance"] = "1";
    main.cmdSavePlace.Click();
    EXPECT_EQ(Section("OutPlace\\p"),
              (Values{{"Name", "p"}, {"Format", "%2"}, {"Separ", ","}, {"Trim", "1"}, {"other", "1"}}));
    EXPECT_EQ(Section("OutPlace\\unlisted").size(), 1u);

    main.cboOutPlace.SetListIndex(1);
    EXPECT_EQ(main.txtPlaceFormat.Get(), "%2");
    EXPECT_EQ(main.lbOuputPlacesOrder.Items()[0].value, 3);
    // An order of another version leaves the present one alone.
    Section("OutPlace\\q\\lbOuputPlacesOrder")["004 Autre"] = "4";
    main.cboOutPlace.SetListIndex(0);
    EXPECT_EQ(main.txtPlaceFormat.Get(), "%0");
    EXPECT_EQ(main.lbOuputPlacesOrder.Items()[0].value, 3);
}

TEST_F(ParameterSets, NamesAreTheSameWhateverTheirCapitals) {
    main.txtPlaceFormat.SetText("%2");
    SaveAs(main.cboOutPlace, "Tout Petit", main.cmdSavePlace);
    main.cboOutPlace.SetFromText("autre");
    main.txtPlaceFormat.SetText("%0");
    main.cboOutPlace.SetFromText("TOUT petit");
    EXPECT_EQ(main.txtPlaceFormat.Get(), "%2");
    EXPECT_EQ(main.cboOutPlace.Get(), "Tout Petit");
    EXPECT_EQ(main.cboOutPlace.Items(), (Texts{"Tout Petit", "autre"}));
    main.txtPlaceFormat.SetText("%3");
    main.cmdSavePlace.Click();
    EXPECT_EQ(Section("OutPlace"), (Values{{"\\Tout Petit", "Tout Petit"}}));
    EXPECT_EQ(Section("OutPlace\\Tout Petit")["Format"], "%3");
    // A list that another run saved.
    main.cboOutPlace.SetItems({"autre", "tout PETIT"});
    main.txtPlaceFormat.SetText("%0");
    main.cboOutPlace.SetListIndex(1);
    EXPECT_EQ(main.txtPlaceFormat.Get(), "%3");
    EXPECT_EQ(main.cboOutPlace.Items(), (Texts{"autre", "Tout Petit"}));
}

struct Favourites : ParameterSets {
    Favourites() {
        Read("0 @I1@ INDI\r\n1 NAME A /B/\r\n0 @I2@ INDI\r\n1 NAME C /D/\r\n0 TRLR\r\n");
        main.ShowTab(Tab::In);
    }
    ComboBox& Combo() { return main.cboFavorites[0]; }
    void Add(std::int32_t row) {
        main.lvwIn.SetCurrent(main.lvwIn.Item(row));
        main.favorites.mnuAddFavorite_Click();
    }
    /// As a user who goes to the combo, writes a text and leaves it.
    void Edit(TextView text) { Combo().SetFromText(text); }
};

TEST_F(Favourites, ARowHasOneAndItsKeyStays) {
    Add(1);
    Edit("@I1@^mon aïeul"_t);
    Add(2);
    EXPECT_EQ(Combo().Items(), (Texts{"@I2@^", Text("@I1@^mon aïeul"_t)}));
    Edit("@I9@^la branche ^ du Nord");
    EXPECT_EQ(Combo().Get(), "@I2@^la branche ^ du Nord");
    Edit("rien");
    EXPECT_EQ(Combo().Get(), "@I2@^rien");
    Combo().SetListIndex(1);
    Edit("@I1@^Jean");
    EXPECT_EQ(Combo().Items(), (Texts{"@I1@^Jean", "@I2@^rien"}));
    EXPECT_EQ(Combo().ListIndex(), 0);
    Add(2);
    EXPECT_EQ(Combo().Items(), (Texts{"@I2@^", "@I1@^Jean"}));
    EXPECT_TRUE(main.cboFavorites[4].Items().empty());
    main.ShowTab(Tab::Family);
    EXPECT_TRUE(main.cboFavorites[4].Visible && !Combo().Visible);
    main.favorites.mnuAddFavorite_Click();  // no current row
    main.ShowTab(Tab::Options);
    main.favorites.mnuAddFavorite_Click();
    EXPECT_TRUE(main.cboFavorites[4].Visible);
    EXPECT_TRUE(dialogs.boxes.size() == 1) << "only the question of the read";
}

TEST_F(Favourites, GoToTheirRow) {
    int shown = 0;
    main.lvwIn.OnEnsureVisible = [&](const Row& row) { shown = row.Index(); };
    for (const TextView stale : {"", "@I2@", "@I3@^x", "^"}) {
        Combo().SetText(stale);
        main.cmdGotoFavorite.Click();
        EXPECT_EQ(shown, 0) << stale;
    }
    Add(2);
    main.cmdGotoFavorite.Click();
    EXPECT_EQ(shown, 2);
    const Row row = main.lvwIn.Item(2);
    EXPECT_EQ(row.Look().ForeColor, 0xFF00FFu);
    EXPECT_TRUE(row.Look().Bold);
    EXPECT_FALSE(row.Marked());
    desktop.shiftIsDown = true;
    main.ShowTab(Tab::Options);
    main.cmdGotoFavorite.Click();
    EXPECT_FALSE(row.Checked()) << "not from the tabs of options";
    main.ShowTab(Tab::In);
    main.cmdGotoFavorite.Click();
    EXPECT_TRUE(row.Checked());
}

}  // namespace
}  // namespace swiftroll::test
