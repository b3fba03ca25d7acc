#pragma once

#include <exception>

namespace swiftroll {

/// Runs a step whose failure means nothing to what follows, as the removal of what is not there.
template <class Step>
void IgnoringFailures(Step&& step) {
    try {
        step();
    } catch (const std::exception&) {
        // Nobody is to be told.
    }
}

}  // namespace swiftroll
