#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/ports.h"

namespace swiftroll::platform {

/// Starts a command that hands something over to another program, and waits for its answer while `events`
/// are handled: its exit code, or nothing when it cannot be started. One that stays in front with the program
/// that it started counts as done.
/// @throws ProgramEnd when the user ends this program meanwhile; the command goes on
std::optional<int> Launch(std::vector<std::string> command, EventPump& events);

}  // namespace swiftroll::platform
