#include "app/status.h"

#include <algorithm>
#include <cmath>

namespace swiftroll {

void ProgressBar::Show(double done, double total) { Set(total > 0 ? done * 100 / total : 0); }

void ProgressBar::Set(double percent) {
    const double held = std::clamp(percent, 0.0, 100.0);
    // Loops set it for every row; only a change that can be seen is told.
    const bool visible = std::floor(held) != std::floor(value_);
    value_ = held;
    if (visible) observer_.StatusChanged();
}

void ProgressBar::SetBusy(bool isBusy) {
    isBusy_ = isBusy;
    observer_.StatusChanged();
}

}  // namespace swiftroll
