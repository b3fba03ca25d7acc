#pragma once

#include "app/option_record.h"

namespace swiftroll {

/// Binds the small rules of single options: what a number may be, and what it becomes when it is none.
void BindOptionRules(OptionRecord& options);

}  // namespace swiftroll
