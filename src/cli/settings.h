#pragma once

#include "arguments.h"
#include "shell/frm_main.h"

namespace swiftroll::cli {

/// The columns of `lvwOut` that stand before `Number` when the command line tells nothing of them.
inline const std::string kDefaultColumns = "LastName,Place,DateMin,DateMax";

/// Takes the settings of the command line over into the option record and the columns, in their order.
/// @throws UsageError that names what is wrong
void ApplySettings(frmMain& main, const std::vector<Setting>& settings);

/// Puts these columns of `lvwOut` before `Number`, in this order, and all others behind it in schema order.
/// @throws UsageError for an unknown or repeated column
void ArrangeColumns(frmMain& main, const std::vector<std::string>& keys);

}  // namespace swiftroll::cli
