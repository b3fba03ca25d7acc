#include "platform/machine.h"

#include <algorithm>
#include <fstream>
#include <limits>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/resource.h>
#include <unistd.h>
#endif

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

}  // namespace

std::uint64_t ThisMachine::Memory() { return std::min(PhysicalMemory(), Limits()); }

}  // namespace swiftroll::platform
