// The card of the current individual, the lines of the record, and the ways to the relatives and back.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

Text TextOf(const PersonCard::Group& group) {
    Text text;
    for (const PersonCard::Relative& person : group.people)
        text += Concat({person.sId, " ", person.name, " ", person.relation, ";"});
    return group.more == 0 ? text : text + Decimal(static_cast<std::int64_t>(group.more));
}

struct PersonPanelTest : testing::Test, TestMain {
    void GoTo(TextView sId) { main.lvwIn.SetCurrent(main.lvwIn.Item(sId)); }
    PersonCard CardOf(TextView sId) {
        GoTo(sId);
        return main.personPanel.Card().value();
    }
    Text Current() { return Text(main.lvwIn.Current()->Text()); }
};

/// @I1@ and @I2@ have @I3@ and @I4@; @I1@ has @I5@ with @I6@, and @I7@ with nobody who is told.
constexpr TextView kPatchwork =
    "0 @I3@ INDI\n1 NAME Paul /Roy/\n1 SEX M\n1 BIRT\n2 DATE 1903\n1 FAMC @F1@\n"
    "0 @I1@ INDI\n1 NAME Jean /Roy/\n1 SEX M\n1 BIRT\n2 DATE 1870\n2 PLAC Lyon\n1 DEAT\n2 DATE 1950\n"
    "0 @I2@ INDI\n1 NAME Anne /Lee/\n1 SEX F\n1 DEAT\n2 DATE BET 1930 AND 1932\n"
    "0 @I4@ INDI\n1 NAME Zoe /Roy/\n1 SEX F\n1 BIRT\n2 DATE 1901\n"
    "0 @I5@ INDI\n1 NAME Luc /Roy/\n1 SEX F\n"
    "0 @I6@ INDI\n1 NAME Mia /Day/\n1 SEX F\n"
    "0 @I7@ INDI\n1 NAME Guy /Roy/\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL @I4@\n1 MARR\n2 DATE 1900\n2 PLAC Nice\n"
    "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I6@\n1 CHIL @I5@\n1 CHIL @I9@\n1 MARR\n2 DATE 1890\n"
    "0 @F3@ FAM\n1 HUSB @I1@\n1 CHIL @I7@\n0 TRLR\n";

TEST_F(PersonPanelTest, TheCardTellsTheFamilyAndWhoIsAHalfSibling) {
    EXPECT_FALSE(main.personPanel.Card());
    Read(WithCrLf(kPatchwork));
    // What the user sorts changes nothing.
    main.lvwFamilyXref.SortBy(FamilyXref::IDIndi, 0);
    const PersonCard child = CardOf("@I3@");
    EXPECT_EQ(child.name, "Roy, Paul");
    EXPECT_EQ(TextOf(child.parents), "@I1@ Roy, Jean (1870-1950) Père;@I2@ Lee, Anne (-1932) Mère;"_t);
    EXPECT_EQ(TextOf(child.siblings),
              "@I4@ Roy, Zoe (1901-) sœur;@I5@ Roy, Luc demi-sœur; @I9@ (absent du fichier) demi-frère ou "
              "demi-sœur;@I7@ Roy, Guy frère ou sœur;"_t);
    EXPECT_EQ(child.island, "Îlot 0001 : 7 individus"_t);
    const PersonCard father = CardOf("@I1@");
    EXPECT_EQ(father.birth, "1870, Lyon");
    EXPECT_EQ(father.death, "1950");
    Text unions;
    for (const PersonCard::Union& made : father.unions)
        unions += Concat({TextOf(made.spouses), made.marriage, ":", TextOf(made.children), "/"});
    EXPECT_EQ(unions,
              "@I6@ Day, Mia ;1890:@I5@ Roy, Luc ; @I9@ (absent du fichier) ;/"
              "@I2@ Lee, Anne (-1932) ;1900, Nice:@I4@ Roy, Zoe (1901-) ;@I3@ Roy, Paul (1903-) ;/"
              ":@I7@ Roy, Guy ;/");
    EXPECT_EQ(CardOf("@I2@").death, "1930-1932");

    main.cboLoad.SetListIndex(1);  // without families
    Read(WithCrLf(kPatchwork));
    EXPECT_FALSE(main.personPanel.Card()) << "the row has gone";
    EXPECT_TRUE(CardOf("@I3@").parents.people.empty());
}

TEST_F(PersonPanelTest, AHugeFamilyIsCounted) {
    Text gedcom = "0 @F1@ FAM\n";
    for (int i = 1; i <= 2000; ++i) gedcom += Concat({"1 CHIL @I", Decimal(i), "@\n"});
    for (int i = 1; i <= 2000; ++i) gedcom += Concat({"0 @I", Decimal(i), "@ INDI\n"});
    Read(WithCrLf(gedcom + "0 TRLR\n"));
    const PersonCard card = CardOf("@I7@");
    EXPECT_EQ(card.siblings.people.size() + card.siblings.more, 1999u);
    EXPECT_LT(card.siblings.people.size(), 100u);
}

TEST_F(PersonPanelTest, LinksLeadToRelativesAndTheCommandBack) {
    Read(WithCrLf(kPatchwork));
    GoTo("@I3@");
    main.personPanel.GoTo("@I1@");
    main.personPanel.GoTo("@I6@");
    main.personPanel.GoTo("@I99@");
    EXPECT_EQ(Current(), "@I6@");
    EXPECT_TRUE(main.lvwIn.Item("@I6@").Selected());
    EXPECT_FALSE(main.lvwIn.Item("@I6@").Checked()) << "looking at somebody marks nobody";
    main.personPanel.cmdPersonBack.Click();
    main.personPanel.cmdPersonBack.Click();
    EXPECT_EQ(Current(), "@I3@");
    EXPECT_FALSE(main.personPanel.cmdPersonBack.Enabled);
    main.personPanel.GoTo("@I1@");
    Read(WithCrLf(kPatchwork));
    GoTo("@I5@");
    main.personPanel.cmdPersonBack.Click();
    EXPECT_EQ(Current(), "@I5@") << "those who were left are of another read";
}

TEST_F(PersonPanelTest, FoldsWithoutRoomUntilTheUserOpensItAndOnlyTheUsersWishIsKept) {
    PersonPanel& panel = main.personPanel;
    panel.TakeRoom(false);
    EXPECT_FALSE(panel.IsOpen());
    EXPECT_TRUE(panel.chkPersonPanel.Checked());
    panel.cmdPersonPanel.Click();
    panel.TakeRoom(false);
    EXPECT_TRUE(panel.IsOpen());
    panel.cmdPersonPanel.Click();
    EXPECT_FALSE(panel.chkPersonPanel.Checked());
    panel.TakeRoom(true);
    EXPECT_FALSE(panel.IsOpen());
}

TEST_F(PersonPanelTest, TheRecordIsShownAsTheTablesAreAndOnlyOfTheFileThatWasRead) {
    // The one accent stands in a line that the tables do not hold.
    const Text gedcom = WithCrLf(
        "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 NAME A /B/\n1 NOTE \xC3\xA9t\xC3\xA9\n"
        "0 @I2@ INDI\n1 NOTE " +
        Text(100000, 'x') + "\n0 TRLR\n");
    Read(gedcom);
    GoTo("@I1@");
    EXPECT_EQ(main.personPanel.Record().text, "0 @I1@ INDI\n1 NAME A /B/\n1 NOTE été"_t);
    GoTo("@I2@");
    EXPECT_TRUE(main.personPanel.Record().text.ends_with("n'est pas montrée.)"_t));
    EXPECT_LT(main.personPanel.Record().text.size(), 70000u);
    files.time = 1;
    EXPECT_FALSE(main.personPanel.Record().isRecord);
    EXPECT_NE(main.personPanel.Record().text.find("a changé"_t), Text::npos);
    files.time = 0;
    files.contents.clear();
    EXPECT_NE(main.personPanel.Record().text.find("ne peut plus être lu"_t), Text::npos);
}

}  // namespace
}  // namespace swiftroll::test
