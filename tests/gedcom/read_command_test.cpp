// The command that reads a file, from the click to the question of the recalculation.
#include <algorithm>

#include "gedcom/reader_fixture.h"
#include "tables/columns.h"

namespace swiftroll::test {
namespace {

constexpr TextView kCouple =
    "0 HEAD\n0 @I1@ INDI\n1 NAME Paul /A/\n0 @I2@ INDI\n1 NAME Marie /B/\n1 FAMS @F1@\n1 ALIA @I3@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR\n";

bool FamilyCommandsEnabled(const frmMain& main) {
    EXPECT_EQ(main.cmdFindPath.Enabled, main.cmdSaveGed.Enabled);
    EXPECT_EQ(main.cmdFindPath.Enabled, main.mnuFindPath.Enabled);
    return main.cmdFindPath.Enabled;
}

std::vector<Text> Panels(const frmMain& main) {
    return {main.pnlLines.Get(), main.pnlIndividuals.Get(), main.pnlFamilies.Get(), main.pnlMessage.Get()};
}

TEST(ReadCommand, TellsAndEnablesWhatItDid) {
    TestMain t;
    EXPECT_FALSE(FamilyCommandsEnabled(t.main));
    t.events.onYield = [&] {
        EXPECT_TRUE(t.main.SSTab1 == Tab::Options && t.main.bWaitCursor && t.main.bTablesLocked);
        EXPECT_EQ(t.main.ActiveControl(), &t.main.cboGedIn);
        EXPECT_FALSE(t.main.cmdLoad.Enabled || t.main.cboLoad.Enabled || FamilyCommandsEnabled(t.main));
        t.main.cmdLoad.Click();
        t.main.mnuReadGedCom.Click();
    };
    t.Read(WithCrLf(kCouple));
    EXPECT_GT(t.events.yields, 0);
    EXPECT_EQ(Panels(t.main),
              Rows({"Ligne(s) GEDCOM : 12"_t, "2 Individu(s)"_t, "1 Famille(s)"_t, "Lecture terminée"_t}));
    EXPECT_EQ(t.main.SSTab1, Tab::In);
    EXPECT_FALSE(t.main.bWaitCursor || t.main.bTablesLocked || t.main.bAbort);
    EXPECT_TRUE(t.main.cmdLoad.Enabled && t.main.cboLoad.Enabled && t.main.bFamiliesRead);
    EXPECT_TRUE(FamilyCommandsEnabled(t.main));
    EXPECT_EQ(t.main.ActiveControl(), nullptr);
    EXPECT_EQ(t.main.lvwActiveListView, &t.main.lvwIn);
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    const MessageBox& question = t.dialogs.boxes[0];
    EXPECT_EQ(question.title, t.main.MainCaption() + " - Recalcul");
    EXPECT_EQ(question.text,
              "Voulez-vous recalculer la sortie ?\r\n\r\n(Nécessaire après une lecture, ou lorsque\r\n"
              " les colonnes en sortie ont été permutées)"_t);
    EXPECT_TRUE(question.buttons == BoxButtons::YesNo && question.icon == BoxIcon::Question);
}

TEST(ReadCommand, WithoutFamiliesPassesThemOver) {
    TestMain t;
    t.main.cboLoad.SetListIndex(1);
    EXPECT_EQ(t.main.cmdLoad.Caption, "Lire Sans Famille");
    t.Read(WithCrLf(kCouple));
    EXPECT_EQ(t.main.lvwFamily.Count(), 0);
    EXPECT_EQ(RowsOf(t.main.lvwFamilyXref), Rows({"@F1@|FAMS|@I2@|||"}));
    EXPECT_EQ(RowsOf(t.main.lvwXref), Rows({"@I2@|ALIA|@I3@||||", "@I3@|ALIA|@I2@||||"}));
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::IslandNr}), Rows({"0001", "0002"}));
    EXPECT_EQ(Panels(t.main), Rows({"Ligne(s) GEDCOM : 12"_t, "2 Individu(s)"_t, "", "Lecture terminée"_t}));
    EXPECT_TRUE(t.main.reader.lines.colRecords().Find("FAM @F1@").has_value());
    t.main.cboLoad.SetListIndex(0);
    EXPECT_EQ(t.main.cmdLoad.Caption, "Lire Tout");
    EXPECT_FALSE(FamilyCommandsEnabled(t.main)) << "until the next read";
    t.Read(WithCrLf(kCouple));
    t.main.cboLoad.SetListIndex(1);
    EXPECT_TRUE(FamilyCommandsEnabled(t.main)) << "the families that were read still serve";
}

TEST(ReadCommand, AMissingFileLeavesTheOldTables) {
    AfterReading t(kCouple);
    t.dialogs.boxes.clear();
    t.main.cboGedIn.SetText("none.ged");
    t.main.cmdLoad.Click();
    ASSERT_EQ(t.dialogs.boxes.size(), 2u);
    EXPECT_EQ(t.dialogs.boxes[0].title, t.main.MainCaption() + " - InitGed");
    EXPECT_EQ(t.dialogs.boxes[0].text, "Le fichier none.ged n'existe pas.");
    EXPECT_EQ(t.dialogs.boxes[1].topic, BoxTopic::Recalculation);
    EXPECT_TRUE(t.main.lvwIn.Count() == 2 && t.main.lvwXref.Count() == 4 && t.main.SSTab1 == Tab::In);
    EXPECT_EQ(Panels(t.main), Rows({"", "", "", ""}));
    EXPECT_FALSE(FamilyCommandsEnabled(t.main) || t.main.bFamiliesRead || !t.main.cmdLoad.Enabled);
}

TEST(ReadCommand, AnAbortKeepsWhatWasRead) {
    for (int at = 1; at <= 6; ++at) {
        SCOPED_TRACE(at);
        TestMain t;
        t.main.chkInvertNames.SetChecked(true);
        t.events.onYield = [&] {
            if (t.events.yields == at) t.main.RequestAbort();
        };
        t.Read(WithCrLf(kCouple));
        const bool aborted = at <= 5;  // HEAD, two individuals, a family, TRLR
        EXPECT_EQ(t.main.bAbort, aborted);
        EXPECT_EQ(t.dialogs.boxes.size(), aborted ? 0u : 1u);
        EXPECT_EQ(t.main.lvwIn.Count(), std::clamp(at - 1, 0, 2)) << "the record of the request is finished";
        EXPECT_EQ(t.main.lvwFamily.Count(), at >= 4 ? 1 : 0);
        EXPECT_EQ(FamilyCommandsEnabled(t.main), !aborted);
        EXPECT_FALSE(t.main.chkInvertNames.Checked() || t.main.bWaitCursor || t.main.bTablesLocked);
        if (!aborted) continue;
        EXPECT_EQ(t.main.pnlMessage.Get(), "Interrompu par l'utilisateur !");
        for (const Text& cell : CellsOf(t.main.lvwIn, {In::IslandNr})) EXPECT_EQ(cell, "");
        t.events.onYield = nullptr;
        t.Read(WithCrLf(kCouple));
        EXPECT_TRUE(!t.main.bAbort && t.main.lvwXref.Count() == 4) << "the next read is not touched by it";
    }
}

TEST(ReadCommand, ASecondReadReplacesAllButTheList) {
    TestMain t;
    t.ReadAndList(WithCrLf(kCouple));
    const auto list = RowsOf(t.main.lvwOut);
    EXPECT_EQ(list.size(), 2u);
    t.main.lvwKinship.Add({}, "k", "1");
    // Sorted tables of the old file must not put the rows of the new one in order.
    t.main.lvwIn.SortBy(In::LastName, 1);
    t.Read("0 @J2@ INDI\r\n1 NAME X /Y/\r\n0 @J1@ INDI\r\n1 NAME Z /Z/\r\n0 TRLR\r\n");
    EXPECT_EQ(CellsOf(t.main.lvwIn, {In::ID, In::IslandNr}), Rows({"@J2@|0001", "@J1@|0002"}));
    for (Table* table : {&t.main.lvwFamily, &t.main.lvwFamilyXref, &t.main.lvwXref, &t.main.lvwKinship})
        EXPECT_EQ(table->Count(), 0) << table->Name();
    EXPECT_EQ(RowsOf(t.main.lvwOut), list) << "No to the question";
    t.dialogs.answers = {BoxAnswer::Yes};
    t.Read("0 @J2@ INDI\r\n1 NAME X /Y/\r\n0 TRLR\r\n");
    EXPECT_EQ(CellsOf(t.main.lvwOut, {Out::LastName, Out::Number}), Rows({"Y|     1"}));
    EXPECT_EQ(t.main.SSTab1, Tab::Out);
    for (const TextView file : {"", " \r\n\n", "0 HEAD", "0 TRLR\n"}) {
        t.dialogs.boxes.clear();
        t.Read(file);
        EXPECT_EQ(t.main.lvwIn.Count(), 0) << file;
        EXPECT_EQ(Panels(t.main),
                  Rows({"Ligne(s) GEDCOM : 1"_t, "0 Individu(s)"_t, "0 Famille(s)"_t, "Lecture terminée"_t}));
        EXPECT_EQ(t.dialogs.boxes.size(), 1u);
    }
}

}  // namespace
}  // namespace swiftroll::test
