// The start of the application.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

TEST(Startup, AFirstStartFillsTheFileNamesAndTheCommands) {
    const TestMain t;
    EXPECT_EQ(t.main.cboGedIn.Get(), "/docs/.ged");
    EXPECT_EQ(t.main.cboGedOut.Get(), "/docs/.Extrait.ged");
    EXPECT_EQ(t.main.cboSwiftOut.Items(), std::vector<Text>{"/docs/.txt"});
    EXPECT_EQ(t.main.cboFileModel.Get(), "/models/SwiftRoll.Modele.txt");
    EXPECT_EQ(t.main.cboKinship.Get(), "/docs/Kinship.html");
    EXPECT_EQ(t.folders.created, std::vector<Text>{"/data/SwiftRoll"});
    EXPECT_EQ(t.main.cmdLoad.Caption, "Lire Tout");
    EXPECT_EQ(t.main.cmdSaveSwift.Caption, "Ecrire en Texte");
    EXPECT_FALSE(t.main.txtINDEX.Enabled);
    EXPECT_TRUE(t.dialogs.boxes.empty());
}

TEST(Startup, WithoutADataFolderTheTemporaryOneServes) {
    TestPorts ports;
    ports.folders.userData = "";
    frmMain main(ports.All());
    main.Form_Load({});
    EXPECT_EQ(main.sUserAppData, "/tmp");
}

TEST(Startup, TheUserIsToldOfANameThatIsTakenAsSoonAsTheWindowIsThere) {
    TestPorts ports;
    frmMain main(ports.All());
    main.OnShow = [&] {
        main.SetFocus(main.cboGedIn);
        main.cboGedIn.SetText(main.cboFileModel.Get());
        main.SetFocus(main.cmdLoad);
    };
    main.Form_Load({});
    ASSERT_EQ(ports.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(ports.dialogs.boxes[0].text.starts_with("Vous allez écraser"_t))
        << ports.dialogs.boxes[0].text;
}

TEST(Startup, TheCommandLineNamesAFileThatIsNotRead) {
    const std::pair<TextView, TextView> cases[] = {
        {" \"/gens/ma famille.ged\" ", "/gens/ma famille.ged"},
        {"/gens/\"a\".ged", "/gens/a.ged"},
        {" \"\" ", "/docs/.ged"},
        // The name of another file combo is dropped without a word.
        {"/models/SwiftRoll.Modele.txt", ""}};
    for (const auto& [commandLine, gedIn] : cases) {
        TestPorts ports;
        ports.files.contents["/gens/a.ged"] = "0 @1@ INDI\r\n0 TRLR\r\n";
        frmMain main(ports.All());
        main.Form_Load(commandLine);
        EXPECT_EQ(main.cboGedIn.Get(), gedIn);
        EXPECT_EQ(main.lvwIn.Count(), 0);
        EXPECT_EQ(main.cboSwiftOut.Get(), "/docs/.txt");
        EXPECT_TRUE(ports.dialogs.boxes.empty());
    }
}

TEST(Startup, AFailureEndsTheApplicationAfterItsReport) {
    struct NoModels : TestFolders {
        Text Models() override { throw Failure(FailureKind::FileAccess); }
    } folders;
    TestPorts t;
    t.files.contents["/program/help/index.html"] = "";
    frmMain main({t.dialogs, t.clock, t.events, t.files, folders, t.status, t.machine, t.desktop, t.desktop,
                  t.desktop, t.settings, t.preview, t.desktop, t.desktop});
    EXPECT_THROW(main.Form_Load({}), ProgramEnd);
    ASSERT_EQ(t.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(t.dialogs.boxes[0].text.ends_with("|InitCombos/0//docs/.ged//|")) << t.dialogs.boxes[0].text;
    EXPECT_EQ(t.files.contents.count("/data/SwiftRoll/SwiftRoll.log"), 1u);
}

}  // namespace
}  // namespace swiftroll::test
