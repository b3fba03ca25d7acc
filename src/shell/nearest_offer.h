#pragma once

#include <chrono>

#include "app/application.h"

namespace swiftroll {

/// What the message bar offers while a search for all paths goes on: to show the nearest ones in its place,
/// or to stop it. It comes when the search has become long, counts on, and goes with this object.
class NearestOffer {
  public:
    /// The time of the search begins now.
    explicit NearestOffer(Application& app) : app_(app) {}
    ~NearestOffer() { app_.messageBar.Remove(this); }
    NearestOffer(const NearestOffer&) = delete;
    NearestOffer& operator=(const NearestOffer&) = delete;

    /// To be called again and again with the number of paths found so far.
    void Tell(std::int64_t paths);
    /// Whether the user took the offer; the search was then asked to stop.
    bool IsTaken() const { return isTaken_; }

  private:
    void Show(std::int64_t paths);

    Application& app_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now(), lastShown_{};
    bool isMade_ = false, isTaken_ = false;
};

}  // namespace swiftroll
