// What the message bar tells at the end of a work.
#include "shell/work_notice.h"

#include "lists_fixture.h"

namespace swiftroll::test {
namespace {

struct WorkNotices : Lists {
    Text Told() {
        const Notice* told = main.messageBar.Told();
        return told == nullptr ? Text() : told->text;
    }
};

TEST_F(WorkNotices, TellWhatWasMadeAndOpenIt) {
    Read("0 @I1@ INDI\r\n1 NAME A /B/\r\n0 @I2@ INDI\r\n0 TRLR\r\n");
    EXPECT_EQ(Told(), "Fichier lu: 2 individus, 0 famille");
    main.cboLoad.SetListIndex(1);
    main.cmdLoad.Click();
    EXPECT_EQ(Told(), "Fichier lu: 2 individus");
    main.cmdCalcOutput.Click();
    EXPECT_EQ(Told(), "Liste calculée: 2 lignes"_t);
    main.cboSaveSwift.SetListIndex(2);
    main.chkGenerXSL.SetChecked(false);
    main.lvwOut.Item(1).SetChecked(true);
    dialogs.answers = {BoxAnswer::No};
    dialogs.files = {"liste.xml"};
    main.cmdSaveSwift.Click();
    EXPECT_EQ(Told(), Concat({"Relevé écrit: 1 ligne, "_t, Decimal(std::ssize(files.contents["liste.xml"])),
                              " octets"}));
    main.cboSwiftOut.SetText("autre.xml");
    main.messageBar.PressTold(0);
    EXPECT_EQ(desktop.opened.back(), "liste.xml") << "the file that was written, whatever is named since";
    files.contents["gros.xml"].assign(2'150'000, 'x');
    TellWritten(main, main.fileCombos, "Relevé écrit"_t, {Counted(1204, "ligne", "lignes")}, "gros.xml");
    EXPECT_EQ(Told(), "Relevé écrit: 1 204 lignes, 2,1 Mo"_t);

    files.readOnly.insert("liste.xml");
    main.messageBar.ForgetTold();
    dialogs.files = {"liste.xml"};
    main.cboSaveSwift.SetListIndex(1);
    files.contents["/models/SwiftRoll.Modele.txt"] = "a @ID@ b";
    main.cmdSaveSwift.Click();
    EXPECT_EQ(Told(), "") << "nothing was written: " << dialogs.boxes.back().text;
}

TEST_F(WorkNotices, TellTheExtractTheDrawingsAndTheSetThatWasSaved) {
    main.lvwIn.Item("@I1@").SetSelected(true);
    main.lvwIn.Item("@I3@").SetSelected(true);
    dialogs.files = {"out.ged"};
    main.cmdSaveGed.Click();
    EXPECT_TRUE(Told().starts_with("Extrait écrit: 2 individus, 1 famille, "_t)) << Told();
    dialogs.files = {"out.html"};
    main.mnuDrawKinshipAll.Click();
    const auto paths = main.lvwPaths.Count();
    EXPECT_TRUE(Told().starts_with(paths == 1 ? Text("Dessin écrit: 1 chemin, "_t)
                                              : Concat({"Dessins écrits: "_t, Decimal(paths), " chemins, "})))
        << Told();
    main.cboOutPlace.SetFromText("Rue & ville");
    main.cmdSavePlace.Click();
    EXPECT_EQ(Told(), "Jeu « Rue & ville » enregistré."_t);
}

TEST_F(WorkNotices, TellWhatWasStoppedAndNeverCoverAQuestion) {
    bool couldStop = false;
    events.onYield = [&] {
        couldStop = main.bCanStop;
        main.cmdStop.Click();
    };
    main.kinshipRequest.FindPathBetween("@I3@", "@I1@");
    EXPECT_TRUE(Told().starts_with("Recherche interrompue")) << Told();
    EXPECT_EQ(main.messageBar.StayOfTold(), Stay::UntilNext);
    EXPECT_TRUE(couldStop);
    EXPECT_FALSE(main.bCanStop);
    Read("0 @I1@ INDI\r\n1 NAME A /B/\r\n0 @I2@ INDI\r\n0 @I3@ INDI\r\n0 TRLR\r\n");
    EXPECT_TRUE(Told().starts_with("Lecture interrompue: ")) << Told();
    events.onYield = nullptr;
    Read("0 @I1@ INDI\r\n1 BIRT\r\n2 DATE @#DFRENCH R@ 3 NIVO 9\r\n0 TRLR\r\n");
    EXPECT_EQ(Told(), "Fichier lu: 1 individu, 0 famille");
    ASSERT_NE(main.messageBar.Seen(), nullptr);
    EXPECT_EQ(main.messageBar.Seen()->buttons[0].caption, "Relire avec ces dates");
}

TEST_F(WorkNotices, AFailedCheckForVersionsCanBeRepeated) {
    main.mnuCheckUpdate.Click();
    EXPECT_EQ(main.messageBar.Seen(), nullptr) << "without a site there is nothing to repeat";
    main.sWebAddress = "https://maker.test";
    main.mnuCheckUpdate.Click();
    ASSERT_NE(main.messageBar.Seen(), nullptr);
    EXPECT_EQ(main.messageBar.Seen()->buttons[1].caption, "Fermer");
    main.messageBar.Press(1);
    EXPECT_EQ(main.messageBar.Seen(), nullptr);
    main.mnuCheckUpdate.Click();
    files.contents["/data/SwiftRoll/Updates.ini"] = "[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=3.6.0\n";
    main.messageBar.Press(0);
    EXPECT_EQ(main.messageBar.Seen(), nullptr);
    EXPECT_EQ(main.updates.tvwUpdates.Nodes().size(), 2u);
}

}  // namespace
}  // namespace swiftroll::test
