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

/// What a run of the program left.
struct Outcome {
    int code = -1;
    std::string out, err;
    bool Says(const std::string& text) const { return err.find(text) != std::string::npos; }
    /// The lines of standard output.
    Strings Lines() const {
        Strings lines;
        std::istringstream stream(out);
        for (std::string line; std::getline(stream, line);) lines.push_back(line);
        return lines;
    }
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
    /// Runs it on a named pipe: writes `before`, interrupts the program as Ctrl-C does, and writes `after` as
    /// far as it is still read.
    Outcome CliInterrupted(const std::string& fifo, const Strings& arguments, const std::string& before,
                           const std::string& after) const {
        const auto previous = std::signal(SIGPIPE, SIG_IGN);
        mkfifo((folder_ / fifo).c_str(), 0600);
        const pid_t pid = Start(arguments, {});
        // The pipe can be opened once the program reads it.
        int fd = -1;
        for (siginfo_t ended{}; fd < 0 && ended.si_pid == 0; usleep(1000)) {
            fd = open((folder_ / fifo).c_str(), O_WRONLY | O_NONBLOCK);
            waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT);
        }
        if (fd >= 0) {
            fcntl(fd, F_SETFL, 0);
            EXPECT_TRUE(WriteAll(fd, before)) << "the program ended before the signal";
            kill(pid, SIGINT);
            WriteAll(fd, after);
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

    /// Further variables of the environment, "NAME=value".
    Strings environment;

  private:
    static constexpr const char* kStdout = ".stdout";
    static constexpr const char* kStderr = ".stderr";

    /// The present environment with the folders of the test, and without what would change the outputs.
    Strings Variables() const {
        Strings variables = environment;
        variables.push_back("HOME=" + (folder_ / "home").string());
        variables.push_back("XDG_DATA_HOME=" + (folder_ / "data").string());
        for (char** variable = environ; *variable != nullptr; ++variable) {
            const std::string text = *variable;
            const std::string name = text.substr(0, text.find('='));
            if (name != "HOME" && !name.starts_with("XDG_") && name != "SOURCE_DATE_EPOCH" && name != "TZ") {
                variables.push_back(text);
            }
        }
        return variables;
    }

    static std::vector<char*> Pointers(Strings& texts) {
        std::vector<char*> pointers;
        for (std::string& text : texts) pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    /// False when nobody reads any more.
    static bool WriteAll(int fd, std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = write(fd, bytes.data(), bytes.size());
            if (written < 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    pid_t Start(const Strings& arguments, const std::string& stdoutFile) const {
        Strings words = {SWIFTROLL_CLI}, variables = Variables();
        words.insert(words.end(), arguments.begin(), arguments.end());
        const std::vector<char*> argv = Pointers(words), envp = Pointers(variables);
        std::filesystem::remove(folder_ / kStdout);
        const pid_t pid = fork();
        if (pid != 0) return pid;
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGPIPE, SIG_DFL);
        const bool moved = chdir(folder_.c_str()) == 0;
        const int in = open("/dev/null", O_RDONLY);
        const int out =
            open(stdoutFile.empty() ? kStdout : stdoutFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const int err = open(kStderr, O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (moved && dup2(in, 0) == 0 && dup2(out, 1) == 1 && dup2(err, 2) == 2) {
            execve(SWIFTROLL_CLI, argv.data(), envp.data());
        }
        _exit(127);
    }

    Outcome Finish(pid_t pid) const {
        int status = 0;
        waitpid(pid, &status, 0);
        const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return {code, Bytes(kStdout), Bytes(kStderr)};
    }

    std::filesystem::path folder_;
};

}  // namespace swiftroll::test
