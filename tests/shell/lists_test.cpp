// The commands on the marks of a table, copies and drags, jumps, and the tabs.
#include "shell/lists_fixture.h"

namespace swiftroll::test {
namespace {

TEST_F(Lists, TheNextMarkedRowIsShownAndTheSortEnds) {
    std::vector<std::int32_t> seen;
    main.lvwIn.OnEnsureVisible = [&](const Row& row) { seen.push_back(row.Index()); };
    Mark(main.lvwIn, "c.cs.");
    Point(main.lvwIn, -1, -1);
    main.lvwIn.SortBy(In::ID, 0);
    for (int i = 0; i < 5; ++i) main.mnuNextSelected.Click();
    EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 3, 4}));
    EXPECT_EQ(Marks(main.lvwIn), "b.bs.");
    EXPECT_EQ(main.lists.lHitRow, 3);
    EXPECT_FALSE(main.lvwIn.Sorted());
}

TEST_F(Lists, CopiesTheMarkedRows) {
    for (Column& column : main.lvwIn.Columns()) {
        if (column.Index > In::BirthPlace || column.Index == In::ID) column.Icon = "OfNo";
    }
    main.lvwIn.MoveColumn(In::FirstName, 1);
    Point(main.lvwIn, 0, 0);
    main.mnuCopy.Click();
    EXPECT_EQ(desktop.clipboard, "Prénom\tNom\tNaiss.Lieu\r\n"_t) << "nothing is marked";
    Mark(main.lvwIn, "s..c.");
    main.mnuCopy.Click();
    EXPECT_EQ(desktop.clipboard,
              "Prénom\tNom\tNaiss.Lieu\r\nJean-Pierre\tDupont\tParis\r\nAnne\tDupont\tPARIS\r\n"_t);
    main.optTabSpace.SetIndex(1);
    main.chkIncludeHeaders.SetChecked(false);
    main.mnuCopy.Click();
    EXPECT_EQ(desktop.clipboard, "Jean-Pierre Dupont  Paris      \r\nAnne        Dupont  PARIS      \r\n");
    EXPECT_EQ(main.lists.DragText(), desktop.clipboard);
    // The links of a kinship search, which nothing has measured.
    Point(main.lvwXref1, 0, 0);
    Mark(main.lvwXref1, "s");
    main.mnuCopy.Click();
    EXPECT_TRUE(desktop.clipboard.starts_with("@I1@ CHIL ") || desktop.clipboard.starts_with("@I1@ "))
        << desktop.clipboard;
    // No table at all.
    EXPECT_TRUE(dialogs.boxes.empty());
    desktop.clipboard = "before";
    main.lvwActiveListView = nullptr;
    main.mnuCopy.Click();
    EXPECT_EQ(main.lists.DragText(), "");
    EXPECT_EQ(desktop.clipboard, "before");
}

TEST_F(Lists, ColumnsAreSwitchedAndResetTogether) {
    const auto icons = [](const Table& table) {
        Text letters;
        for (const Column& column : table.Columns()) letters += column.Icon.substr(0, 2);
        return letters;
    };
    Table& family = main.lvwFamilyXref;
    Point(family, 0, 0);
    family.ColumnAt(Family::IDHusb).Width = 1;
    main.mnuResetCol.Click();
    EXPECT_EQ(family.ColumnAt(Family::IDHusb).Width, 2540);
    main.mnuColUnselect.Click();
    EXPECT_EQ(icons(family), "OfOfOfOfOfOf");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "SwiftRoll (v3.4.0) - Sélection Colonnes"_t);
    // Shift and a click switches one.
    desktop.shiftIsDown = true;
    main.lists.lvw_ColumnClick(family, family.ColumnAt(Family::IDWife));
    EXPECT_EQ(icons(family), "OfOfOnOfOfOf");
    main.mnuColSelect.Click();
    EXPECT_EQ(icons(family), "OnOnOnOnOnOn");
    EXPECT_EQ(dialogs.boxes.size(), 1u);
    desktop.shiftIsDown = false;
    family.SetSorted(false);
    main.lists.lvw_ColumnClick(family, family.ColumnAt(Family::IDWife));
    EXPECT_EQ(family.ColumnAt(Family::IDWife).Icon, "OnDw");
    Point(main.lvwOut, 0, 0);
    const Text before = icons(main.lvwOut);
    main.mnuColUnselect.Click();
    EXPECT_EQ(icons(main.lvwOut), before);
}

TEST_F(Lists, AJumpGoesToWhatTheCellNames) {
    const struct {
        Table& table;
        TextView targets;  // a character a column: the digit of an individual, "F" the family, "." none
    } cases[] = {{main.lvwFamily, ".12.....12."}, {main.lvwFamilyXref, "F.1.F1"},
                 {main.lvwXref, "1.212FF"},       {main.lvwXref1, "....."},
                 {main.lvwKinship, ".333FF.."},   {main.lvwIn, "................."}};
    for (const auto& c : cases) {
        for (std::size_t column = 0; column < c.targets.size(); ++column) {
            for (Table* table : main.Shown())
                Mark(*table, Text(static_cast<std::size_t>(table->Count()), '.'));
            main.SSTab1 = Tab::Options;
            Point(c.table, 0, static_cast<std::int32_t>(column));
            const char target = c.targets[column];
            // Links are sorted or not; the first one that leads from the father to the mother is meant.
            if (&c.table == &main.lvwXref)
                main.lists.HitTest(main.lvwXref.Item("@I1@@I2@").Index() - 1, main.lists.lHitCol.Section());
            main.lists.lvw_DblClick(c.table);
            Text marked = Marks(main.lvwIn) + Marks(main.lvwFamily);
            Text expected(6, '.');
            if (target != '.') expected[target == 'F' ? 5u : static_cast<std::size_t>(target - '1')] = 'b';
            EXPECT_EQ(marked, expected) << c.table.Name() << column;
            EXPECT_EQ(main.SSTab1, target == '.' ? Tab::Options : target == 'F' ? Tab::Family : Tab::In);
            EXPECT_EQ(main.lvwActiveListView, target == '.'   ? &c.table
                                              : target == 'F' ? &main.lvwFamily
                                                              : &main.lvwIn);
        }
    }
    // A cell that names nobody changes only the mark of the row that was current.
    Mark(main.lvwIn, "b..b.");
    main.lvwIn.SetCurrent(main.lvwIn.Item(4));
    main.SSTab1 = Tab::Family;
    main.lvwFamily.Item(1).SetCell(Family::IDHusb, TextView());
    Point(main.lvwFamily, 0, Family::IDHusb - 1);
    main.lists.lvw_DblClick(main.lvwFamily);
    EXPECT_EQ(Marks(main.lvwIn), "b..c.");
    EXPECT_EQ(main.SSTab1, Tab::Family);
    main.bFamiliesRead = false;
    main.lists.HitTest(0, Family::IDWife - 1);
    main.lists.lvw_DblClick(main.lvwFamily);
    main.lists.HitTest(99, Family::IDWife - 1);
    main.bFamiliesRead = true;
    main.lists.lvw_DblClick(main.lvwFamily);
    EXPECT_EQ(Marks(main.lvwIn), "b..c.");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(Lists, ADoubleClickInTheListMarksTheGroups) {
    ASSERT_EQ(RowsOf(main.lvwOut).size(), 3u);
    Mark(main.lvwOut, "c.s");
    Point(main.lvwOut, 1, 0);
    main.lists.lvw_DblClick(main.lvwOut);
    EXPECT_EQ(Marks(main.lvwIn), "bbbb.");
    EXPECT_EQ(main.lvwActiveListView, &main.lvwOut);
    Mark(main.lvwIn, ".....");
    Point(main.lvwOut, 1, -1);
    main.lists.lvw_DblClick(main.lvwOut);
    EXPECT_EQ(Marks(main.lvwIn), ".....");
}

TEST_F(Lists, ATabGivesTheFocusToWhatItIsFor) {
    const std::pair<Tab, Table*> tables[] = {
        {Tab::In, &main.lvwIn},     {Tab::Out, &main.lvwOut},       {Tab::FamilyXref, &main.lvwFamilyXref},
        {Tab::Xref, &main.lvwXref}, {Tab::Family, &main.lvwFamily}, {Tab::Kinship, &main.lvwKinship}};
    const std::pair<Tab, Control*> options[] = {{Tab::FormatOptions, &main.lbOuputPlacesOrder},
                                                {Tab::LinkOptions, &main.txtKinHeight},
                                                {Tab::Options, &main.chkIgnoreCase}};
    for (const auto& [tab, table] : tables) {
        main.ShowTab(tab);
        EXPECT_EQ(main.lvwActiveListView, table);
        EXPECT_TRUE(main.mnuCopy.Enabled && main.ActiveControl() == nullptr);
        for (const auto& [optionTab, control] : options) {
            main.ShowTab(optionTab);
            EXPECT_EQ(main.SSTab1, optionTab);
            EXPECT_EQ(main.ActiveControl(), control);
            EXPECT_EQ(main.lvwActiveListView, table);
            EXPECT_FALSE(main.mnuCopy.Enabled);
        }
        main.SetFocus(main.txtMaxLinks);
        main.txtMaxLinks.SetText("0");
    }
    EXPECT_EQ(main.txtMaxLinks.Get(), "0");
    main.tabs.TableGotFocus(main.lvwXref1);
    EXPECT_EQ(main.txtMaxLinks.Get(), "1") << "it lost the focus";
}

}  // namespace
}  // namespace swiftroll::test
