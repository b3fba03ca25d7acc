#pragma once

#include "app/ports.h"

namespace swiftroll::modCommon {

/// The operating system in a line of the report: its name, version, build and platform.
Text GetWinVersion(Machine& machine);

}  // namespace swiftroll::modCommon
