#pragma once

#include <cstddef>
#include <functional>

namespace swiftroll {

/// Called now and then in the middle of long work that must not be interrupted, so that a presentation can
/// show life. It must not change any table.
using Pause = std::function<void()>;

/// Pauses at every 32 768th step of a loop.
inline void PauseAt(std::size_t step, const Pause& pause) {
    if ((step & 0x7FFF) == 0x7FFF && pause) pause();
}

}  // namespace swiftroll
