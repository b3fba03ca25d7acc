// What the context menu offers for each cell, and what it does to the marks while it is open.
#include "shell/lists_fixture.h"

namespace swiftroll::test {
namespace {

struct ContextMenu : Lists {
    /// The offer of the menu for a cell: a letter for each enabled entry. Individuals, Parents, Spouses,
    /// Children, Values, and whether the columns can be switched, the row unmarked, a favourite made, kinship
    /// searched and drawn.
    Text Offer(Table& table, std::int32_t row, std::int32_t column) {
        Text offer;
        dialogs.onMenu = [&](const Menu& menu) {
            EXPECT_EQ(&menu, &main.contextMenu.mnuContext);
            const std::pair<const Command*, char> entries[] = {
                {&main.mnuAddIndi, 'I'},         {&main.mnuAddParents, 'P'},
                {&main.mnuAddSpouses, 'S'},      {&main.mnuAddChildren, 'C'},
                {&main.mnuAddValue[2], 'V'},     {&main.mnuColSelect, 'c'},
                {&main.mnuDeselectCurrent, 'd'}, {&main.mnuAddFavorite, 'f'},
                {&main.mnuFindPath, 'k'},        {&main.mnuDrawKinship, 'D'},
                {&main.mnuRemoveIndi, 'I'},      {&main.mnuRemoveParents, 'P'},
                {&main.mnuRemoveSpouses, 'S'},   {&main.mnuRemoveChildren, 'C'},
                {&main.mnuRemoveValue[0], 'V'}};
            for (const auto& [command, letter] : entries) {
                if (command->Enabled) offer += letter;
            }
        };
        Point(table, row, column);
        main.contextMenu.lvw_MouseUp(MouseButton::Right);
        dialogs.onMenu = nullptr;
        return offer;
    }
};

TEST_F(ContextMenu, OffersWhatTheCellNames) {
    const TextView person = "IPSCVcdfIPSCV", family = "SCVcdfSCV", none = "cdf";
    const struct {
        Table& table;
        std::initializer_list<int> people, families;
    } cases[] = {{main.lvwFamily, {1, 2, 3, 8, 9, 10}, {0, 4, 5, 6, 7}},
                 {main.lvwXref, {0, 1, 2, 3, 4}, {5, 6}},
                 {main.lvwXref1, {}, {}},
                 {main.lvwFamilyXref, {1, 2, 3, 5}, {0, 4}}};
    for (const auto& c : cases) {
        for (std::int16_t column = 0; column < c.table.ColumnCount(); ++column) {
            const auto isIn = [&](std::initializer_list<int> columns) {
                return std::find(columns.begin(), columns.end(), column) != columns.end();
            };
            EXPECT_EQ(Offer(c.table, 0, column), isIn(c.people)     ? person
                                                 : isIn(c.families) ? family
                                                                    : none)
                << c.table.Name() << column;
        }
    }
    EXPECT_EQ(Offer(main.lvwIn, 0, 16), "IPSCVcdfkIPSCV");
    main.cmdFindPath.Enabled = false;
    EXPECT_EQ(Offer(main.lvwIn, 0, 0), "IPSCVcdfIPSCV");
    EXPECT_EQ(Offer(main.lvwKinship, 0, 3), "IPSCVcdfDIPSCV");
    EXPECT_EQ(Offer(main.lvwKinship, 0, 4), "SCVcdfDSCV");
    EXPECT_EQ(Offer(main.lvwKinship, 0, 6), "cdfD");
    EXPECT_TRUE(main.mnuFindPath.Enabled && main.mnuDrawKinship.Enabled);
    // In the list only the columns before Number form groups, wherever the user put them.
    EXPECT_EQ(Offer(main.lvwOut, 0, Out::LastName - 1), "VdfV");
    EXPECT_EQ(Offer(main.lvwOut, 0, Out::Number - 1), "df");
    EXPECT_EQ(Offer(main.lvwOut, 0, Out::ID - 1), "df");
    // Beside the rows and the columns.
    EXPECT_EQ(Offer(main.lvwIn, -1, -1), "c");
    EXPECT_EQ(main.mnuAddValue[0].Caption, "ID est <=");
    main.SSTab1 = Tab::Kinship;
    EXPECT_EQ(Offer(main.lvwKinship, 2, -1), "cfD");
    main.contextMenu.SSTab1_RightClick();
    EXPECT_EQ(main.lists.lHitRow, -1);
}

TEST_F(ContextMenu, MarksTheClickedRowForItsTime) {
    const struct {
        const Command* chosen;
        TextView before, after;
    } cases[] = {{nullptr, ".c...", ".c..."},
                 {nullptr, "s....", "s...."},
                 {&main.mnuResetCol, ".c...", ".c..."},
                 {&main.mnuCopy, ".c...", "sc..."},
                 {&main.mnuFindNext, "..c..", "s.c.."},
                 {&main.mnuAddChildren, ".....", "s.bb."},
                 {&main.mnuInvertSelection, ".c...", "..bbb"},
                 {&main.mnuDeselectCurrent, "cc...", ".c..."}};
    for (const auto& c : cases) {
        Mark(main.lvwIn, c.before);
        Point(main.lvwIn, 0, In::LastName - 1);
        main.findDialog.cboTextToFind[0].SetText("nobody");
        dialogs.onMenu = [&](const Menu&) {
            EXPECT_TRUE(main.lvwIn.Item(1).Selected());
            if (c.chosen != nullptr) c.chosen->Click();
        };
        main.contextMenu.lvw_MouseUp(MouseButton::Right);
        EXPECT_EQ(Marks(main.lvwIn), c.after) << (c.chosen == nullptr ? "none" : c.chosen->Name());
    }
    // A command that takes long lets other menus open meanwhile.
    Mark(main.lvwIn, ".....");
    Mark(main.lvwOut, "...");
    dialogs.onMenu = [&](const Menu&) {
        dialogs.onMenu = nullptr;
        Point(main.lvwOut, 2, 1);
        main.contextMenu.lvw_MouseUp(MouseButton::Right);
    };
    Point(main.lvwIn, 1, 0);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(Concat({Marks(main.lvwIn), Marks(main.lvwOut)}), "........");
    main.lvwIn.Item(1).SetChecked(true);
    EXPECT_EQ(main.lvwIn.Item(1).Look(), CellLook());
    // What a command does to the table that the menu is of, does not keep the row marked either.
    Mark(main.lvwIn, ".....");
    Point(main.lvwIn, 1, 0);
    dialogs.onMenu = [&](const Menu&) {
        main.ShowTab(Tab::Out);
        main.lists.HitTest(0, 2);
    };
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(Marks(main.lvwIn), ".....");
    dialogs.onMenu = [&](const Menu&) { main.lvwIn.Clear(); };
    Point(main.lvwIn, 4, 0);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ContextMenu, PaintsTheCellsOfTheMarkedRows) {
    Table& in = main.lvwIn;
    CellLook own;
    own.ToolTipText = "tip";
    in.Item(4).SetLook(In::BirthPlace, own);
    Mark(in, ".cs..");
    const auto painted = [&](Table& table, ColumnId column) {
        Text rows;
        for (std::int32_t i = 1; i <= table.Count(); ++i) {
            const CellLook look = table.Item(i).Look(column);
            EXPECT_EQ(look.ForeColor, look.Bold ? 255u : 0u);
            rows += look.Bold ? 'x' : '.';
        }
        return rows;
    };
    Text rows, cells, others;
    dialogs.onMenu = [&](const Menu&) {
        rows = painted(*main.lvwActiveListView, {});
        cells = painted(*main.lvwActiveListView, In::BirthPlace);
        others = painted(*main.lvwActiveListView, In::LastName);
    };
    Point(in, 0, In::BirthPlace - 1);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(Concat({rows, " ", cells, " ", others}), "..... x.... .....") << "only cells with a text";
    EXPECT_EQ(painted(in, In::BirthPlace), ".....");
    EXPECT_EQ(in.Item(4).Look(In::BirthPlace), own);
    Point(in, 0, 0);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(Concat({rows, " ", cells}), "xxx.. .....");
    Point(in, 0, -1);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(rows, ".....");
    Point(main.lvwOut, 0, Out::Place - 1);
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(painted(main.lvwOut, Out::Place).find('x'), Text::npos);
    EXPECT_EQ(Marks(main.lvwOut).find('s'), Text::npos) << "a column that forms no groups marks no row";
}

TEST_F(ContextMenu, OpensAndWorksByTheKeyboard) {
    using Code = ListKey::Code;
    int opened = 0;
    dialogs.onMenu = [&](const Menu&) { ++opened; };
    Point(main.lvwIn, 0, 0);
    main.contextMenu.lvw_KeyDown({Code::ContextMenu});
    main.contextMenu.lvw_KeyDown({Code::F10, 0, true});
    main.contextMenu.lvw_KeyDown({Code::Other, 0, false, false, true});
    main.contextMenu.lvw_KeyDown({Code::F10});
    main.contextMenu.lvw_KeyDown({Code::Letter, 'A', true});
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(Marks(main.lvwIn), ".....");
    const auto press = [&](char letter) {
        main.contextMenu.lvw_KeyDown({Code::Letter, letter, false, true});
    };
    press('A');
    EXPECT_EQ(Marks(main.lvwIn), "bbbbb");
    press('W');
    EXPECT_EQ(Marks(main.lvwIn), ".bbbb");
    press('X');
    EXPECT_EQ(Marks(main.lvwIn), "b....");
    press('N');
    EXPECT_EQ(main.lists.lHitRow, 0) << "nothing is marked behind the first row";
    main.mnuDeselectCurrent.Enabled = false;
    press('W');
    EXPECT_EQ(Marks(main.lvwIn), "b....");
    press('C');
    EXPECT_EQ(desktop.clipboard.substr(0, 2), "ID");
    main.ShowTab(Tab::Out);
    press('A');
    press('E');
    EXPECT_EQ(Marks(main.lvwIn) + Marks(main.lvwOut), ".....bbb");
    press('D');
    EXPECT_EQ(Marks(main.lvwOut), "...");
    press('F');
    EXPECT_TRUE(main.findDialog.Visible());
    main.findDialog.cboTextToFind[0].SetText("");
    press('S');
    EXPECT_EQ(Marks(main.lvwOut), "s..");
    EXPECT_EQ(opened, 3);
}

}  // namespace
}  // namespace swiftroll::test
