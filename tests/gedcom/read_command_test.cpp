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

TEST(ReadCommand, ASmallFileFillsAllTables) {
    const Text text(
        "0 HEAD\n1 SOUR X\n2 VERS 4\n1 CHAR ANSI\n0 @U1@ SUBM\n1 NAME Not a person\n"
        "0 @I1@ INDI\n1 NAME Jean Noël /LEFÈVRE/ fils\n1 SEX M\n1 BIRT\n2 DATE ABT 1750\n"
        "2 PLAC Étaples, Pas-de-Calais,,\n"
        "1 DEAT Y\n2 DATE BET 3 JAN 1801 AND 1803\n1 FAMS @F2@\n1 FAMS @F10@\n"
        "0 @I2@ INDI\n1 NAME Anne /MARTIN/\n1 SEX F\n1 CHR\n2 DATE 1755\n1 FAMS @F10@\n"
        "0 @I3@ INDI\n1 NAME Rose /PETIT/\n1 SEX F\n1 DEAT\n2 PLAC Lille\n2 DATE 1830/31\n1 FAMS @F2@\n"
        "1 ALIA @I5@\n0 @I4@ INDI\n1 NAME Luc /LEFÈVRE/\n1 SEX M\n1 FAMC @F10@\n"
        "0 @I5@ INDI\n1 NAME Rosine /PETIT/\n1 NOTE @N1@\n0 @I6@ INDI\n1 NAME Inconnu\n"
        "0 @N1@ NOTE text\n1 CONT 1 NAME no\n"
        "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I3@\n1 MARC\n2 DATE 1790\n1 MARR\n2 DATE 12 FEB 1791\n"
        "2 PLAC Lille\n"
        "0 @F10@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I4@\n1 MARR\n2 DATE 1775\n0 TRLR\n"_t);
    AfterReading t(text);
    const Text jean("LEFÈVRE, Jean Noël/fils"_t), pair10 = jean + " x MARTIN, Anne",
                                                  pair2 = jean + " x PETIT, Rose";
    const auto rows = [&](Table& table) {
        std::vector<Text> all = RowsOf(table);
        for (Text& row : all)
            row = ReplaceAll(ReplaceAll(ReplaceAll(row, pair10, "<F10>"), pair2, "<F2>"), jean, "<I1>");
        return all;
    };
    EXPECT_EQ(rows(t.main.lvwIn),
              Rows({"@I1@|LEFÈVRE|Jean Noël/fils|Étaples, Pas-de-Calais|1750|1750||1801|1803|"
                    "Étaples, Pas-de-Calais|1750|1803|M|Lille|1790|1791|0001"_t,
                    "@I2@|MARTIN|Anne||||||||1775|1775|F||1775|1775|0001",
                    "@I3@|PETIT|Rose||||Lille|1830|1830|Lille|1790|1830|F|Lille|1790|1791|0001",
                    "@I4@|LEFÈVRE|Luc||||||||||M||||0001"_t, "@I5@|PETIT|Rosine||||||||||||||0001",
                    "@I6@|Inconnu|||||||||||||||0002"}));
    EXPECT_EQ(rows(t.main.lvwFamily), Rows({"@F10@|@I1@|@I2@|||1775|1775|<F10>|<I1>|MARTIN, Anne|",
                                            "@F2@|@I1@|@I3@||Lille|1790|1791|<F2>|<I1>|PETIT, Rose|"}));
    EXPECT_EQ(rows(t.main.lvwFamilyXref),
              Rows({"@F10@|Epoux|@I1@|M|<F10>|<I1>", "@F10@|Epouse|@I2@|F|<F10>|MARTIN, Anne",
                    "@F10@|Fils|@I4@|M|<F10>|LEFÈVRE, Luc"_t, "@F2@|Epoux|@I1@|M|<F2>|<I1>",
                    "@F2@|Epouse|@I3@|F|<F2>|PETIT, Rose"}));
    EXPECT_EQ(
        rows(t.main.lvwXref),
        Rows({"@I1@|Epoux|@I2@|<I1>|MARTIN, Anne|@F10@|<F10>",
              "@I1@|Père|@I4@|<I1>|LEFÈVRE, Luc|@F10@|<F10>"_t, "@I1@|Epoux|@I3@|<I1>|PETIT, Rose|@F2@|<F2>",
              "@I2@|Epouse|@I1@|MARTIN, Anne|<I1>|@F10@|<F10>", "@I3@|ALIA|@I5@||||",
              "@I3@|Epouse|@I1@|PETIT, Rose|<I1>|@F2@|<F2>", "@I4@|Fils|@I1@|LEFÈVRE, Luc|<I1>|@F10@|<F10>"_t,
              "@I5@|ALIA|@I3@||||"}));
    EXPECT_EQ(Panels(t.main),
              Rows({"Ligne(s) GEDCOM : 57"_t, "6 Individu(s)"_t, "2 Famille(s)"_t, "Lecture terminée"_t}));
    EXPECT_EQ(t.main.reader.lines.colRecords().Count(), 10u);
    EXPECT_EQ(Slice(WithCrLf(text), t.main.lvwIn.Item("@I6@")), "0 @I6@ INDI\r\n1 NAME Inconnu\r\n");
    // Widths for the export are those of the widest texts.
    EXPECT_EQ(t.main.lMaxLenIn[In::Place], 22);
    EXPECT_EQ(t.main.lMaxLenFamily[Family::Fam], 38);
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

}  // namespace
}  // namespace swiftroll::test
