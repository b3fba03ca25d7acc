#pragma once

#include <optional>

#include "text/failure.h"

namespace swiftroll::test {

/// The kind of failure that `action` throws; nothing when it throws none.
template <class Action>
std::optional<FailureKind> KindOf(Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Kind();
    }
    return std::nullopt;
}

}  // namespace swiftroll::test
