#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace swiftroll::test {

using Strings = std::vector<std::string>;

inline Strings operator+(Strings words, const Strings& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

/// Three individuals of two surnames, a family, and what is awkward to print: a tab, a backslash, accents,
/// and a byte that Windows-1252 leaves undefined.
inline const std::string kFamily =
    "0 HEAD\r\n1 CHAR ANSI\r\n"
    "0 @I1@ INDI\r\n1 NAME Ren\xE9 /de\tla \\Cour\x9C/\r\n1 SEX M\r\n1 BIRT\r\n2 DATE 1850\r\n"
    "2 PLAC Paris, Seine\r\n1 FAMS @F1@\r\n"
    "0 @I2@ INDI\r\n1 NAME Anne /Bo\x81/\r\n1 SEX F\r\n1 DEAT\r\n2 PLAC Lyon\r\n1 BIRT\r\n2 PLAC Brest\r\n"
    "1 FAMS @F1@\r\n"
    "0 @I3@ INDI\r\n1 NAME Luc /DE LA COUR/\r\n1 BIRT\r\n2 DATE 1880\r\n2 PLAC PARIS SEINE\r\n1 FAMC @F1@\r\n"
    "0 @F1@ FAM\r\n1 HUSB @I1@\r\n1 WIFE @I2@\r\n1 CHIL @I3@\r\n0 TRLR\r\n";

/// `count` individuals, "@I" and a number from `first` on.
inline std::string Crowd(int first, int count) {
    std::ostringstream crowd;
    for (int i = first; i < first + count; ++i) {
        crowd << "0 @I" << i << "@ INDI\r\n1 NAME A" << i % 7 << " /N" << i % 100 << "/\r\n";
    }
    return crowd.str();
}

/// `text` cut at each `separator`; what ends with one has no part behind it.
inline Strings Split(const std::string& text, char separator) {
    Strings parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

inline std::size_t CountOf(const std::string& what, const std::string& text) {
    std::size_t count = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
    return count;
}

inline const std::string kExample = std::string(SWIFTROLL_EXAMPLES) + "/famille.ged";

/// What a run of the program left.
struct Outcome {
    int code = -1;
    std::string out, err;
    bool Says(const std::string& text) const { return err.find(text) != std::string::npos; }
    /// Expects the exit code, and a message that tells why.
    void Ends(int expectedCode, const std::string& message) const {
        EXPECT_EQ(code, expectedCode) << message << "\n" << err;
        EXPECT_TRUE(Says(message)) << message << "\n" << err;
    }
    /// The lines of standard output.
    Strings Lines() const { return Split(out, '\n'); }
};

/// A folder of its own in which the program runs, as a process, with a home and a data folder in it. The file
/// "f.ged" there holds kFamily.
class CliTest : public testing::Test {
  protected:
    CliTest() {
        std::string name = (std::filesystem::temp_directory_path() / "swiftroll-cli-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder " + name);
        folder_ = name;
        std::filesystem::create_directory(folder_ / "home");
        std::filesystem::create_directory(folder_ / "data");
        Put("f.ged", kFamily);
    }
    ~CliTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    /// Runs the program. Names of files are relative to the folder; `stdoutFile` takes standard output.
    Outcome Cli(const Strings& arguments, const std::string& stdoutFile = {}) const {
        return Finish(Start(arguments, stdoutFile));
    }
    /// Runs it on the named pipe "fifo": interrupts it as Ctrl-C does in the midst of 60000 individuals.
    Outcome CliInterrupted(const Strings& arguments) const {
        const auto previous = std::signal(SIGPIPE, SIG_IGN);
        mkfifo((folder_ / "fifo").c_str(), 0600);
        const pid_t pid = Start(arguments, {});
        // The pipe can be opened once the program reads it.
        int fd = -1;
        for (siginfo_t ended{}; fd < 0 && ended.si_pid == 0; usleep(1000)) {
            fd = open((folder_ / "fifo").c_str(), O_WRONLY | O_NONBLOCK);
            waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT);
        }
        if (fd >= 0) {
            fcntl(fd, F_SETFL, 0);
            EXPECT_TRUE(WriteAll(fd, Crowd(1, 20000))) << "the program ended before the signal";
            kill(pid, SIGINT);
            WriteAll(fd, Crowd(20001, 40000));
            close(fd);
        }
        std::signal(SIGPIPE, previous);
        return Finish(pid);
    }

    void Put(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }
    std::string Bytes(const std::string& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool Exists(const std::string& name) const { return std::filesystem::exists(folder_ / name); }

    /// Further variables of the environment, "NAME=value", and the words of a command that runs the program.
    Strings environment, launcher;

    std::filesystem::path folder_;

  private:
    /// False when nobody reads any more.
    static bool WriteAll(int fd, std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = write(fd, bytes.data(), bytes.size());
            if (written < 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    /// The present environment serves with the folders of the test, and without what would change the
    /// outputs.
    pid_t Start(const Strings& arguments, const std::string& stdoutFile) const {
        std::string command = "cd '" + folder_.string() +
                              "' && unset SOURCE_DATE_EPOCH TZ XDG_CONFIG_HOME XDG_DOCUMENTS_DIR && "
                              "export HOME=$PWD/home XDG_DATA_HOME=$PWD/data";
        for (const std::string& variable : environment) command += " '" + variable + "'";
        command += " && exec";
        for (const std::string& word : launcher + Strings{SWIFTROLL_CLI} + arguments)
            command += " '" + word + "'";
        command += " </dev/null 2>.stderr >" + (stdoutFile.empty() ? ".stdout" : stdoutFile);
        std::filesystem::remove(folder_ / ".stdout");
        const pid_t pid = fork();
        if (pid != 0) return pid;
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGPIPE, SIG_DFL);
        execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
        _exit(127);
    }

    Outcome Finish(pid_t pid) const {
        int status = 0;
        waitpid(pid, &status, 0);
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return {code, Bytes(".stdout"), Bytes(".stderr")};
    }
};

}  // namespace swiftroll::test
