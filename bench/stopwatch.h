#pragma once

#include <chrono>

namespace bench {

class Stopwatch {
  public:
    double Seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }
    /// Seconds so far, and starts anew.
    double Lap() {
        const double seconds = Seconds();
        start_ = std::chrono::steady_clock::now();
        return seconds;
    }

  private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace bench
