#pragma once

#include "arguments.h"
#include "shell/frm_main.h"

namespace swiftroll::cli {

/// The columns of `lvwOut` that stand before `Number` when the command line tells nothing of them, as it
/// would name them.
std::string DefaultColumns();

/// Takes the settings of the command line over into the option record and the columns, in their order.
/// @throws UsageError that names what is wrong
void ApplySettings(frmMain& main, const std::vector<Setting>& settings);

}  // namespace swiftroll::cli
