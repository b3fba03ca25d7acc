// The problem report.
#include <gtest/gtest.h>

#include "support/test_ports.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

TEST(Report, ExportsAllSettingsAndPreparesAMail) {
    TestMain t;
    t.main.txtPlaceSepar.SetText("a\"b\\c");
    t.files.contents["/data/SwiftRoll/SwiftRoll.log"] = "log";
    t.dialogs.answers = {BoxAnswer::Ok};
    t.main.mnuSaveParams.Click();
    const Text& exported = t.files.contents["/data/SwiftRoll/SwiftRoll_3_4_0.reg.txt"];
    EXPECT_TRUE(exported.starts_with("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\SwiftRoll\\"));
    EXPECT_NE(exported.find("\\Settings\\frmMain\\txtPlaceSepar]\r\n\"TextBox\"=\"a\\\"b\\\\c\"\r\n"),
              Text::npos)
        << exported.substr(0, 600);
    ASSERT_EQ(t.desktop.mails.size(), 1u);
    EXPECT_EQ(t.desktop.mails[0].subject, "SwiftRoll v3.4.0 : Rapport d'erreur");
    EXPECT_EQ(t.desktop.mails[0].attachments,
              Rows({"/data/SwiftRoll/SwiftRoll_3_4_0.reg.txt", "/data/SwiftRoll/SwiftRoll.log"}));
    EXPECT_TRUE(
        t.desktop.mails[0].body.starts_with("22/11/2026 14:05:09\r\nTest (1.2 Build 3 Plateform 4)\r\n"))
        << t.desktop.mails[0].body;
    t.dialogs.answers = {BoxAnswer::Cancel};
    t.main.mnuSaveParams.Click();
    EXPECT_EQ(t.desktop.mails.size(), 1u) << "Cancel sends nothing";
    // Without a mail program the user learns where the draft is.
    t.desktop.writesDraft = true;
    t.dialogs.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
    t.main.mnuSaveParams.Click();
    EXPECT_NE(t.dialogs.boxes.back().text.find("SwiftRoll_Rapport.eml"), Text::npos);
}

TEST(Report, TellsWhatIsMissingAndHowFarTheMailCame) {
    struct NoAttachments : Mail {
        bool Compose(const MailMessage&, TextView) override { throw Failure(FailureKind::FileAccess); }
    } mail;
    TestPorts t;
    frmMain main({t.dialogs, t.clock, t.events, t.files, t.folders, t.status, t.machine, t.desktop, t.desktop,
                  t.desktop, t.settings, t.preview, t.desktop, mail});
    main.Form_Load({});
    const Text asked = "log\r\n(Ce dernier n'existe pas encore : aucune erreur n'a été notée.)"_t.data();
    for (int i = 0; i < 2; ++i) {
        t.dialogs.boxes.clear();
        t.dialogs.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
        main.mnuSaveParams.Click();
        ASSERT_EQ(t.dialogs.boxes.size(), 2u);
        EXPECT_EQ(t.dialogs.boxes[0].text.ends_with(asked), i == 0) << "the first failure makes the log";
        EXPECT_EQ(t.dialogs.boxes[0].text.ends_with("SwiftRoll.log"), i == 1);
        EXPECT_NE(t.dialogs.boxes[1].text.find("|SendMail Attach//data/SwiftRoll//data/"), Text::npos)
            << t.dialogs.boxes[1].text;
    }
}

TEST(Report, NamesTheSystemsThatTellOnlyNumbers) {
    TestMain t;
    t.machine.system = {"", 5, 1, 2600, 2};
    t.dialogs.answers = {BoxAnswer::Ok};
    t.main.mnuSaveParams.Click();
    EXPECT_NE(t.desktop.mails.at(0).body.find("Windows XP (5.1 Build 2600 Plateform 2)"), Text::npos);
}

}  // namespace
}  // namespace swiftroll::test
