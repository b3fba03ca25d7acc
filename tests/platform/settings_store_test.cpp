// The file of the settings: what is saved comes back, whatever happens to the file or to the program.
#include "platform/settings_store.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <thread>

#include "platform/sqlite.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;
using Pairs = SettingsStore::Pairs;

struct SettingsFileTest : testing::Test {
    SettingsFileTest() : folder_(mkdtemp(name_)), file_(folder_ / "settings.sqlite") {
        fs::permissions(folder_, fs::perms::all);
    }
    ~SettingsFileTest() override {
        fs::permissions(folder_, fs::perms::all);
        fs::remove_all(folder_);
    }
    SettingsFile Open() const { return SettingsFile(folder_.string()); }
    void Save(TextView value) const { Open().SaveSetting("s", "k", value); }
    Text Saved() const { return Open().GetSetting("s", "k", "none"); }
    std::string Bytes(const fs::path& path) const {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void Overwrite(std::string_view bytes) const { std::ofstream(file_, std::ios::binary) << bytes; }

  private:
    char name_[32] = "/tmp/settings-XXXXXX";

  public:
    const fs::path folder_;
    const fs::path file_;
};

TEST_F(SettingsFileTest, WhatStandsThereIsKeptEvenWhenItCannotBeRead) {
    SettingsFile store = Open();
    store.AddSetting("s", "k", "first");
    store.AddSetting("s", "k", "second");
    EXPECT_EQ(Saved(), "first");
    SqliteFile(file_.string()).Execute("UPDATE settings SET value = CAST(x'FF' AS TEXT)");
    store.AddSetting("s", "k", "default");
    EXPECT_EQ(Saved(), "none");
}

TEST_F(SettingsFileTest, AnyTextsComeBackAfterAnyOrderOfWrites) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const auto text = [&](int longest) {
        Text bytes;
        for (int i = upTo(longest); i > 0; --i) bytes += static_cast<char>(upTo(255));
        return bytes;
    };
    Text everyByte;
    for (int i = 0; i < 256; ++i) everyByte += static_cast<char>(i);
    std::vector<Text> sections = {"", "A", "a", "A\\", "A\\B", "A\\B\\C", "A]", "A[", "\xFF", everyByte};
    for (int i = 0; i < 10; ++i)
        sections.push_back(sections[static_cast<std::size_t>(upTo(9))] + "\\" + text(3));

    std::map<Text, std::map<Text, Text>> expected;
    const auto writeOne = [&](SettingsFile& store) {
        const Text& section = sections[static_cast<std::size_t>(upTo(19))];
        const Text key = upTo(50) == 0 ? everyByte : text(2);
        if (upTo(9) > 1) {
            const Text value = upTo(20) == 0 ? everyByte : text(30);
            store.SaveSetting(section, key, value);
            expected[section][key] = value;
        } else if (upTo(5) > 0) {
            store.DeleteSetting(section, key);
            expected[section].erase(key);
        } else {
            store.DeleteSetting(section);
            std::erase_if(expected, [&](const auto& entry) {
                return entry.first == section || entry.first.starts_with(section + "\\");
            });
        }
    };
    for (int run = 0; run < 6; ++run) {
        SettingsFile store = Open();
        writeOne(store);
        store.Together([&] {
            for (int step = 0; step < 200; ++step) writeOne(store);
        });
    }
    SettingsFile store = Open();
    for (const Text& section : sections) {
        Pairs pairs = store.GetAllSettings(section);
        std::sort(pairs.begin(), pairs.end());
        EXPECT_EQ(pairs, Pairs(expected[section].begin(), expected[section].end()));
        for (const auto& [key, value] : expected[section])
            EXPECT_EQ(store.GetSetting(section, key, "-"), value);
    }
    EXPECT_EQ(store.Notice(), "");
}

TEST_F(SettingsFileTest, ADamagedFileIsKeptAsideAndOthersAreNotOverwritten) {
    Save("saved");
    const std::string sound = Bytes(file_);
    std::string torn = sound;
    torn.replace(torn.size() / 2, 100, 100, 'x');
    {
        fs::remove(file_);
        SqliteFile(file_.string()).Execute("CREATE TABLE settings (name TEXT)");
    }
    const std::string foreign = Bytes(file_);
    int number = 0;
    for (const std::string& damaged : {std::string(3000, 'x'), sound.substr(0, 1500), torn, foreign}) {
        Overwrite(damaged);
        const fs::path aside = file_.string() + ".endommage-" + std::to_string(++number);
        {
            SettingsFile store = Open();
            EXPECT_NE(store.Notice().find(aside.string() + ","), Text::npos) << store.Notice();
            EXPECT_EQ(store.GetSetting("s", "k", "none"), "none");
            store.SaveSetting("s", "k", "new");
        }
        EXPECT_EQ(Bytes(aside), damaged);
        SettingsFile again = Open();
        EXPECT_EQ(again.GetSetting("s", "k", "none") + again.Notice(), "new");
    }
}

TEST_F(SettingsFileTest, AFileThatAnotherProgramHoldsIsLeftAlone) {
    Save("saved");
    {
        const SqliteFile other(file_.string());
        other.Execute("BEGIN EXCLUSIVE");
        const auto start = std::chrono::steady_clock::now();
        SettingsFile store = Open();
        EXPECT_NE(store.Notice().find("utilisé par un autre programme"_t), Text::npos) << store.Notice();
        EXPECT_EQ(store.GetSetting("s", "k", "none"), "none");
        // What was not read must not be replaced by the defaults.
        EXPECT_THROW(store.Together([&] { store.SaveSetting("s", "k", "default"); }), Failure);
        other.Execute("COMMIT");
        EXPECT_THROW(store.SaveSetting("s", "k", "default"), Failure);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    }
    EXPECT_EQ(Saved(), "saved");
    {
        SettingsFile store = Open();
        const SqliteFile other(file_.string());
        other.Execute("BEGIN IMMEDIATE");
        EXPECT_THROW(store.Together([&] { store.SaveSetting("s", "k", "lost"); }), Failure);
        other.Execute("COMMIT");
        store.Together([&] { store.SaveSetting("s", "k", "later"); });
    }
    EXPECT_EQ(Saved(), "later");
}

TEST_F(SettingsFileTest, AReadOnlyFileIsReadAndItsFolderMayBeMissing) {
    Save("saved");
    const std::string before = Bytes(file_);
    fs::permissions(file_, static_cast<fs::perms>(0444));
    fs::permissions(folder_, static_cast<fs::perms>(0555));
    // Nothing is read-only for root.
    constexpr uid_t kNobody = 65534;
    const bool isRoot = geteuid() == 0;
    ASSERT_EQ(seteuid(isRoot ? kNobody : geteuid()), 0);
    {
        SettingsFile store = Open();
        EXPECT_TRUE(store.Notice().ends_with("est en lecture seule."_t)) << store.Notice();
        EXPECT_EQ(store.GetSetting("s", "k", "none"), "saved");
        EXPECT_THROW(store.Together([&] { store.SaveSetting("s", "k", "lost"); }), Failure);
        SettingsFile unmade((folder_ / "new").string());
        EXPECT_NE(unmade.Notice(), "");
        EXPECT_EQ(unmade.GetSetting("s", "k", "none"), "none");
        EXPECT_THROW(unmade.SaveSetting("s", "k", "lost"), Failure);
    }
    ASSERT_EQ(seteuid(isRoot ? 0 : geteuid()), 0);
    EXPECT_EQ(Bytes(file_), before);
    EXPECT_NE(SettingsFile("").Notice(), "");
}

TEST_F(SettingsFileTest, AFailureInTheMiddleKeepsTheFormerSettings) {
    Save("saved");
    SettingsFile store = Open();
    const auto write = [&] { store.SaveSetting("s", "k", "half"); };
    EXPECT_THROW(store.Together([&] {
        write();
        throw std::runtime_error("a failure of the walk");
    }),
                 std::runtime_error);
    EXPECT_EQ(store.GetSetting("s", "k", ""), "saved");

    // A full disk, whose failure the writer does not look at.
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit full{fs::file_size(file_), old.rlim_max};
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_THROW(store.Together([&] {
        write();
        for (int i = 0; i < 3000; ++i) {
            try {
                store.SaveSetting("s", std::to_string(i), Text(3000, 'x'));
            } catch (const Failure&) {
            }
        }
    }),
                 Failure);
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, previous);
    EXPECT_EQ(store.GetAllSettings("s"), (Pairs{{"k", "saved"}}));
    store.Together(write);
    EXPECT_EQ(Saved(), "half");
}

TEST_F(SettingsFileTest, AKilledProgramLeavesTheOldSettingsOrTheNewOnes) {
    constexpr int kKeys = 60, kRounds = 25;
    std::mt19937 random(11);
    std::set<Text> generations;
    // Long keys, so that a save is many pages of the file.
    const auto key = [](int i) { return Text(400, 'k') + std::to_string(i); };
    const auto check = [&] {
        SettingsFile store = Open();
        EXPECT_EQ(store.Notice(), "");
        std::set<Text> values;
        for (const auto& [name, value] : store.GetAllSettings("s")) values.insert(value);
        EXPECT_LE(values.size(), 1u) << "a mixture of two saves";
        generations.merge(values);
    };
    for (int round = 0; round < kRounds; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            SettingsFile store = Open();
            for (int generation = 0;; ++generation) {
                const Text value = std::to_string(round) + "." + std::to_string(generation);
                try {
                    store.Together([&] {
                        for (int i = 0; i < kKeys; ++i) store.SaveSetting("s", key(i), value);
                    });
                } catch (const Failure&) {
                    _exit(1);
                }
            }
        }
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<int>(3000, 30000)(random)));
        // Another window opens meanwhile.
        if (round % 5 == 0) check();
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "a save failed although nobody else wrote";
        check();
    }
    EXPECT_GT(generations.size(), 5u) << "too slow a machine to tell anything";
}

}  // namespace
}  // namespace swiftroll::platform
