#pragma once

#include "app/application.h"

namespace swiftroll {

/// Gives the tables their tool tips; that of the list follows `chkTips`.
void AttachTips(Application& app);

}  // namespace swiftroll
