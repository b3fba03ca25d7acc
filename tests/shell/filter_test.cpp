// What a filter shows, that commands do not know it, and what undoes the marks of commands.
#include "shell/lists_fixture.h"

namespace swiftroll::test {
namespace {

struct Filters : Lists {
    RowFilter& Filter(Table& table) { return main.filters.Of(table); }
    /// The keys of the rows that are shown.
    Text Shown(Table& table) {
        Text keys;
        RowFilter& filter = Filter(table);
        filter.Sync();
        for (std::int32_t place = 0; place < filter.Count(); ++place) {
            keys += table.Item(filter.RowAt(place)).Key();
        }
        return keys;
    }
    Text Told() const {
        const Notice* notice = main.messageBar.Seen();
        return notice == nullptr ? Text() : notice->text;
    }
};

TEST_F(Filters, ShowTheRowsThatContainAllWords) {
    const std::pair<TextView, TextView> cases[] = {{"dupont", "@I1@@I3@@I4@"},
                                                   {"dup par", "@I1@@I4@"},
                                                   {"dup paris a", "@I1@@I4@"},
                                                   {"dup 1850", "@I1@"},
                                                   {"ELISE", "@I2@"},
                                                   {"jean-p", "@I1@"},
                                                   {"le gall", "@I5@"},
                                                   {"@I2@", "@I2@"},
                                                   {"zz", ""},
                                                   {"- ?", "@I1@@I2@@I3@@I4@@I5@"},
                                                   {"i", "@I1@@I2@@I3@@I4@@I5@"}};
    for (const auto& [wanted, keys] : cases) {
        Filter(main.lvwIn).SetWanted(wanted);
        EXPECT_EQ(Shown(main.lvwIn), keys) << wanted;
    }
    // As one types on, and takes letters back.
    for (const auto& [wanted, keys] : {cases[4], cases[8], cases[0], cases[1], cases[3], cases[0]}) {
        Filter(main.lvwIn).SetWanted(wanted);
        EXPECT_EQ(Shown(main.lvwIn), keys) << wanted;
    }
    EXPECT_EQ(Filter(main.lvwIn).HiddenCount(), 2);
    EXPECT_EQ(Filter(main.lvwIn).PlaceOf(2), -1);
    // A hidden column is not searched.
    Filter(main.lvwIn).SetWanted("paris");
    Point(main.lvwIn, 0, In::BirthPlace - 1);
    main.mnuColHide.Click();
    Point(main.lvwIn, 0, In::Place - 1);
    main.mnuColHide.Click();
    EXPECT_EQ(Shown(main.lvwIn), "");
    main.mnuResetCol.Click();
    EXPECT_EQ(Shown(main.lvwIn), "@I1@@I4@");
}

TEST_F(Filters, FollowSortsChangesAndReads) {
    Filter(main.lvwIn).SetWanted("dup");
    main.lvwIn.SortBy(In::ID, 1);
    EXPECT_EQ(Shown(main.lvwIn), "@I4@@I3@@I1@");
    main.lvwIn.Item("@I5@").SetCell(In::LastName, "Dupuis");
    EXPECT_EQ(Shown(main.lvwIn), "@I5@@I4@@I3@@I1@");
    Filter(main.lvwOut).SetWanted("dup");
    EXPECT_EQ(Filter(main.lvwOut).Count(), 1);
    main.lvwOut.MoveColumn(Out::FirstName, 1);
    main.cmdCalcOutput.Click();
    Filter(main.lvwOut).Sync();
    EXPECT_EQ(Filter(main.lvwOut).Count(), 4) << "computed with Dupuis";
    ReadAndList(WithCrLf("0 @I7@ INDI\n1 NAME Luc /Dupin/\n0 @I8@ INDI\n1 NAME Luc /Martin/\n0 TRLR\n"_t));
    EXPECT_EQ(Shown(main.lvwIn), "@I7@");
    main.lvwIn.Remove(1);
    EXPECT_EQ(Shown(main.lvwIn), "");
    main.lvwIn.Add(std::nullopt, "@I9@", "dup");
    EXPECT_EQ(Shown(main.lvwIn), "@I9@");
}

TEST_F(Filters, CommandsWorkOnAllRowsButTheOneForThoseShown) {
    Filter(main.lvwIn).SetWanted("dupont");
    Point(main.lvwIn, 0, 0);
    main.mnuCheckShown.Click();
    EXPECT_EQ(Marks(main.lvwIn), "b.bb.");
    EXPECT_EQ(Told(), "3 lignes ajoutées aux marques de « Entrée »."_t);
    main.mnuInvertSelection.Click();
    EXPECT_EQ(Marks(main.lvwIn), ".b..b");
    EXPECT_EQ(Told(), "2 lignes ajoutées aux marques de « Entrée », 3 retirées."_t);
    EXPECT_EQ(Filter(main.lvwIn).HiddenMarkedCount(), 2);
    main.mnuSelectAll.Click();
    EXPECT_EQ(Marks(main.lvwIn), "bbbbb");
    EXPECT_TRUE(Filter(main.lvwIn).IsOn());
    // Whoever goes to a row sees it.
    Mark(main.lvwIn, "s.s..");
    main.lists.lHitRow = -1;
    main.mnuNextSelected.Click();
    EXPECT_TRUE(Filter(main.lvwIn).IsOn());
    main.lvwIn.Item("@I2@").EnsureVisible();
    EXPECT_FALSE(Filter(main.lvwIn).IsOn());
}

TEST_F(Filters, MarksComeBackCommandByCommand) {
    Mark(main.lvwIn, "sc...");
    Point(main.lvwIn, 0, 0);
    EXPECT_FALSE(main.mnuUndoMarks.Enabled);
    main.mnuInvertSelection.Click();
    EXPECT_EQ(Marks(main.lvwIn), "..bbb");
    main.mnuInvertSelection.Click();
    main.mnuInvertSelection.Click();
    // Groups of the list mark individuals: what is undone is theirs, whatever list is in front.
    Mark(main.lvwOut, "c..");
    Point(main.lvwOut, 0, 0);
    main.lists.lvw_DblClick(main.lvwOut);
    EXPECT_EQ(Marks(main.lvwIn), "b.bbb");
    main.lvwIn.SortBy(In::ID, 1);
    ListKey undo{ListKey::Code::Letter, 'Z'};
    undo.ctrl = true;
    main.contextMenu.lvw_KeyDown(undo);
    EXPECT_EQ(Marks(main.lvwIn), "bbb..") << "they stay with their rows";
    for (int i = 0; i < 3; ++i) main.mnuUndoMarks.Click();
    EXPECT_EQ(Marks(main.lvwIn), "...cs");
    EXPECT_EQ(Told(), "Les marques précédentes de « Entrée » sont rétablies : 2 lignes marquées."_t);
    EXPECT_FALSE(main.mnuUndoMarks.Enabled);
    Point(main.lvwIn, 0, 0);
    // Ten commands are kept; a command that changes nothing is none of them.
    for (int i = 0; i < 14; ++i) main.mnuInvertSelection.Click();
    Mark(main.lvwIn, "bbbbb");
    main.mnuSelectAll.Click();
    EXPECT_EQ(Told(), "Aucune ligne de plus ni de moins n'est marquée dans « Entrée »."_t);
    int undone = 0;
    for (; main.mnuUndoMarks.Enabled; ++undone) main.mnuUndoMarks.Click();
    EXPECT_EQ(undone, 10);
    main.mnuInvertSelection.Click();
    main.lvwIn.Clear();
    main.mnuUndoMarks.Click();
    EXPECT_FALSE(main.mnuUndoMarks.Enabled);
}

TEST_F(Filters, TheClickedRowOfTheMenuCountsAsItWasBefore) {
    Mark(main.lvwIn, ".....");
    Point(main.lvwIn, 1, 0);
    dialogs.onMenu = [&](const Menu&) { main.mnuSelectAll.Click(); };
    main.contextMenu.lvw_MouseUp(MouseButton::Right);
    EXPECT_EQ(Told(), "5 lignes ajoutées aux marques de « Entrée »."_t);
    main.mnuUndoMarks.Click();
    EXPECT_EQ(Marks(main.lvwIn), ".....");
}

TEST_F(Filters, LettersLeadToTheNextRowOfTheSortedColumn) {
    main.lists.lvw_ColumnClick(main.lvwIn, main.lvwIn.ColumnAt(In::LastName));
    const auto type = [&](TextView letters, bool anew) {
        const auto row = main.typeAhead.Type(main.lvwIn, letters, anew);
        if (row) main.lvwIn.SetCurrent(*row);
        return row ? Text(row->Cell(In::LastName)) : Text();
    };
    EXPECT_EQ(type("l", true), "Le Gall");
    EXPECT_EQ(type("e", false), "Le Gall");
    EXPECT_EQ(type("g", false), "Le Gall");
    EXPECT_EQ(type("x", false), "");
    const Text first = type("d", true);
    const std::int32_t at = main.lvwIn.Current()->Index();
    EXPECT_EQ(type("d", false).empty(), first.empty());
    EXPECT_EQ(main.lvwIn.Current()->Index(), at + 1) << "the same letter goes on";
    Filter(main.lvwIn).SetWanted("martin");
    EXPECT_EQ(type("d", true), "");
    EXPECT_EQ(type("M", true), "Martin");
}

TEST_F(Filters, AColumnIsFittedHiddenAndShownAgain) {
    Point(main.lvwIn, 0, In::LastName - 1);
    main.columns.Measure = [](TextView text, bool isHeader) {
        return static_cast<std::int32_t>(text.size()) * (isHeader ? 1 : 1000);
    };
    main.mnuColFit.Click();
    EXPECT_EQ(main.lvwIn.ColumnAt(In::LastName).Width, 7000) << "Le Gall";
    main.mnuColHide.Click();
    EXPECT_FALSE(main.lvwIn.ColumnAt(In::LastName).IsShown());
    main.columns.FitCommands();
    EXPECT_TRUE(main.mnuColShow.Enabled);
    EXPECT_TRUE(main.mnuColShown[In::LastName - 1].Visible);
    EXPECT_FALSE(main.mnuColShown[In::FirstName - 1].Visible);
    main.mnuColShown[In::LastName - 1].Click();
    EXPECT_EQ(main.lvwIn.ColumnAt(In::LastName).Width, kNameWidth);
    for (std::int16_t i = 0; i < main.lvwIn.ColumnCount(); ++i) {
        main.lists.HitTest(-1, i);
        main.mnuColHide.Click();
    }
    EXPECT_EQ(std::ranges::count_if(main.lvwIn.Columns(), &Column::IsShown), 1) << "the last one stays";
}

}  // namespace
}  // namespace swiftroll::test
