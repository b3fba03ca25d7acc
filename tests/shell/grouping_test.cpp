// The order of the columns of the list as what it is grouped by, and whether the list follows it.
#include "lists_fixture.h"

namespace swiftroll::test {
namespace {

using Kind = Grouping::Kind;

struct GroupingOfTheList : Lists {
    /// "Nom > Lieu | Nbre | Min, Max".
    Text Told() {
        Text groups, years;
        for (const ColumnId column : main.grouping.Shown(Kind::Group))
            groups += Concat({groups.empty() ? "" : " > ", main.grouping.NameOf(column)});
        for (const ColumnId column : main.grouping.Shown(Kind::Year))
            years += Concat({years.empty() ? "" : ", ", main.grouping.NameOf(column)});
        return Concat({groups, " | Nbre | ", years});
    }
    /// The columns from the first one to `Number`.
    Text UpToNumber() {
        std::map<std::int16_t, Text> keys;
        for (const Column& column : main.lvwOut.Columns()) keys[column.Position] = column.Key;
        Text order;
        for (const auto& [position, key] : keys) {
            order += Concat({order.empty() ? "" : " ", key});
            if (key == "Number") break;
        }
        return order;
    }
};

TEST_F(GroupingOfTheList, PlacingAColumnIsDraggingItsHeader) {
    Grouping& grouping = main.grouping;
    EXPECT_EQ(Told(), "Nom | Nbre | ");
    grouping.Place(Out::DateMin, 9);
    grouping.Place(Out::Place, 9);
    grouping.Place(Out::DateMax, 9);
    EXPECT_EQ(Told(), "Nom > Lieu | Nbre | Min, Max");
    EXPECT_EQ(UpToNumber(), "LastName Place DateMin DateMax Number");
    main.lvwOut.MoveColumn(Out::DateMax, 1);  // years may stand between those that form groups
    grouping.Place(Out::Place, 0);
    EXPECT_EQ(UpToNumber(), "DateMax Place LastName DateMin Number");
    grouping.Place(Out::DateMax, 1);
    EXPECT_EQ(Told(), "Lieu > Nom | Nbre | Min, Max");
    grouping.TakeOut(Out::LastName);
    grouping.TakeOut(Out::LastName);
    grouping.TakeOut(Out::Place);
    EXPECT_EQ(UpToNumber(), "DateMin DateMax Number");
    EXPECT_TRUE(grouping.IsLeftOut(Out::LastName));
    grouping.Place(Out::Sex, 3);
    EXPECT_EQ(UpToNumber(), "Sex DateMin DateMax Number");
    grouping.Place(Out::Number, 0);
    EXPECT_EQ(UpToNumber(), "Sex DateMin DateMax Number");
    EXPECT_EQ(grouping.Shown(Kind::Group).size() + grouping.Others(Kind::Group).size(), 9u);
    EXPECT_EQ(grouping.Shown(Kind::Year).size() + grouping.Others(Kind::Year).size(), 8u);
}

TEST_F(GroupingOfTheList, TheListIsStaleOnlyWhenItWouldBeAnother) {
    const auto isStale = [this] { return main.grouping.IsListStale(); };
    EXPECT_FALSE(isStale());
    main.lvwOut.MoveColumn(Out::FirstName, 18);  // behind Number, order means nothing
    EXPECT_FALSE(isStale());
    main.grouping.Place(Out::Place, 1);
    EXPECT_TRUE(isStale());
    main.grouping.Place(Out::Place, 0);
    main.cmdCalcOutput.Click();
    EXPECT_FALSE(isStale());
    main.grouping.Place(Out::Place, 1);
    EXPECT_TRUE(isStale()) << "the order of the groups is that of the rows";
    main.grouping.Place(Out::Place, 0);
    EXPECT_FALSE(isStale()) << "it is as it was";
    main.chkPrivate.SetChecked(true);
    EXPECT_TRUE(isStale());
    main.txtPrivateYears.SetText("20");
    main.cmdCalcOutput.Click();
    main.txtPrivateYears.SetText("30");
    EXPECT_TRUE(isStale());
    main.txtPrivateYears.SetText("20");
    main.chkIgnoreCase.SetChecked(false);  // the computation does not read it
    EXPECT_FALSE(isStale());
    main.cmdRecalcIn.Click();
    EXPECT_TRUE(isStale());
    main.cmdCalcOutput.Click();
    Read("0 @I1@ INDI\r\n1 NAME A /B/\r\n0 TRLR\r\n");
    EXPECT_TRUE(isStale());
    Read("0 TRLR\r\n");
    EXPECT_FALSE(isStale()) << "nobody is there to compute from";
    TestMain fresh;
    fresh.Read("0 @I1@ INDI\r\n1 NAME A /B/\r\n0 TRLR\r\n");
    EXPECT_FALSE(fresh.main.grouping.IsListStale()) << "before the first computation";
}

}  // namespace
}  // namespace swiftroll::test
