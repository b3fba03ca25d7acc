#include "platform/std_files.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/user_folders.h"
#include "support/kind_of.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;
using Mode = Files::Mode;

using test::KindOf;

class StdFilesTest : public testing::Test {
  protected:
    StdFilesTest() {
        char name[] = "/tmp/swiftroll-test-XXXXXX";
        folder = mkdtemp(name);
    }
    ~StdFilesTest() override { fs::remove_all(folder); }
    Text In(TextView name) const { return Concat({folder, "/", name}); }
    void Write(TextView name, TextView bytes, Mode mode = Mode::Write) {
        const auto file = files.Open(name, mode);
        file->Write(bytes);
        file->Close();
    }
    std::optional<FailureKind> OpenKind(TextView name, Mode mode) {
        return KindOf([&] { files.Open(name, mode); });
    }

    Text folder;
    StdFiles files;
};

TEST_F(StdFilesTest, WhatCannotBeOpenedIsAFailureWithItsReason) {
    Write(In("file"), "x");
    for (const Mode mode : {Mode::Read, Mode::Write, Mode::Append}) {
        EXPECT_EQ(OpenKind(folder, mode), FailureKind::FileAccess);
        EXPECT_EQ(OpenKind(In("missing/f"), mode), FailureKind::FileNotFound);
        EXPECT_EQ(OpenKind(In("file/f"), mode), FailureKind::FileAccess);
        EXPECT_EQ(OpenKind("", mode), FailureKind::FileNotFound);
        EXPECT_EQ(OpenKind(In(Text(300, 'x')), mode), FailureKind::FileAccess);
    }
    EXPECT_EQ(OpenKind(In("missing"), Mode::Read), FailureKind::FileNotFound);
    // A program that runs is what even the superuser cannot write.
    EXPECT_EQ(OpenKind(fs::read_symlink("/proc/self/exe").string(), Mode::Append), FailureKind::FileAccess);
    try {
        files.Open(folder, Mode::Read);
    } catch (const Failure& failure) {
        EXPECT_NE(failure.What().find(folder + " : c'est un dossier"), Text::npos) << failure.What();
    }
}

TEST_F(StdFilesTest, AFullDiskIsToldByTheLastClose) {
    const auto file = files.Open("/dev/full", Mode::Write);
    file->Write("few bytes");
    EXPECT_EQ(KindOf([&] { file->Close(); }), FailureKind::FileAccess);
    EXPECT_EQ(KindOf([&] { files.Open("/dev/full", Mode::Write)->Write(Text(400'000, 'x')); }),
              FailureKind::FileAccess);
}

TEST_F(StdFilesTest, OnlyRegularFilesAreDeleted) {
    UserFolders folders;
    for (int pass = 0; pass < 2; ++pass) folders.Create(In("new/empty"));  // with its parents
    folders.Create("/proc/none");
    for (const TextView name : {"f", "target", "kept"}) Write(In(name), "x");
    fs::create_symlink("target", In("link"));
    fs::create_symlink("/dev/null", In("device"));
    fs::create_symlink("new", In("folderlink"));
    ASSERT_EQ(mkfifo(In("pipe").c_str(), 0600), 0);
    const TextView kept[] = {"target", "device", "new/empty", "folderlink", "pipe"};
    for (const TextView name : {"f", "link", "device", "new/empty", "folderlink", "pipe", "missing"})
        files.Delete(In(name));
    EXPECT_FALSE(files.Exists(In("f")));
    for (const TextView name : kept) EXPECT_TRUE(files.Exists(In(name))) << name;
    if (geteuid() == 0) return;  // nothing is read-only for the superuser
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(KindOf([&] { files.Delete(In("kept")); }), FailureKind::FileAccess);
    fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(StdFilesTest, OneFileUnderTwoNames) {
    for (const TextView name : {"f", "other"}) Write(In(name), "x");
    fs::create_symlink("f", In("link"));
    fs::create_hard_link(In("f"), In("hard"));
    fs::create_directory_symlink(folder, In("loop"));
    for (const TextView name : {"f", "./f", "link", "hard", "loop/loop/f"})
        EXPECT_TRUE(files.AreSame(In("f"), In(name))) << name;
    for (const TextView name : {"other", "missing", ""})
        EXPECT_FALSE(files.AreSame(In("f"), In(name)) || files.AreSame(In(name), In("f"))) << name;
    EXPECT_FALSE(files.AreSame(In("missing"), In("missing")));
}

TEST_F(StdFilesTest, AChangeOfAFileChangesItsStamp) {
    Write(In("f"), "x");
    const auto before = files.Stamp(In("f"));
    EXPECT_EQ(files.Stamp(In("./f")), before);
    fs::last_write_time(In("f"), fs::last_write_time(In("f")) + std::chrono::milliseconds(1));
    EXPECT_NE(files.Stamp(In("f")), before);
    for (const Text& none : {folder, In("missing"), Text("/dev/null")})
        EXPECT_FALSE(files.Stamp(none)) << none;
}

}  // namespace
}  // namespace swiftroll::platform
