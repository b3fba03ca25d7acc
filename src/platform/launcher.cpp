#include "platform/launcher.h"

#ifndef _WIN32
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <chrono>

namespace swiftroll::platform {

#ifndef _WIN32
namespace {

/// A program of its own session outlives the terminal of this one.
int StartApart(pid_t& process, std::vector<std::string>& command) {
    std::vector<char*> argv;
    argv.reserve(command.size() + 1);
    for (std::string& argument : command) argv.push_back(argument.data());
    argv.push_back(nullptr);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
#ifdef POSIX_SPAWN_SETSID
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
#endif
    const int error = posix_spawnp(&process, argv[0], nullptr, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    return error;
}

}  // namespace

std::optional<int> Launch(std::vector<std::string> command, EventPump& events) {
    constexpr auto kPatience = std::chrono::seconds(5);
    constexpr int kGlanceMilliseconds = 20;
    constexpr int kKilled = 128;  // as a shell tells it
    pid_t process = 0;
    if (StartApart(process, command) != 0) return std::nullopt;
    const auto end = std::chrono::steady_clock::now() + kPatience;
    int status = 0;
    while (waitpid(process, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > end) return 0;
        events.YieldFor(kGlanceMilliseconds, false);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled + WTERMSIG(status);
}
#else
std::optional<int> Launch(std::vector<std::string>, EventPump&) { return std::nullopt; }
#endif

}  // namespace swiftroll::platform
