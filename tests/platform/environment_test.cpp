#include <gtest/gtest.h>
#include <stdlib.h>

#include <csignal>
#include <map>

#include "app/french_date.h"
#include "platform/interrupt.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"
#include "text/code_page.h"
#include "text/literal.h"

namespace swiftroll::platform {
namespace {

/// Sets variables of the environment for one test; an empty value unsets one.
class EnvironmentTest : public testing::Test {
  protected:
    ~EnvironmentTest() override {
        for (const auto& [name, value] : before_) Write(name, value);
    }
    void Set(const std::string& name, const std::string& value) {
        const char* old = getenv(name.c_str());
        before_.emplace(name, old == nullptr ? "" : old);
        Write(name, value);
    }

  private:
    static void Write(const std::string& name, const std::string& value) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
    std::map<std::string, std::string> before_;
};

TEST_F(EnvironmentTest, AGivenInstantIsInUtcWhateverTheZone) {
    const std::pair<const char*, TextView> instants[] = {
        {"0", "jeudi 1 janvier 1970 00:00:00"_t},
        {"1795442709", "lundi 23 novembre 2026 14:05:09"_t},
        {"951782399", "lundi 28 février 2000 23:59:59"_t},
        {"-1", "mercredi 31 décembre 1969 23:59:59"_t},
    };
    Set("TZ", "Asia/Tokyo");
    for (const auto& [epoch, told] : instants) {
        Set("SOURCE_DATE_EPOCH", epoch);
        const Moment now = SystemClock().Now();
        EXPECT_EQ(LongDate(now) + " " + LongTime(now), told) << epoch;
    }
    for (const char* epoch : {"", "soon"}) {
        Set("SOURCE_DATE_EPOCH", epoch);
        EXPECT_GE(SystemClock().Now().year, 2024) << "the clock of the machine counts";
    }
}

TEST_F(EnvironmentTest, FoldersFollowIt) {
    UserFolders folders;
    Set("HOME", "/nowhere/Zoé");
    Set("XDG_DATA_HOME", "");
    Set("XDG_DOCUMENTS_DIR", "");
    EXPECT_EQ(folders.UserData(), "/nowhere/Zoé/.local/share"_t);
    EXPECT_EQ(folders.UserDocuments(), "/nowhere/Zoé"_t);  // without a folder of documents
    Set("XDG_DATA_HOME", "/data//");
    Set("XDG_DOCUMENTS_DIR", "/日本/");
    EXPECT_EQ(folders.UserData(), "/data");
    EXPECT_EQ(FileNameFromText(folders.UserDocuments()), "/日本");
    // A folder that is not told from the root means nothing.
    Set("XDG_DATA_HOME", "data");
    EXPECT_EQ(folders.UserData(), "/nowhere/Zoé/.local/share"_t);
    Set("XDG_CONFIG_HOME", "");
    EXPECT_EQ(folders.Settings(), "/nowhere/Zoé/.config/SwiftRoll"_t);
    Set("XDG_CONFIG_HOME", "/settings");
    EXPECT_EQ(folders.Settings(), "/settings/SwiftRoll");
    Set("XDG_CONFIG_HOME", "");
    Set("HOME", "");
    EXPECT_EQ(folders.UserData() + folders.Settings(), "");
}

TEST(InterruptDeathTest, TheFirstIsNotedAndTheSecondEndsTheProgram) {
    const auto twice = [] {
        CatchInterrupts();
        if (WasInterrupted()) std::exit(1);
        std::raise(SIGINT);
        if (!WasInterrupted()) std::exit(2);
        std::raise(SIGINT);
    };
    EXPECT_EXIT(twice(), testing::KilledBySignal(SIGINT), "");
}

}  // namespace
}  // namespace swiftroll::platform
