#include "platform/machine.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <vector>

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

std::uint64_t AvailableHere() {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) return kNoLimit;
    return std::min(status.ullAvailPhys, status.ullAvailVirtual);
}

#else

std::uint64_t PhysicalMemory() {
    const long pages = sysconf(_SC_PHYS_PAGES), size = sysconf(_SC_PAGE_SIZE);
    if (pages <= 0 || size <= 0) return kNoLimit;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(size);
}

/// The limit of the address space of the process.
std::uint64_t AddressLimit() {
    rlimit space{};
    const bool isLimited = getrlimit(RLIMIT_AS, &space) == 0 && space.rlim_cur != RLIM_INFINITY;
    return isLimited ? space.rlim_cur : kNoLimit;
}

/// The number in a file of the system that holds nothing else, or nothing: "max" is no number.
std::optional<std::uint64_t> NumberIn(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::uint64_t number = 0;
    if (!(stream >> number)) return std::nullopt;
    return number;
}

constexpr std::streamsize kLongestLine = std::numeric_limits<std::streamsize>::max();

/// The number behind a word at the beginning of a line; nothing where there is no such line.
std::optional<std::uint64_t> NumberBehind(const std::filesystem::path& file, std::string_view word) {
    std::ifstream stream(file);
    std::uint64_t number = 0;
    for (std::string first; stream >> first; stream.ignore(kLongestLine, '\n')) {
        if (first == word && stream >> number) return number;
    }
    return std::nullopt;
}

/// The folders of the control group of the process and of those that it lies in, whose limits hold as well.
std::vector<std::filesystem::path> ControlGroups() {
    const std::filesystem::path root = "/sys/fs/cgroup";
    std::vector<std::filesystem::path> groups{root};
    std::ifstream own("/proc/self/cgroup");
    for (std::string line; std::getline(own, line);) {
        if (!line.starts_with("0::/")) continue;
        std::filesystem::path group = root;
        for (const auto& part : std::filesystem::path(line.substr(4))) groups.push_back(group /= part);
    }
    return groups;
}

std::uint64_t Limits() {
    std::uint64_t limit = AddressLimit();
    for (const auto& group : ControlGroups())
        limit = std::min(limit, NumberIn(group / "memory.max").value_or(kNoLimit));
    return limit;
}

/// What a limit leaves beside what is used of it.
std::uint64_t Left(std::uint64_t limit, std::uint64_t used) { return limit - std::min(limit, used); }

std::uint64_t AvailableHere() {
    constexpr std::uint64_t kKilobyte = 1024;
    std::uint64_t available = kNoLimit;
    if (const auto kilobytes = NumberBehind("/proc/meminfo", "MemAvailable:"))
        available = *kilobytes * kKilobyte;
    if (AddressLimit() != kNoLimit) {
        const std::uint64_t used = NumberBehind("/proc/self/status", "VmSize:").value_or(0) * kKilobyte;
        available = std::min(available, Left(AddressLimit(), used));
    }
    for (const auto& group : ControlGroups()) {
        const auto limit = NumberIn(group / "memory.max"), used = NumberIn(group / "memory.current");
        if (!limit || !used) continue;
        // The system takes back copies of files when memory is short.
        const std::uint64_t copies = NumberBehind(group / "memory.stat", "inactive_file").value_or(0);
        available = std::min(available, Left(*limit, Left(*used, copies)));
    }
    return available;
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

std::uint64_t ThisMachine::AvailableMemory() { return std::min(AvailableHere(), Memory()); }

std::uint64_t ThisMachine::Memory() { return std::min(PhysicalMemory(), Limits()); }

}  // namespace swiftroll::platform
