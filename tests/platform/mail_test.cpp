#include "platform/mail.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "text/literal.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;

struct MailTest : testing::Test {
    MailTest() {
        fs::create_directories(folder);
        std::ofstream(folder / "report.txt") << "content of the report";
        message = {"SwiftRoll",
                   "a@b.example",
                   Text("Sujet accentué"_t),
                   "Body; with \"quotes\" and $HOME",
                   {(folder / "report.txt").string()}};
    }
    ~MailTest() override {
        setenv("PATH", path.c_str(), 1);
        fs::remove_all(folder);
    }
    /// Makes the desktop's command a script.
    void Install(const std::string& script) {
        std::ofstream(folder / "xdg-email") << "#!/bin/sh\n" << script;
        fs::permissions(folder / "xdg-email", fs::perms::owner_all);
        setenv("PATH", (folder.string() + ":" + path).c_str(), 1);
    }
    std::string Content(const fs::path& file) {
        std::ostringstream content;
        content << std::ifstream(file).rdbuf();
        return content.str();
    }
    const std::string path = std::getenv("PATH");
    const fs::path folder = fs::temp_directory_path() / ("swiftroll-mail-" + std::to_string(::getpid()));
    struct Wait : EventPump {
        void Yield() override {}
        void YieldFor(int milliseconds, const bool&) override {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        }
    } wait;
    MailMessage message;
    DesktopMail mail{wait};
};

TEST_F(MailTest, TheMailProgramGetsEveryPartAsOneArgument) {
    Install("for a in \"$@\"; do printf '%s\\n' \"$a\" >> " + (folder / "arguments").string() + "; done\n");
    EXPECT_FALSE(mail.Compose(message, (folder / "draft.eml").string()));
    EXPECT_EQ(Content(folder / "arguments"),
              "--utf8\n--subject\nSujet accentué\n--body\nBody; with \"quotes\" and $HOME\n"
              "--attach\n" +
                  (folder / "report.txt").string() + "\na@b.example\n");
    EXPECT_FALSE(fs::exists(folder / "draft.eml"));
}

TEST_F(MailTest, WithoutAMailProgramTheMessageIsADraft) {
    Install("exit 3\n");
    EXPECT_TRUE(mail.Compose(message, (folder / "draft.eml").string()));
    // Another reader of mails understands it.
    const std::string script =
        "import email,email.policy,sys\n"
        "m=email.message_from_file(open(sys.argv[1]),policy=email.policy.default)\n"
        "b,a=list(m.iter_parts())\n"
        "assert m['subject']=='Sujet accentué' and m['x-unsent']=='1', m['subject']\n"
        "assert b.get_content().startswith('Body; with \"quotes\"')\n"
        "assert a.get_filename()=='report.txt' and a.get_content()==b'content of the report'\n";
    std::ofstream(folder / "check.py") << script;
    const std::string command =
        "python3 " + (folder / "check.py").string() + " " + (folder / "draft.eml").string();
    EXPECT_EQ(std::system(command.c_str()), 0) << Content(folder / "draft.eml");
}

}  // namespace
}  // namespace swiftroll::platform
