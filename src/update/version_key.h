#pragma once

#include "text/text.h"

namespace swiftroll {

/// The comparison key of a version, "3.4.0" or "3.4.0 b2": a later version has a greater text. Every beta of
/// a release comes just before it; an empty text stands for "0.0.0".
/// @throws Failure TypeMismatch, IndexOutOfRange for a text that is no version, Overflow above 3.27.67
Text AdjustVersion(TextView sVersion);

}  // namespace swiftroll
