#include "platform/machine.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <limits>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/resource.h>
#include <sys/utsname.h>
#include <unistd.h>
#endif

#include "text/code_page.h"
#include "text/failure.h"

namespace swiftroll::platform {
namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

#ifdef _WIN32

std::uint64_t PhysicalMemory() {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? status.ullTotalPhys : kNoLimit;
}

std::uint64_t Limits() { return kNoLimit; }

#else

std::uint64_t PhysicalMemory() {
    const long pages = sysconf(_SC_PHYS_PAGES), size = sysconf(_SC_PAGE_SIZE);
    if (pages <= 0 || size <= 0) return kNoLimit;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(size);
}

/// Of the process, and of the control group of a container.
std::uint64_t Limits() {
    std::uint64_t limit = kNoLimit;
    rlimit space{};
    if (getrlimit(RLIMIT_AS, &space) == 0 && space.rlim_cur != RLIM_INFINITY) limit = space.rlim_cur;
    std::ifstream group("/sys/fs/cgroup/memory.max");
    std::uint64_t bytes = 0;
    if (group >> bytes) limit = std::min(limit, bytes);
    return limit;
}

#endif

#ifdef _WIN32

SystemVersion SystemOfMachine() {
    using Query = LONG(WINAPI*)(OSVERSIONINFOW*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    OSVERSIONINFOW info{};
    info.dwOSVersionInfoSize = sizeof info;
    if (query == nullptr || query(&info) != 0) throw Failure(FailureKind::Internal);
    SystemVersion system;
    system.major = static_cast<int>(info.dwMajorVersion);
    system.minor = static_cast<int>(info.dwMinorVersion);
    system.build = static_cast<int>(info.dwBuildNumber);
    system.platformId = static_cast<int>(info.dwPlatformId);
    return system;
}

#else

/// The value of PRETTY_NAME="..." in a file of the system's release, or an empty text.
Text NameOfRelease(const char* file) {
    constexpr std::string_view kName = "PRETTY_NAME=";
    std::ifstream release(file);
    for (std::string line; std::getline(release, line);) {
        if (!line.starts_with(kName)) continue;
        line.erase(0, kName.size());
        std::erase(line, '"');
        return FromUtf8(line).value_or(Text());
    }
    return {};
}

SystemVersion SystemOfMachine() {
    utsname kernel{};
    if (uname(&kernel) != 0) throw Failure(FailureKind::Internal);
    SystemVersion system;
    system.name = NameOfRelease("/etc/os-release");
    if (system.name.empty()) system.name = kernel.sysname;
    std::sscanf(kernel.release, "%d.%d.%d", &system.major, &system.minor, &system.build);
    return system;
}

#endif

}  // namespace

SystemVersion ThisMachine::System() { return SystemOfMachine(); }

std::uint64_t ThisMachine::Memory() { return std::min(PhysicalMemory(), Limits()); }

}  // namespace swiftroll::platform
