#pragma once

#include "app/ports.h"

namespace swiftroll::platform {

/// The machine that the program runs on.
class ThisMachine : public Machine {
  public:
    /// The physical memory, or less where the system limits the program.
    std::uint64_t Memory() override;
    /// The memory that nobody uses or that is only a copy of files, or less where the limits leave less.
    std::uint64_t AvailableMemory() override;
    SystemVersion System() override;
};

}  // namespace swiftroll::platform
