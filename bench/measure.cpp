// Runs a command with its standard output thrown away, and prints its wall time in seconds and its peak
// resident memory in kilobytes. This process is kept small on purpose: the kernel counts the memory of the
// parent at the time of the fork in the peak of the child.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

constexpr int kFailure = 1;
constexpr int kBadUsage = 2;
constexpr int kCannotRun = 127;
constexpr int kKilled = 128;

[[noreturn]] void BecomeCommand(char** command) {
    const int nowhere = open("/dev/null", O_WRONLY);
    if (nowhere >= 0 && dup2(nowhere, STDOUT_FILENO) >= 0) {
        execvp(command[0], command);
    }
    std::perror(command[0]);
    _exit(kCannotRun);
}

int ExitCode(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status); }

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 2) {
        std::fputs("usage: measure COMMAND [ARGUMENT...]\n", stderr);
        return kBadUsage;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        BecomeCommand(arguments + 1);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) {
        std::perror("measure");
        return kFailure;
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::printf("%.6f %ld\n", elapsed.count(), usage.ru_maxrss);
    return ExitCode(status);
}
