#pragma once

#include <chrono>
#include <ctime>

namespace bench {

/// Seconds as a user waits.
struct WallClock {
    static double Now() {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
};

/// Seconds that the processor was at work: the same on a machine that has nothing else to do.
struct ProcessorClock {
    static double Now() {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    }
};

template <class Clock>
class BasicStopwatch {
  public:
    double Seconds() const { return Clock::Now() - start_; }
    /// Seconds so far, and starts anew.
    double Lap() {
        const double seconds = Seconds();
        start_ = Clock::Now();
        return seconds;
    }

  private:
    double start_ = Clock::Now();
};
using Stopwatch = BasicStopwatch<WallClock>;
using ProcessorWatch = BasicStopwatch<ProcessorClock>;

}  // namespace bench
