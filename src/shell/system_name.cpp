#include "shell/system_name.h"

#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

constexpr int kAny = -1, kNtPlatform = 2;

/// Systems that tell only numbers, by major version, whether the platform is that of NT, and minor version.
struct KnownSystem {
    int major;
    int platformId;
    int minor;
    TextView name;
};
constexpr KnownSystem kSystems[] = {{3, kNtPlatform, kAny, "Windows NT 3.x"},
                                    {3, kAny, kAny, "Windows 3.x"},
                                    {4, kNtPlatform, kAny, "Windows NT 4.0"},
                                    {4, kAny, 0, "Windows 95"},
                                    {4, kAny, 10, "Windows 98"},
                                    {4, kAny, 90, "Windows Me"},
                                    {5, kAny, 0, "Windows 2000"},
                                    {5, kAny, 1, "Windows XP"},
                                    {5, kAny, 2, "Windows .Net Server"}};

TextView NameOf(const SystemVersion& system) {
    if (!system.name.empty()) return system.name;
    for (const KnownSystem& known : kSystems) {
        const bool same = known.major == system.major &&
                          (known.platformId == kAny || known.platformId == system.platformId) &&
                          (known.minor == kAny || known.minor == system.minor);
        if (same) return known.name;
    }
    return "Unknown Windows Version";
}

}  // namespace

Text GetWinVersion(Machine& machine) {
    try {
        const SystemVersion system = machine.System();
        return Concat({NameOf(system), " (", Decimal(system.major), ".", Decimal(system.minor), " Build ",
                       Decimal(system.build), " Plateform ", Decimal(system.platformId), ")"});
    } catch (const Failure&) {
        return Text("Impossible de récupérer la version de Windows"_t);
    }
}

}  // namespace swiftroll::modCommon
