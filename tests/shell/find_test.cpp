// The search dialog.
#include "shell/lists_fixture.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;

struct Find : Lists {
    Find() {
        Point(main.lvwIn, -1, In::LastName - 1);
        main.contextMenu.ModifyContextMenu();
        main.mnuFind.Click();
        main.findDialog.Activate();
    }
    frmFind& Dialog() { return main.findDialog; }
    /// Writes the texts of both conditions, looks from the top on, and gives the rows found one after the
    /// other: "134".
    Text Look(TextView first, TextView second = {}) {
        Dialog().cboTextToFind[0].SetText(first);
        Dialog().cboTextToFind[1].SetText(second);
        Mark(*main.lvwActiveListView, Text(static_cast<std::size_t>(main.lvwActiveListView->Count()), '.'));
        Text found;
        main.lvwActiveListView->OnEnsureVisible = [&](const Row& row) { found += Decimal(row.Index()); };
        Dialog().cmdFind.Click();
        while (main.pnlMessage.Get().empty() && found.size() < 10) Dialog().cmdFindNext.Click();
        EXPECT_EQ(main.pnlMessage.Get(), "Non trouvé !"_t);
        main.lvwActiveListView->OnEnsureVisible = nullptr;
        return found;
    }
    void Options(bool ignoreCase, bool delAccents) {
        main.chkIgnoreCase.SetChecked(ignoreCase);
        main.chkDelAccents.SetChecked(delAccents);
    }
};

TEST_F(Find, ComparesAsTheOptionsTell) {
    const struct {
        bool ignoreCase, delAccents;
        int way;  // whole, beginning, anywhere
        int column;
        TextView text, found;
    } cases[] = {{false, false, 1, In::LastName, "DUP", "3"},
                 {true, false, 1, In::LastName, "dup", "134"},
                 {true, false, 0, In::LastName, "dup", ""},
                 {true, false, 0, In::LastName, "dupont", "134"},
                 {true, false, 2, In::LastName, "PON", "134"},
                 {false, true, 0, In::FirstName, "Jean Pierre", "1"},
                 {false, false, 0, In::FirstName, "Jean Pierre", ""},
                 {false, true, 0, In::FirstName, "Elise", "2"},
                 {false, false, 1, In::LastName, "", "12345"},
                 {false, false, 2, In::BirthPlace, "", "14"},
                 {false, false, 0, In::BirthPlace, "", "235"}};
    for (const auto& c : cases) {
        Options(c.ignoreCase, c.delAccents);
        Dialog().optSearch[static_cast<std::size_t>(c.way)].SetValue(true);
        Dialog().cboColumns[0].SetListIndex(c.column - 1);
        EXPECT_EQ(Look(c.text), c.found) << c.text;
    }
    EXPECT_TRUE(Dialog().optSearch[4].Value()) << "the ways of the two conditions are apart";
}

TEST_F(Find, BothConditionsHoldInOneRow) {
    Dialog().cboColumns[1].SetListIndex(In::FirstName - 1);
    EXPECT_EQ(Look("dupont", "paul"), "3");
    EXPECT_EQ(Look("dupont", "jean"), "1");
    Dialog().optSearch[5].SetValue(true);
    EXPECT_EQ(Look("dupont", "A"), "134");
    Dialog().optSearch[3].SetValue(true);
    EXPECT_EQ(Look("dupont", "jean"), "");
    EXPECT_EQ(Look("dupont", "-"), "134") << "what folds to nothing is no condition";
}

TEST_F(Find, GoesOnFromTheRowFoundAndKeepsOtherMarks) {
    EXPECT_EQ(Look("dupont"), "134");
    EXPECT_EQ(Marks(main.lvwIn), "s.ss.");
    main.lvwIn.Item(5).SetChecked(true);
    // A failed search does not move; the menu goes on from there without the dialog.
    main.mnuFindNext.Click();
    EXPECT_EQ(main.pnlMessage.Get(), "Non trouvé !"_t);
    Dialog().cboTextToFind[0].SetText("le gall");
    main.mnuFindNext.Click();
    EXPECT_EQ(main.pnlMessage.Get(), "");
    EXPECT_EQ(Marks(main.lvwIn), "s.ssb");
    Dialog().cmdDeselectAll.Click();
    EXPECT_EQ(Marks(main.lvwIn), ".....");
    // A right click in another column does not change what the menu goes on with.
    Dialog().cboTextToFind[0].SetText("dupont");
    Dialog().cmdFind.Click();
    Point(main.lvwIn, 3, In::FirstName - 1);
    main.contextMenu.ModifyContextMenu();
    main.mnuFindNext.Click();
    EXPECT_EQ(Marks(main.lvwIn), "s.s..");
    Dialog().cboTextToFind[0].SetText("le gall");
    // The table that is active at the moment is searched, with the clicked column.
    main.ShowTab(Tab::Out);
    Dialog().cmdFind.Click();
    EXPECT_EQ(Marks(main.lvwOut), ".s.");
    main.ShowTab(Tab::FamilyXref);
    Dialog().cboColumns[0].SetListIndex(10);
    main.selection.find.lFindNext = 0;
    main.mnuFindNext.Click();
    ASSERT_EQ(dialogs.boxes.size(), 1u) << "a column that the table lacks is told";
    EXPECT_NE(dialogs.boxes[0].text.find("|lvwFamilyXref/-1/?N/"), Text::npos) << dialogs.boxes[0].text;
    EXPECT_FALSE(main.bWaitCursor);
}

TEST_F(Find, TheDialogFollowsTheTableAndTheCell) {
    EXPECT_TRUE(Dialog().Visible());
    EXPECT_EQ(Dialog().Caption, "Rechercher...");
    EXPECT_EQ(Dialog().cboTextToFind[0].Get(), "");
    EXPECT_EQ(Dialog().cboColumns[0].Get(), "Nom");
    EXPECT_EQ(Dialog().lblFind.Caption,
              "ABC=abc\r\nCompare sans accents, ni ponctuation, ni caractères spéciaux"_t);
    EXPECT_EQ(Dialog().ActiveControl(), &Dialog().cboTextToFind[0]);
    EXPECT_TRUE(Dialog().optSearch[1].Value() && Dialog().optSearch[4].Value());
    // The text gets into the history when it is left.
    Dialog().cboTextToFind[0].SetText("  dupont ");
    Dialog().SetFocus(Dialog().cmdFind);
    EXPECT_EQ(Dialog().cboTextToFind[0].Items(), Texts{"dupont"});
    Dialog().cboTextToFind[1].SetText("x");
    Dialog().cboColumns[1].SetListIndex(6);
    Dialog().cmdFindNext.Click();
    Options(false, true);
    Point(main.lvwFamilyXref, 1, FamilyXref::Indi - 1);
    main.contextMenu.ModifyContextMenu();
    main.mnuFind.Click();
    EXPECT_EQ(Dialog().cboTextToFind[0].Get(), main.lvwFamilyXref.Item(2).Cell(FamilyXref::Indi));
    EXPECT_EQ(Dialog().cboTextToFind[1].Get(), "");
    Dialog().Activate();
    EXPECT_EQ(Dialog().lblFind.Caption, main.chkDelAccents.Caption);
    EXPECT_EQ(Dialog().cboColumns[0].Get(), "Individu");
    EXPECT_EQ(Dialog().cboColumns[0].Items().size(), 6u);
    EXPECT_EQ(Dialog().cboColumns[1].Get(), "ID Famille") << "the table has no seventh column";
    // Where the stored column is too big for the first condition, too, and without any table.
    main.selection.context.iClickedCol = In::IslandNr;
    Dialog().Activate();
    EXPECT_EQ(Dialog().cboColumns[0].ListIndex(), 0);
    main.lvwActiveListView = nullptr;
    main.mnuFind.Click();
    Dialog().Activate();
    Dialog().cmdFind.Click();
    EXPECT_EQ(Dialog().cboTextToFind[0].Get(), "");
    EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace swiftroll::test
