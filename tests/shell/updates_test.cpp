// What the list of versions makes of the window of updates.
#include <gtest/gtest.h>

#include "support/kind_of.h"
#include "support/test_ports.h"
#include "update/version_key.h"

namespace swiftroll::test {
namespace {

constexpr TextView kManifest = "/data/SwiftRoll/Updates.ini";

struct Updates : testing::Test {
    /// Checks with a list that the web gives.
    void Check(TextView manifest, bool silent = false) {
        t.desktop.onDownload = [this, content = Text(manifest)](TextView file) {
            t.files.contents[Text(file)] = content;
        };
        if (silent) return t.main.updates.GetUpdates(true);
        t.main.mnuCheckUpdate.Click();
    }
    Updates() { t.main.sWebAddress = "https://maker.test"; }
    /// Texts of the nodes of the first level, and those below a node.
    std::vector<Text> Versions() {
        std::vector<Text> texts;
        for (const auto& node : t.main.updates.tvwUpdates.Nodes()) texts.push_back(node->text);
        return texts;
    }
    std::vector<Text> Below(std::size_t node) {
        std::vector<Text> texts;
        for (const UpdateNode& child : t.main.updates.tvwUpdates.Nodes().at(node)->children) {
            texts.push_back(child.text);
        }
        return texts;
    }
    TestMain t;
};

/// A start that checks, with this list from an earlier run and no network.
struct CheckingStart : TestPorts {
    explicit CheckingStart(TextView manifest) : main(All()) {
        settings.SaveSetting("Settings\\frmMain\\chkCheckUpdates", "CheckOrOptionBox", "1");
        files.contents[Text(kManifest)] = manifest;
        main.sWebAddress = "https://maker.test";
        main.Form_Load({});
    }
    frmMain main;
};

TEST_F(Updates, ShowTheNewestVersionFirstWithWhatItChanged) {
    Check(
        "; a remark\r\n[-swiftroll]\r\nVERS_00=v1\r\nvers_01 = \"v2\" "
        "\r\nVERS_03=v9\r\nCOMMENT_00=!***Hello\r\n"
        "COMMENT_01=***!Plain\r\nURL_BETA=http://x.example/dir/beta.zip\r\nSIZE_BETA=3 Mo\r\n"
        "DIR_FILE=http://x.example/files/\r\n"
        "[V1]\r\nVERS=3.4.0\r\nDATE=2025\r\nDESCR=Old\r\nFILE=a.zip\r\nSIZE=1\r\nFILE_UPD=u.zip\r\n"
        "[v2]\r\nVERS=3.5.0\r\nVERS=9.9.9\r\nDATE=2026\r\nDESCR=New\r\nFILE=b.zip\r\nSIZE=2\r\n"
        "[v2]\r\nDESCR=Second section of that name\r\n");
    EXPECT_EQ(Versions(), Rows({"SwiftRoll", "3.5.0 - 2026 - New", "3.4.0 - 2025 - Old"}));
    EXPECT_EQ(Below(0), Rows({"            Hello", "            !Plain"}));
    EXPECT_EQ(t.main.updates.tvwUpdates.Nodes()[0]->children[0].look.foreColour, 255u);
    EXPECT_EQ(t.main.updates.tvwUpdates.Nodes()[0]->children[1].look.foreColour, 0u);
    EXPECT_EQ(Below(1), (std::vector<Text>{"Version complète       : b.zip (2)"_t.data(),
                                           "Version de Mise-à-jour : <Aucune>"_t.data()}));
    EXPECT_TRUE(t.main.updates.tvwUpdates.Nodes()[1]->look.expanded);
    EXPECT_EQ(t.main.updates.lblDownloadBeta.Caption, "beta.zip  -  3 Mo");
    EXPECT_EQ(t.main.updates.lblDownloadLastFull.Tag, "http://x.example/files/b.zip");
    EXPECT_EQ(t.main.updates.lblDownloadLastUpd.Caption, "Pas de version \"Màj\""_t);
    EXPECT_TRUE(t.main.updates.Caption.ends_with(" - Une nouvelle version est disponible."));
    t.main.updates.lblDownloadLastFull.Click();
    EXPECT_EQ(t.desktop.opened.back(), "http://x.example/files/b.zip");
}

TEST_F(Updates, ASilentCheckSpeaksOnlyOfWhatIsNewer) {
    Check("[-SwiftRoll]\r\nVERS_00=a\r\n[a]\r\nVERS=3.4.0 b2\r\n", true);
    EXPECT_FALSE(t.main.updates.Visible());
    EXPECT_EQ(t.main.pnlMessage.Get(), "Vous avez la dernière version."_t);
    Check("[-SwiftRoll]\r\nVERS_00=a\r\n[a]\r\nVERS=3.4.1\r\n", true);
    EXPECT_TRUE(t.main.updates.Visible());
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

TEST_F(Updates, WithoutAListTheUserIsToldAndAnOldCopyServes) {
    t.main.mnuCheckUpdate.Click();
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(t.dialogs.boxes[0].text.starts_with("Pas de version trouvée"_t));
    t.files.contents[Text(kManifest)] = "[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=3.6.0\n";
    t.main.mnuCheckUpdate.Click();
    EXPECT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_EQ(Versions().size(), 2u);
}

TEST_F(Updates, HostileListsEndInAReport) {
    const std::pair<Text, const char*> manifests[] = {
        {"[-SwiftRoll]\nVERS_00=Root\n[Root]\nVERS=1.0.0\n", "457: "},
        {"[-SwiftRoll]\nVERS_00=a\nVERS_01=A\n[a]\nVERS=1.0.0\n", "457: "},
        {"[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=abc\n", "13: "},
        {"[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=4.0\n", "9: "}};
    for (const auto& [manifest, number] : manifests) {
        t.dialogs.boxes.clear();
        Check(manifest);
        ASSERT_EQ(t.dialogs.boxes.size(), 1u) << manifest;
        EXPECT_TRUE(t.dialogs.boxes[0].text.starts_with(number)) << t.dialogs.boxes[0].text;
        EXPECT_TRUE(t.dialogs.boxes[0].title.ends_with("\"GetUpdates")) << t.dialogs.boxes[0].title;
        EXPECT_NE(t.dialogs.boxes[0].text.find(Below(0).back()), Text::npos) << "the window tells it too";
        EXPECT_EQ(t.main.pnlMessage.Get(), "Vérification impossible."_t);
    }
}

TEST_F(Updates, AListThatCannotBeReadDoesNotEndAStart) {
    for (const char* version : {"4.0", "abc", "3.x.0"}) {
        CheckingStart start(Concat({"[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=", version, "\n"}));
        EXPECT_FALSE(start.main.bStarting);
        EXPECT_TRUE(start.dialogs.boxes.empty());
        EXPECT_FALSE(start.main.updates.Visible());
        EXPECT_EQ(start.main.pnlMessage.Get(), "Vérification impossible."_t);
        const Text& log = start.files.contents["/data/SwiftRoll/SwiftRoll.log"];
        EXPECT_NE(log.find("SwiftRoll (v3.4.0) - Erreur \"GetUpdates : "), Text::npos) << log;
    }
}

TEST_F(Updates, VersionsBeyondAllKeysAreShownButNeverNewer) {
    for (const char* version : {"4.0.0", "3.27.68", "40000.0.0", "99999999999.0.0"}) {
        const Text section = Concat({"[b]\nVERS=", version, "\nDATE=2030\nDESCR=Far\nFILE=far.zip\n"});
        CheckingStart start(Concat({"[-SwiftRoll]\nVERS_00=b\n", section}));
        EXPECT_EQ(start.main.pnlMessage.Get(), "Vous avez la dernière version."_t);
        EXPECT_FALSE(start.main.updates.Visible());
        Check(Concat({"[-SwiftRoll]\nDIR_FILE=https://maker.test/\nVERS_00=a\nVERS_01=b\n",
                      "[a]\nVERS=3.5.0\nFILE=a.zip\n", section}));
        EXPECT_EQ(Versions().at(1), Concat({version, " - 2030 - Far"}));
        EXPECT_FALSE(t.main.updates.tvwUpdates.Nodes()[1]->look.expanded);
        EXPECT_EQ(t.main.updates.lblDownloadLastFull.Tag, "https://maker.test/a.zip");
    }
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

TEST_F(Updates, OnlyAddressesOfTheWebBecomeLinks) {
    for (const char* address :
         {"file:///etc/passwd", "ssh://x/y", "/usr/bin/x", "-x", "javascript:http://x"}) {
        Check(Concat({"[-SwiftRoll]\nVERS_00=a\nURL_BETA=", address, "\nDIR_FILE=", address,
                      "\n[a]\nVERS=3.5.0\nFILE=/f\nFILE_UPD=/u\n"}));
        const std::size_t opened = t.desktop.opened.size();
        for (DownloadLabel* label : {&t.main.updates.lblDownloadBeta, &t.main.updates.lblDownloadLastFull,
                                     &t.main.updates.lblDownloadLastUpd}) {
            label->Click();
            EXPECT_FALSE(label->Caption.starts_with("Pas de ")) << "it is text";
            EXPECT_EQ(label->Tag, "");
        }
        EXPECT_EQ(t.desktop.opened.size(), opened) << address;
    }
    Check("[-SwiftRoll]\nVERS_00=a\nURL_BETA=HTTPS://x.test/b\n");
    t.main.updates.lblDownloadBeta.Click();
    EXPECT_EQ(t.desktop.opened.back(), "HTTPS://x.test/b");
}

TEST_F(Updates, WithoutASiteNothingIsFetched) {
    TestMain unset;
    unset.main.mnuCheckUpdate.Click();
    EXPECT_TRUE(unset.desktop.opened.empty());
    EXPECT_EQ(unset.main.pnlMessage.Get(),
              "Aucun site n'est défini pour les mises-à-jour. Vérification impossible."_t);
    EXPECT_EQ(unset.main.updates.tvwUpdates.Nodes().at(0)->children.at(0).text,
              "Aucun site n'est défini pour les mises-à-jour."_t);
    t.main.mnuCheckUpdate.Click();
    EXPECT_EQ(t.desktop.opened, Rows({"https://maker.test/Updates.ini"}));
}

TEST_F(Updates, ALongListEndsAtTheLastTwoDigitsAndLongValuesAreCut) {
    Text manifest = "[-SwiftRoll]\nCOMMENT_00=" + Text(5000, 'x') + "\x01\x02\n";
    for (int i = 0; i < 10000; ++i) {
        const Text number = std::to_string(i);
        manifest += "VERS_" + (number.size() < 2 ? "0" + number : number) + "=s" + number + "\n[s" + number +
                    "]\nVERS=1." + std::to_string(i % 99) + ".0\n[-SwiftRoll" + number + "]\n";
    }
    Text versions = "[-SwiftRoll]\n";
    for (int i = 0; i < 10000; ++i) {
        const Text number = std::to_string(i);
        versions += "VERS_" + (number.size() < 2 ? "0" + number : number) + "=s" + number + "\n";
    }
    Check(versions + "COMMENT_00=" + Text(5000, 'x') + "\n");
    EXPECT_EQ(Versions().size(), 101u);
    EXPECT_EQ(Below(0).at(0).size(), 999u);
    Check(manifest);  // cut off and out of order: no hang, no failure
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

TEST(AdjustVersion, PutsBetasBeforeTheirRelease) {
    EXPECT_EQ(AdjustVersion("3.4.0"), "03.04.00");
    EXPECT_EQ(AdjustVersion("3.4.0 b2"), AdjustVersion("3.3.99"));
    EXPECT_EQ(AdjustVersion("3.4.1 b1"), "03.04.00");
    EXPECT_EQ(AdjustVersion("3.0.0 b1"), AdjustVersion("2.99.99"));
    EXPECT_EQ(AdjustVersion(""), "00.00.00");
    EXPECT_EQ(AdjustVersion("3.27.67"), "03.27.67");
    EXPECT_EQ(KindOf([] { AdjustVersion("3.27.68"); }), FailureKind::Overflow);
    EXPECT_LT(AdjustVersion("2.9.50"), AdjustVersion("3.0.0"));
}

}  // namespace
}  // namespace swiftroll::test
