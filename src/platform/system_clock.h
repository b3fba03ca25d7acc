#pragma once

#include <optional>

#include "app/ports.h"

namespace swiftroll::platform {

/// Local time; when the environment has SOURCE_DATE_EPOCH, that instant in UTC, so that outputs with dates
/// can be reproduced.
class SystemClock : public Clock {
  public:
    SystemClock();
    Moment Now() override;

  private:
    std::optional<std::int64_t> fixed_;
};

}  // namespace swiftroll::platform
