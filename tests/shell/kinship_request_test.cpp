// The request: reading the marks, the dialog, the refusal, and what a double click on a path does.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

/// Four people of one island, and one of another; the rows of lvwIn are those of the names.
struct Request : TestMain {
    Request() {
        Text file;
        for (int i = 1; i <= 5; ++i) {
            file += Concat({"0 @I", Decimal(i), "@ INDI\r\n1 NAME Anne /dub", Decimal(i), "/\r\n1 FAMC @F",
                            Decimal(i), "@\r\n"});
        }
        Read(file + "0 @F0@ FAM\r\n1 HUSB @I1@\r\n1 CHIL @I2@\r\n1 CHIL @I3@\r\n1 CHIL @I4@\r\n0 TRLR\r\n");
        dialogs.boxes.clear();
        dialogs.onWindow = [this](Window& window) {
            ASSERT_EQ(&window, &main.kinshipDialog);
            EXPECT_TRUE(window.Visible());
            ++shown;
            offered.clear();
            for (int i = 1; i <= kReadings; ++i) {
                if (main.kinshipDialog.Option(i).Enabled) offered.push_back(i);
            }
            if (inDialog) inDialog();
        };
    }
    void Mark(const std::vector<int>& selected, const std::vector<int>& checked) {
        for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) {
            main.lvwIn.Item(i).SetSelected(std::find(selected.begin(), selected.end(), i) != selected.end());
            main.lvwIn.Item(i).SetChecked(std::find(checked.begin(), checked.end(), i) != checked.end());
        }
    }
    /// Makes the request with these rows marked; the offered readings, and what the search made of it.
    void Find(const std::vector<int>& selected, const std::vector<int>& checked) {
        Mark(selected, checked);
        shown = 0;
        offered.clear();
        main.kinshipSearch.sKinshipPair.clear();
        main.cmdFindPath.Click();
    }
    const Text& Pair() const { return main.kinshipSearch.sKinshipPair; }
    frmKinshipSelect& Dialog() { return main.kinshipDialog; }

    int shown = 0;
    std::vector<int> offered;
    std::function<void()> inDialog = [this] { Dialog().cmdOK.Click(); };
};

const TextView kFirstAndSecond = "[Anne, DUB1] et [Anne, DUB2]";

TEST(KinshipRequest, OffersTheNarrowestReadingsOfTheMarks) {
    Request t;
    const struct {
        std::vector<int> selected, checked, offered;
    } cases[] = {{{1, 2}, {}, {1}},        {{}, {1, 2}, {2}},
                 {{1, 2}, {1, 2}, {3}},    {{1}, {2}, {6}},
                 {{1, 2}, {3, 4}, {1, 2}}, {{1, 2}, {2}, {4}},
                 {{1, 2, 3}, {3}, {1}},    {{1, 2, 3}, {2, 3, 4}, {3}},
                 {{1, 2}, {2, 3}, {4, 5}}, {{1, 2, 3, 4}, {1, 2}, {1, 3}}};
    for (const auto& c : cases) {
        t.Find(c.selected, c.checked);
        EXPECT_EQ(t.offered, c.offered)
            << testing::PrintToString(c.selected) << testing::PrintToString(c.checked);
        EXPECT_EQ(t.Dialog().Choice(), c.offered.front());
        EXPECT_EQ(t.Dialog().lblMultipleChoice.Visible, c.offered.size() > 1);
        EXPECT_EQ(t.Dialog().Caption,
                  Concat({"SwiftRoll (v3.4.0)", c.offered.size() > 1 ? " - Sélectionnez les 2 individus"_t
                                                                     : " - Recherche de parenté"_t}));
    }
    EXPECT_TRUE(t.dialogs.boxes.empty());
    EXPECT_FALSE(t.Dialog().lblNotDisplayed.Visible);
    t.main.chkMaxLinks.SetChecked(true);
    t.Find({1, 2}, {});
    EXPECT_TRUE(t.Dialog().lblNotDisplayed.Visible);
}

TEST(KinshipRequest, SearchesThePairThatTheUserSettles) {
    Request t;
    t.Find({1, 2}, {});
    EXPECT_EQ(t.Pair(), kFirstAndSecond);
    EXPECT_EQ(t.Dialog().FirstBox(1).Get(), "@I1@ : dub1, Anne");
    EXPECT_EQ(t.main.pnlMessage.Get(), "1 liens de parenté trouvé(s) au total."_t);
    // Another reading, inverted; inverting twice changes nothing.
    t.inDialog = [&] {
        t.Dialog().Option(2).SetValue(true);
        for (int i = 0; i < 3; ++i) t.Dialog().cmdInvertSelected.Click();
        EXPECT_EQ(t.Dialog().FirstBox(2).Get(), "@I4@ : dub4, Anne");
        EXPECT_EQ(t.Dialog().SecondBox(2).Get(), "@I3@ : dub3, Anne");
        EXPECT_FALSE(t.Dialog().Option(1).Value());
        t.Dialog().Option(2).OnDblClick();
    };
    t.Find({1, 2}, {3, 4});
    EXPECT_EQ(t.Pair(), "[Anne, DUB4] et [Anne, DUB3]");
    // The box inverts as the button does.
    t.inDialog = [&] {
        t.Dialog().Option(2).SetValue(true);
        EXPECT_EQ(t.Dialog().SecondBox(2).Get(), "@I4@ : dub4, Anne");
        t.Dialog().chkInverted.SetChecked(true);
        EXPECT_EQ(t.Dialog().SecondBox(2).Get(), "@I3@ : dub3, Anne");
        t.Dialog().Option(2).OnDblClick();
    };
    t.Find({1, 2}, {3, 4});
    EXPECT_EQ(t.Pair(), "[Anne, DUB4] et [Anne, DUB3]");
    EXPECT_EQ(t.main.lvwKinship.Item(1).Cell(Kinship::IDIndi), "@I4@");
    EXPECT_FALSE(t.main.bWaitCursor);
    EXPECT_FALSE(t.Dialog().Visible());
    // The next request begins anew.
    t.inDialog = [&] { t.Dialog().cmdOK.Click(); };
    t.Find({1, 2}, {});
    EXPECT_EQ(t.Pair(), kFirstAndSecond);
}

TEST(KinshipRequest, AnAbandonedDialogLeavesTheEarlierResult) {
    Request t;
    t.Find({1, 2}, {});
    const auto before = RowsOf(t.main.lvwKinship);
    const Text tip = t.main.lvwKinship.Tip;
    for (const bool byButton : {true, false}) {
        t.inDialog = [&] {
            if (byButton) t.Dialog().cmdCancel.Click();
        };
        t.Find({3, 4}, {});
        EXPECT_EQ(t.shown, 1);
        EXPECT_TRUE(t.main.bAbort);
        EXPECT_EQ(RowsOf(t.main.lvwKinship), before);
        EXPECT_EQ(t.main.lvwKinship.Tip, tip);
    }
}

TEST(KinshipRequest, WithoutAPairOfOneIslandItIsRefused) {
    Request t;
    for (const auto& [selected, checked, counts] :
         std::initializer_list<std::tuple<std::vector<int>, std::vector<int>, const char*>>{
             {{}, {}, "000000"},
             {{1}, {}, "100101"},
             {{1, 5}, {}, "200202"},
             {{1, 2, 3, 4}, {4, 5}, "311425"},
             {{1, 2, 3, 5}, {5}, "301414"}}) {
        t.dialogs.boxes.clear();
        t.Find(selected, checked);
        ASSERT_EQ(t.dialogs.boxes.size(), 1u);
        const MessageBox& box = t.dialogs.boxes[0];
        EXPECT_EQ(box.title, "SwiftRoll (v3.4.0) - Parenté"_t);
        EXPECT_EQ(box.icon, BoxIcon::Exclamation);
        Text lines[6];
        for (std::size_t i = 0; i < 6; ++i)
            lines[i] = Concat({"  ", TextView(counts + i, 1), " Individu(s) "});
        EXPECT_EQ(
            box.text,
            Concat(
                {"Il faut spécifier les 2 individus d'un même ilot entre lesquels il faut trouver les liens."
                 "\r\n\r\nSwiftRoll ne peut pas trouver - sans équivoque - 2 individus d'un même ilot\r\n"
                 "parmi les possibilités suivantes :\r\n\r\n"_t,
                 lines[0], "En Surbrillance mais NON Cochés\r\n"_t, lines[1],
                 "Cochés mais NON En Surbrillance\r\n"_t, lines[2], "En Surbrillance ET Cochés\r\n\r\n"_t,
                 lines[3], "En Surbrillance\r\n"_t, lines[4], "Cochés\r\n"_t, lines[5],
                 "En Surbrillance OU Cochés\r\n\r\n"
                 "(Double-clic sur l'onglet pour afficher les individus sélectionnés)"_t}));
        EXPECT_EQ(t.shown, 0);
        EXPECT_TRUE(t.main.bAbort);
        EXPECT_EQ(t.main.lvwKinship.Count(), 0);
    }
}

TEST(KinshipRequest, ADoubleClickOnAPathGoesToThePersonOrTheFamily) {
    Request t;
    t.Find({1, 2}, {});
    t.Mark({}, {});
    const auto click = [&](std::int32_t row, ColumnId column) {
        t.main.lists.HitTest(row - 1, column.Section());
        t.main.SSTab1 = Tab::Kinship;
        t.main.lists.lvw_DblClick(t.main.lvwKinship);
        return t.main.SSTab1;
    };
    EXPECT_EQ(click(1, Kinship::Indi), Tab::In);
    EXPECT_TRUE(t.main.lvwIn.Item(1).Selected() && t.main.lvwIn.Item(1).Checked());
    EXPECT_EQ(click(2, Kinship::IDIndi), Tab::In);
    EXPECT_FALSE(t.main.lvwIn.Item(1).Selected()) << "it was the current row";
    EXPECT_TRUE(t.main.lvwIn.Item(1).Checked());
    EXPECT_TRUE(t.main.lvwIn.Item(2).Selected());
    EXPECT_EQ(click(1, Kinship::Family), Tab::Family);
    EXPECT_TRUE(t.main.lvwFamily.Current()->Selected());
    EXPECT_EQ(t.main.lvwFamily.Current()->Text(), "@F0@");
    for (const auto column : {Kinship::SeqNr, Kinship::NrSpouses, Kinship::NrLink}) {
        EXPECT_EQ(click(1, column), Tab::Kinship);
    }
    EXPECT_EQ(click(3, Kinship::Indi), Tab::Kinship) << "a separator names nobody";
    EXPECT_EQ(click(0, Kinship::Indi), Tab::Kinship);
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

}  // namespace
}  // namespace swiftroll::test
